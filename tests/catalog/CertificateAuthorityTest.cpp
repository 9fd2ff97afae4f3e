#include "dev/catalog/CertificateAuthority.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using devcatalog::CertificateAuthority;

/// The folder in which the catalog's authority lasts.
class CertificateAuthorityTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void theAuthorityIsKeptUntilItIsSpent_data();
    void theAuthorityIsKeptUntilItIsSpent();
    void aFolderThatCannotBeUsedIsNamed();

private:
    QString path(const QString& name) const { return m_folder->filePath("authority/" + name); }
    QByteArray contents(const QString& name) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

QByteArray CertificateAuthorityTest::contents(const QString& name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void CertificateAuthorityTest::theAuthorityIsKeptUntilItIsSpent_data()
{
    QTest::addColumn<qint64>("later");
    QTest::addColumn<QByteArray>("damage");
    QTest::addColumn<bool>("isKept");
    constexpr std::time_t year = 366L * 24 * 60 * 60;
    QTest::newRow("eight years on") << qint64(8 * year) << QByteArray() << true;
    QTest::newRow("about to end") << qint64(9.5 * year) << QByteArray() << false;
    QTest::newRow("clock set back") << -qint64(year) << QByteArray() << false;
    QTest::newRow("noise") << qint64(0) << QByteArray("-----BEGIN CERTIFICATE-----\nnoise") << false;
}

void CertificateAuthorityTest::theAuthorityIsKeptUntilItIsSpent()
{
    QFETCH(qint64, later);
    QFETCH(QByteArray, damage);
    const std::filesystem::path folder = path("").toStdString();
    CertificateAuthority{folder};
    const QByteArray before = contents("ca.pem");
    QVERIFY(before.startsWith("-----BEGIN CERTIFICATE-----"));
    QVERIFY(!before.contains("PRIVATE KEY"));
    QFile::remove(path("ca.pem"));
    if (!damage.isEmpty()) {
        QFile file(path("authority-key.pem"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(damage);
    }
    CertificateAuthority(folder, std::time(nullptr) + later);
    QTEST(contents("ca.pem") == before, "isKept");
    QVERIFY(contents("authority-key.pem").contains(contents("ca.pem")));
    QCOMPARE(QDir(path("")).entryList(QDir::Files).size(), 2);
#ifndef Q_OS_WIN // where rights follow from the folder
    const QFile::Permissions others(0x0077);
    QCOMPARE(QFile::permissions(path("authority-key.pem")) & others, QFile::Permissions());
    QCOMPARE(QFile::permissions(path("")) & others, QFile::Permissions());
#endif
}

void CertificateAuthorityTest::aFolderThatCannotBeUsedIsNamed()
{
    QFile file(m_folder->filePath("file"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    try {
        const CertificateAuthority authority(file.fileName().toStdString() + "/authority");
        QFAIL("a file served as a folder");
    } catch (const std::runtime_error& error) {
        QVERIFY2(QString(error.what()).contains(file.fileName()), error.what());
    }
}

QTEST_GUILESS_MAIN(CertificateAuthorityTest)
#include "CertificateAuthorityTest.moc"
