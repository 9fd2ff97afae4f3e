#include "dev/catalog/CertificateAuthority.h"

#include "dev/catalog/RandomText.h"

#include <openssl/bio.h>
#include <openssl/ec.h>
#include <openssl/err.h>
#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/rand.h>
#include <openssl/x509.h>
#include <openssl/x509v3.h>

#include <array>
#include <fstream>
#include <iterator>
#include <memory>
#include <stdexcept>
#include <system_error>
#include <utility>
#include <vector>

namespace fs = std::filesystem;

namespace devcatalog
{

namespace
{

constexpr long Day = 24L * 60 * 60;
constexpr long AuthorityLifetime = 3650 * Day;
constexpr long ServerLifetime = 365 * Day;

struct OpenSslDeleter {
    void operator()(X509* certificate) const { X509_free(certificate); }
    void operator()(EVP_PKEY* key) const { EVP_PKEY_free(key); }
};
using CertificatePointer = std::unique_ptr<X509, OpenSslDeleter>;
using KeyPointer = std::unique_ptr<EVP_PKEY, OpenSslDeleter>;

/// A certificate with its private key.
struct Identity {
    CertificatePointer certificate;
    KeyPointer key;
};

struct BioDeleter {
    void operator()(BIO* bio) const { BIO_free(bio); }
};
using BioPointer = std::unique_ptr<BIO, BioDeleter>;

/// An extension of a certificate: its OpenSSL number and its value in OpenSSL's configuration syntax.
using Extension = std::pair<int, std::string>;

void require(bool succeeded, const std::string& step)
{
    if (!succeeded) {
        std::array<char, 256> reason{};
        ERR_error_string_n(ERR_get_error(), reason.data(), reason.size());
        throw std::runtime_error("Certificates: cannot " + step + ": " + reason.data());
    }
}

KeyPointer makeKey()
{
    const std::unique_ptr<EVP_PKEY_CTX, decltype(&EVP_PKEY_CTX_free)> context(
        EVP_PKEY_CTX_new_id(EVP_PKEY_EC, nullptr), &EVP_PKEY_CTX_free);
    EVP_PKEY* key = nullptr;
    require(context && EVP_PKEY_keygen_init(context.get()) == 1 &&
                EVP_PKEY_CTX_set_ec_paramgen_curve_nid(context.get(), NID_X9_62_prime256v1) == 1 &&
                EVP_PKEY_keygen(context.get(), &key) == 1,
            "make a key");
    return KeyPointer(key);
}

void setRandomSerial(X509* certificate)
{
    std::array<unsigned char, 16> bytes{};
    require(RAND_bytes(bytes.data(), static_cast<int>(bytes.size())) == 1, "draw a serial number");
    bytes[0] =
        static_cast<unsigned char>((bytes[0] & 0x3fU) | 0x40U); // positive, and always of the same length
    const std::unique_ptr<BIGNUM, decltype(&BN_free)> number(
        BN_bin2bn(bytes.data(), static_cast<int>(bytes.size()), nullptr), &BN_free);
    require(number && BN_to_ASN1_INTEGER(number.get(), X509_get_serialNumber(certificate)) != nullptr,
            "set a serial number");
}

void addExtension(X509* certificate, X509* issuer, const Extension& extension)
{
    X509V3_CTX context{};
    X509V3_set_ctx(&context, issuer, certificate, nullptr, nullptr, 0);
    const std::unique_ptr<X509_EXTENSION, decltype(&X509_EXTENSION_free)> made(
        X509V3_EXT_conf_nid(nullptr, &context, extension.first, extension.second.c_str()),
        &X509_EXTENSION_free);
    require(made && X509_add_ext(certificate, made.get(), -1) == 1, "write '" + extension.second + "'");
}

/// @param issuer null for a certificate that signs itself.
CertificatePointer makeCertificate(const std::string& name, EVP_PKEY* key, std::time_t now, long lifetime,
                                   const Identity* issuer, const std::vector<Extension>& extensions)
{
    CertificatePointer certificate(X509_new());
    X509* const raw = certificate.get();
    require(raw != nullptr && X509_set_version(raw, 2) == 1, "make a certificate");
    setRandomSerial(raw);
    // A Day back: clocks of two machines seldom agree.
    require(X509_time_adj_ex(X509_getm_notBefore(raw), -1, 0, &now) != nullptr &&
                X509_time_adj_ex(X509_getm_notAfter(raw), 0, lifetime, &now) != nullptr,
            "date a certificate");

    X509_NAME* const subject = X509_get_subject_name(raw);
    const auto* const text = reinterpret_cast<const unsigned char*>(name.c_str());
    require(X509_NAME_add_entry_by_txt(subject, "CN", MBSTRING_UTF8, text, -1, -1, 0) == 1,
            "name a certificate");
    X509* const issuerCertificate = issuer ? issuer->certificate.get() : raw;
    require(X509_set_issuer_name(raw, X509_get_subject_name(issuerCertificate)) == 1 &&
                X509_set_pubkey(raw, key) == 1,
            "fill a certificate");
    for (const Extension& extension : extensions)
        addExtension(raw, issuerCertificate, extension);
    require(X509_sign(raw, issuer ? issuer->key.get() : key, EVP_sha256()) != 0, "sign a certificate");
    return certificate;
}

Identity makeAuthority(std::time_t now)
{
    KeyPointer key = makeKey();
    CertificatePointer certificate = makeCertificate("PartHarbor development catalog authority", key.get(),
                                                     now, AuthorityLifetime, nullptr,
                                                     {{NID_basic_constraints, "critical,CA:TRUE,pathlen:0"},
                                                      {NID_key_usage, "critical,keyCertSign,cRLSign"},
                                                      {NID_subject_key_identifier, "hash"}});
    return {std::move(certificate), std::move(key)};
}

std::string contents(BIO* bio)
{
    char* data = nullptr;
    const long size = BIO_get_mem_data(bio, &data);
    return {data, static_cast<std::size_t>(size)};
}

std::string certificatePem(const Identity& identity)
{
    const BioPointer bio(BIO_new(BIO_s_mem()));
    require(bio && PEM_write_bio_X509(bio.get(), identity.certificate.get()) == 1, "write a certificate");
    return contents(bio.get());
}

std::string keyPem(const Identity& identity)
{
    const BioPointer bio(BIO_new(BIO_s_mem()));
    require(bio && PEM_write_bio_PrivateKey(bio.get(), identity.key.get(), nullptr, nullptr, 0, nullptr,
                                            nullptr) == 1,
            "write a key");
    return contents(bio.get());
}

/// Reads a certificate and its key; an identity without either when the text does not hold a fitting pair.
Identity parseIdentity(const std::string& pem)
{
    const BioPointer bio(BIO_new_mem_buf(pem.data(), static_cast<int>(pem.size())));
    CertificatePointer certificate(PEM_read_bio_X509(bio.get(), nullptr, nullptr, nullptr));
    KeyPointer key(PEM_read_bio_PrivateKey(bio.get(), nullptr, nullptr, nullptr));
    const bool fit = certificate && key && X509_check_private_key(certificate.get(), key.get()) == 1;
    ERR_clear_error();
    return fit ? Identity{std::move(certificate), std::move(key)} : Identity{};
}

/// Whether the authority outlives a certificate that it would issue now.
bool isUsable(const Identity& identity, std::time_t now)
{
    if (!identity.certificate)
        return false;
    std::time_t lastNeeded = now + ServerLifetime;
    return X509_cmp_time(X509_get0_notBefore(identity.certificate.get()), &now) < 0 &&
           X509_cmp_time(X509_get0_notAfter(identity.certificate.get()), &lastNeeded) > 0;
}

std::string readFile(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::runtime_error cannotWrite(const fs::path& path)
{
    return std::runtime_error("Certificates: cannot write " + path.string() + ".");
}

Identity requireIdentity(const fs::path& path)
{
    Identity identity = parseIdentity(readFile(path));
    if (!identity.certificate)
        throw std::runtime_error("Certificates: cannot use " + path.string() + ".");
    return identity;
}

/// Writes a file under a name of its own beside the wanted one, to be moved there whole.
fs::path writeBeside(const fs::path& path, const std::string& text, fs::perms permissions)
{
    fs::path temporary = path;
    temporary += "." + randomHex(16);
    std::ofstream file(temporary, std::ios::binary);
    fs::permissions(temporary, permissions); // while it is still empty
    file << text;
    file.close();
    if (!file) {
        std::error_code ignored;
        fs::remove(temporary, ignored);
        throw cannotWrite(path);
    }
    return temporary;
}

std::string serverNames(const std::string& hostName)
{
    const std::unique_ptr<ASN1_OCTET_STRING, decltype(&ASN1_OCTET_STRING_free)> number(
        a2i_IPADDRESS(hostName.c_str()), &ASN1_OCTET_STRING_free);
    ERR_clear_error();
    return (number ? "IP:" : "DNS:") + hostName + ",DNS:localhost,IP:127.0.0.1,IP:::1";
}

} // namespace

CertificateAuthority::CertificateAuthority(fs::path folder, std::time_t now)
    : m_folder(std::move(folder)), m_now(now)
{
    try {
        if (fs::create_directories(m_folder))
            fs::permissions(m_folder, fs::perms::owner_all);
        if (!isUsable(parseIdentity(readFile(keyFile())), m_now)) {
            fs::remove(keyFile());
            create();
        }
        const std::string pem = certificatePem(requireIdentity(keyFile()));
        if (readFile(caFile()) != pem) {
            const fs::perms readable = fs::perms::owner_read | fs::perms::owner_write |
                                       fs::perms::group_read | fs::perms::others_read;
            fs::rename(writeBeside(caFile(), pem, readable), caFile());
        }
    } catch (const fs::filesystem_error& error) {
        throw std::runtime_error("Certificates: cannot use the folder " + m_folder.string() + ": " +
                                 error.code().message() + ".");
    }
}

fs::path CertificateAuthority::caFile() const
{
    return m_folder / "ca.pem";
}

fs::path CertificateAuthority::keyFile() const
{
    return m_folder / "authority-key.pem";
}

/// Key and certificate go into one file, in one step: of several programs that start at once the first wins,
/// and the others use what it made.
void CertificateAuthority::create() const
{
    const Identity made = makeAuthority(m_now);
    const fs::path temporary = writeBeside(keyFile(), certificatePem(made) + keyPem(made),
                                           fs::perms::owner_read | fs::perms::owner_write);
    std::error_code error;
    fs::create_hard_link(temporary, keyFile(), error);
    if (error && !fs::exists(keyFile())) {
        fs::rename(temporary, keyFile()); // a file system without hard links
        return;
    }
    fs::remove(temporary);
}

ServerIdentity CertificateAuthority::issue(const std::string& hostName) const
{
    const Identity authority = requireIdentity(keyFile());
    KeyPointer key = makeKey();
    CertificatePointer certificate =
        makeCertificate(hostName.substr(0, 64), key.get(), m_now, ServerLifetime, &authority,
                        {{NID_basic_constraints, "critical,CA:FALSE"},
                         {NID_key_usage, "critical,digitalSignature"},
                         {NID_ext_key_usage, "serverAuth"},
                         {NID_subject_key_identifier, "hash"},
                         {NID_authority_key_identifier, "keyid:always"},
                         {NID_subject_alt_name, serverNames(hostName)}});
    const Identity issued{std::move(certificate), std::move(key)};
    return {QSslCertificate(QByteArray::fromStdString(certificatePem(issued))),
            QSslKey(QByteArray::fromStdString(keyPem(issued)), QSsl::Ec)};
}

} // namespace devcatalog
