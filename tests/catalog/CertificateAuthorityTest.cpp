#include "dev/catalog/CertificateAuthority.h"
#include "dev/catalog/CatalogServer.h"

#include <QDir>
#include <QFile>
#include <QSslConfiguration>
#include <QSslSocket>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using devcatalog::CertificateAuthority;

namespace
{

constexpr std::time_t Year = 366L * 24 * 60 * 60;

} // namespace

/// The catalog's own certificates, as a TLS client judges them.
class CertificateAuthorityTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void clientsThatTrustItConnectUnderEveryName_data();
    void clientsThatTrustItConnectUnderEveryName();
    void theAuthorityIsKeptUntilItIsSpent_data();
    void theAuthorityIsKeptUntilItIsSpent();
    void aFolderThatCannotBeUsedIsNamed();

private:
    QString path(const QString& name) const { return m_folder->filePath("authority/" + name); }
    std::filesystem::path folder() const { return m_folder->filePath("authority").toStdString(); }
    QByteArray contents(const QString& name) const;
    void openAuthority(std::time_t later = 0) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

QByteArray CertificateAuthorityTest::contents(const QString& name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void CertificateAuthorityTest::openAuthority(std::time_t later) const
{
    const CertificateAuthority authority(folder(), std::time(nullptr) + later);
}

void CertificateAuthorityTest::clientsThatTrustItConnectUnderEveryName_data()
{
    QTest::addColumn<bool>("isTrusted");
    QTest::addColumn<bool>("connects");
    for (const char* name : {"catalog.test", "localhost", "127.0.0.1", "::1"})
        QTest::newRow(name) << true << true;
    QTest::newRow("other.test") << true << false;
    QTest::newRow("catalog.test, not trusted") << false << false;
}

void CertificateAuthorityTest::clientsThatTrustItConnectUnderEveryName()
{
    QFETCH(bool, isTrusted);
    devcatalog::CatalogServerOptions options;
    options.serviceHost = "catalog.test:8443";
    options.certificateFolder = folder();
    devcatalog::CatalogServer server(options);
    server.start();
    QCOMPARE(server.serviceHost(), std::string("catalog.test:8443"));

    QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
    if (isTrusted)
        tls.addCaCertificates(QString::fromStdString(server.caFile().string()));
    QSslSocket socket;
    socket.setSslConfiguration(tls);
    socket.setPeerVerifyName(QString(QTest::currentDataTag()).section(',', 0, 0));
    socket.connectToHostEncrypted("127.0.0.1", static_cast<quint16>(server.port()));
    QTEST(socket.waitForEncrypted(20000), "connects");
}

void CertificateAuthorityTest::theAuthorityIsKeptUntilItIsSpent_data()
{
    QTest::addColumn<qint64>("later");
    QTest::addColumn<QByteArray>("damage");
    QTest::addColumn<bool>("isKept");
    QTest::newRow("eight years on") << qint64(8 * Year) << QByteArray() << true;
    QTest::newRow("about to end") << qint64(9.5 * Year) << QByteArray() << false;
    QTest::newRow("clock set back") << -qint64(Year) << QByteArray() << false;
    QTest::newRow("noise") << qint64(0) << QByteArray("-----BEGIN CERTIFICATE-----\nnoise") << false;
}

void CertificateAuthorityTest::theAuthorityIsKeptUntilItIsSpent()
{
    QFETCH(qint64, later);
    QFETCH(QByteArray, damage);
    openAuthority();
    const QByteArray before = contents("ca.pem");
    QVERIFY(before.startsWith("-----BEGIN CERTIFICATE-----"));
    QVERIFY(!before.contains("PRIVATE KEY"));
    QFile::remove(path("ca.pem"));
    if (!damage.isEmpty()) {
        QFile file(path("authority-key.pem"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(damage);
    }
    openAuthority(later);
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
