#include "tests/support/TestCertificates.h"

#include "dev/catalog/CertificateAuthority.h"

using devcatalog::CertificateAuthority;

namespace test
{

namespace
{

/// An authority lasts for ten years, what it issues for one: since then the one is good and the other spent.
std::time_t twoYearsAgo()
{
    constexpr std::time_t day = 24L * 60 * 60;
    constexpr std::time_t days = 2L * 365;
    return std::time(nullptr) - days * day;
}

} // namespace

TestCertificates::TestCertificates(const QString& hostName) : m_hostName(hostName)
{
    m_authorityFile = CertificateAuthority(folder("authority"), twoYearsAgo()).caFile();
}

TestCertificates::~TestCertificates()
{
    if (m_before)
        QSslConfiguration::setDefaultConfiguration(*m_before);
}

ServerIdentity TestCertificates::good() const
{
    return CertificateAuthority(folder("authority")).issue(m_hostName.toStdString());
}

ServerIdentity TestCertificates::untrusted() const
{
    return CertificateAuthority(folder("another")).issue(m_hostName.toStdString());
}

ServerIdentity TestCertificates::expired() const
{
    return CertificateAuthority(folder("authority"), twoYearsAgo()).issue(m_hostName.toStdString());
}

ServerIdentity TestCertificates::wrongName() const
{
    return CertificateAuthority(folder("authority")).issue("elsewhere.test");
}

void TestCertificates::trust()
{
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    if (!m_before)
        m_before = std::make_unique<QSslConfiguration>(configuration);
    configuration.addCaCertificates(QString::fromStdString(m_authorityFile.string()));
    QSslConfiguration::setDefaultConfiguration(configuration);
}

std::filesystem::path TestCertificates::folder(const char* name) const
{
    return m_folder.filePath(name).toStdString();
}

} // namespace test
