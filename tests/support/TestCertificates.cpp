#include "tests/support/TestCertificates.h"

#include <QFile>

#include <openssl/bio.h>
#include <openssl/ec.h>
#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/rand.h>
#include <openssl/x509v3.h>

#include <cstdint>

namespace test
{

namespace
{

constexpr long secondsPerDay = 24L * 60 * 60;

template <auto function>
struct Release {
    template <typename T>
    void operator()(T* object) const
    {
        function(object);
    }
};
using Key = std::unique_ptr<EVP_PKEY, Release<EVP_PKEY_free>>;
using Certificate = std::unique_ptr<X509, Release<X509_free>>;
using Extension = std::unique_ptr<X509_EXTENSION, Release<X509_EXTENSION_free>>;
using Memory = std::unique_ptr<BIO, Release<BIO_free>>;

Key newKey()
{
    return Key(EVP_EC_gen("P-256"));
}

QByteArray contents(const Memory& memory)
{
    BUF_MEM* buffer = nullptr;
    BIO_get_mem_ptr(memory.get(), &buffer);
    return {buffer->data, static_cast<int>(buffer->length)};
}

QByteArray toPem(X509* certificate)
{
    const Memory memory(BIO_new(BIO_s_mem()));
    PEM_write_bio_X509(memory.get(), certificate);
    return contents(memory);
}

QByteArray toPem(EVP_PKEY* key)
{
    const Memory memory(BIO_new(BIO_s_mem()));
    // The traditional form: the one that QSslKey is told to expect by QSsl::Ec.
    PEM_write_bio_PrivateKey_traditional(memory.get(), key, nullptr, nullptr, 0, nullptr, nullptr);
    return contents(memory);
}

/// An unsigned certificate with what all of them share. Days count from now.
Certificate newCertificate(const QByteArray& commonName, EVP_PKEY* key, int fromDay, int toDay)
{
    Certificate certificate(X509_new());
    X509_set_version(certificate.get(), X509_VERSION_3);
    std::uint32_t serial = 0;
    RAND_bytes(reinterpret_cast<unsigned char*>(&serial), sizeof(serial));
    ASN1_INTEGER_set_uint64(X509_get_serialNumber(certificate.get()), serial);
    X509_gmtime_adj(X509_getm_notBefore(certificate.get()), fromDay * secondsPerDay);
    X509_gmtime_adj(X509_getm_notAfter(certificate.get()), toDay * secondsPerDay);
    X509_NAME_add_entry_by_txt(X509_get_subject_name(certificate.get()), "CN", MBSTRING_UTF8,
                               reinterpret_cast<const unsigned char*>(commonName.constData()), -1, -1, 0);
    X509_set_pubkey(certificate.get(), key);
    return certificate;
}

void addExtension(X509* certificate, int kind, const QByteArray& value)
{
    const Extension extension(X509V3_EXT_conf_nid(nullptr, nullptr, kind, value.constData()));
    X509_add_ext(certificate, extension.get(), -1);
}

} // namespace

class TestCertificates::Authority
{
public:
    Authority() : m_key(newKey()), m_certificate(newCertificate("Test authority", m_key.get(), -30, 30))
    {
        X509_set_issuer_name(m_certificate.get(), X509_get_subject_name(m_certificate.get()));
        addExtension(m_certificate.get(), NID_basic_constraints, "critical,CA:TRUE");
        addExtension(m_certificate.get(), NID_key_usage, "critical,keyCertSign");
        X509_sign(m_certificate.get(), m_key.get(), EVP_sha256());
    }

    ServerIdentity issue(const QString& hostName, int fromDay, int toDay) const
    {
        const Key key = newKey();
        const Certificate certificate = newCertificate(hostName.toUtf8(), key.get(), fromDay, toDay);
        X509_set_issuer_name(certificate.get(), X509_get_subject_name(m_certificate.get()));
        addExtension(certificate.get(), NID_subject_alt_name, "DNS:" + hostName.toUtf8());
        addExtension(certificate.get(), NID_ext_key_usage, "serverAuth");
        X509_sign(certificate.get(), m_key.get(), EVP_sha256());
        return {QSslCertificate(toPem(certificate.get())), QSslKey(toPem(key.get()), QSsl::Ec)};
    }

    QByteArray pem() const { return toPem(m_certificate.get()); }

private:
    Key m_key;
    Certificate m_certificate;
};

TestCertificates::TestCertificates(const QString& hostName)
    : m_hostName(hostName), m_authority(std::make_unique<Authority>())
{
    QFile file(authorityFile());
    if (!file.open(QIODevice::WriteOnly)) {
        qCritical("Cannot write the authority's certificate: %s", qPrintable(file.errorString()));
    }
    file.write(m_authority->pem());
}

TestCertificates::~TestCertificates()
{
    if (m_before) {
        QSslConfiguration::setDefaultConfiguration(*m_before);
    }
}

ServerIdentity TestCertificates::good() const
{
    return m_authority->issue(m_hostName, -1, 1);
}

ServerIdentity TestCertificates::untrusted() const
{
    return Authority().issue(m_hostName, -1, 1);
}

ServerIdentity TestCertificates::expired() const
{
    return m_authority->issue(m_hostName, -2, -1);
}

ServerIdentity TestCertificates::wrongName() const
{
    return m_authority->issue("elsewhere.test", -1, 1);
}

void TestCertificates::trust()
{
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    if (!m_before) {
        m_before = std::make_unique<QSslConfiguration>(configuration);
    }
    configuration.addCaCertificate(authority());
    QSslConfiguration::setDefaultConfiguration(configuration);
}

QSslCertificate TestCertificates::authority() const
{
    return QSslCertificate(m_authority->pem());
}

QString TestCertificates::authorityFile() const
{
    return m_folder.filePath("authority.pem");
}

} // namespace test
