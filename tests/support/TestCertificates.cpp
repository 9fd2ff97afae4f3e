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
    return std::time(nullptr) - 2 * 365 * day;
}

template <auto encode, typename T>
QByteArray derOf(T* object)
{
    QByteArray bytes(encode(object, nullptr), '\0');
    auto* position = reinterpret_cast<unsigned char*>(bytes.data());
    encode(object, &position);
    return bytes;
}

ServerIdentity issue(const CertificateAuthority& authority, const QString& hostName)
{
    const devcatalog::Identity identity = authority.issue(hostName.toStdString());
    return {QSslCertificate(derOf<i2d_X509>(identity.certificate.get()), QSsl::Der),
            QSslKey(derOf<i2d_PrivateKey>(identity.key.get()), QSsl::Ec, QSsl::Der)};
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
    return issue(CertificateAuthority(folder("authority")), m_hostName);
}

ServerIdentity TestCertificates::untrusted() const
{
    return issue(CertificateAuthority(folder("another")), m_hostName);
}

ServerIdentity TestCertificates::expired() const
{
    return issue(CertificateAuthority(folder("authority"), twoYearsAgo()), m_hostName);
}

ServerIdentity TestCertificates::wrongName() const
{
    return issue(CertificateAuthority(folder("authority")), "elsewhere.test");
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
