#include "devcatalog/CertificateAuthority.h"
#include "devcatalog/CatalogServer.h"
#include "tests/support/FatalWarnings.h"

#include <QDir>
#include <QFile>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslSocket>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using devcatalog::CertificateAuthority;

namespace
{

constexpr std::time_t year = 366L * 24 * 60 * 60;

QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/// The catalog's own certificates, as a TLS client judges them.
class CertificateAuthorityTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void clientsThatTrustItConnectUnderEveryName_data();
    void clientsThatTrustItConnectUnderEveryName();
    void theAuthorityIsKept();
    void aSpentAuthorityIsRenewed_data();
    void aSpentAuthorityIsRenewed();
    void keysAreTheOwnersAlone();
    void aFolderThatCannotBeUsedIsNamed();

private:
    QString path(const QString& name) const { return m_folder->filePath("authority/" + name); }
    std::filesystem::path folder() const { return m_folder->filePath("authority").toStdString(); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<test::FatalWarnings> m_warnings;
};

void CertificateAuthorityTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_warnings = std::make_unique<test::FatalWarnings>();
}

void CertificateAuthorityTest::cleanup()
{
    m_warnings.reset();
}

void CertificateAuthorityTest::clientsThatTrustItConnectUnderEveryName_data()
{
    QTest::addColumn<bool>("isTrusted");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("connects");
    for (const char* name : {"catalog.test", "localhost", "127.0.0.1", "::1"}) {
        QTest::newRow(name) << true << name << true;
    }
    QTest::newRow("another name") << true << "other.test" << false;
    QTest::newRow("not trusted") << false << "catalog.test" << false;
}

void CertificateAuthorityTest::clientsThatTrustItConnectUnderEveryName()
{
    QFETCH(bool, isTrusted);
    QFETCH(QString, name);
    QFETCH(bool, connects);
    devcatalog::CatalogServerOptions options;
    options.serviceHost = "catalog.test:8443";
    options.certificateFolder = folder();
    devcatalog::CatalogServer server(options);
    server.start();
    QCOMPARE(server.serviceHost(), std::string("catalog.test:8443"));

    QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
    if (isTrusted) {
        tls.addCaCertificates(QString::fromStdString(server.caFile().string()));
    }
    QSslSocket socket;
    socket.setSslConfiguration(tls);
    socket.setPeerVerifyName(name);
    socket.connectToHostEncrypted("127.0.0.1", static_cast<quint16>(server.port()));
    QCOMPARE(socket.waitForEncrypted(20000), connects);
}

void CertificateAuthorityTest::theAuthorityIsKept()
{
    {
        const CertificateAuthority first(folder());
    }
    const QByteArray pem = contents(path("ca.pem"));
    QVERIFY(pem.startsWith("-----BEGIN CERTIFICATE-----"));
    QVERIFY(!pem.contains("PRIVATE KEY"));
    QFile::remove(path("ca.pem"));

    const CertificateAuthority second(folder(), std::time(nullptr) + 8 * year);
    QCOMPARE(contents(path("ca.pem")), pem);
    QCOMPARE(QDir(path("")).entryList(QDir::Files).size(), 2);
}

void CertificateAuthorityTest::aSpentAuthorityIsRenewed_data()
{
    QTest::addColumn<qint64>("later");
    QTest::addColumn<QByteArray>("damage");
    QTest::newRow("about to end") << qint64(9.5 * year) << QByteArray();
    QTest::newRow("clock set back") << -qint64(year) << QByteArray();
    QTest::newRow("empty file") << qint64(0) << QByteArray("\n");
    QTest::newRow("noise") << qint64(0) << QByteArray("-----BEGIN CERTIFICATE-----\nnoise");
}

void CertificateAuthorityTest::aSpentAuthorityIsRenewed()
{
    QFETCH(qint64, later);
    QFETCH(QByteArray, damage);
    {
        const CertificateAuthority spent(folder());
    }
    const QByteArray before = contents(path("ca.pem"));
    if (!damage.isEmpty()) {
        QFile file(path("authority-key.pem"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(damage);
    }
    const CertificateAuthority renewed(folder(), std::time(nullptr) + later);
    QVERIFY(contents(path("ca.pem")) != before);
    QVERIFY(contents(path("authority-key.pem")).contains(contents(path("ca.pem"))));
}

void CertificateAuthorityTest::keysAreTheOwnersAlone()
{
#ifdef Q_OS_WIN
    QSKIP("Rights follow from the folder here.");
#endif
    const CertificateAuthority authority(folder());
    const QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                      QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
    QVERIFY(contents(path("authority-key.pem")).contains("PRIVATE KEY"));
    QCOMPARE(QFile::permissions(path("authority-key.pem")) & others, QFile::Permissions());
    QCOMPARE(QFile::permissions(path("")) & others, QFile::Permissions());
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
