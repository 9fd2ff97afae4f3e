#pragma once

#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslKey>
#include <QString>
#include <QTemporaryDir>

#include <memory>

namespace test
{

/// What a TLS server shows and signs with. Lives in memory only.
struct ServerIdentity {
    QSslCertificate certificate;
    QSslKey key;
};

/**
 * A certificate authority and server certificates for one host name, made afresh (elliptic keys, some
 * milliseconds each). Nothing trusts the authority until trust() is called.
 */
class TestCertificates
{
public:
    /// @param hostName the name in the certificates that are good for it, without a port.
    explicit TestCertificates(const QString& hostName);
    /// Takes the trust back.
    ~TestCertificates();
    TestCertificates(const TestCertificates&) = delete;
    TestCertificates& operator=(const TestCertificates&) = delete;

    ServerIdentity good() const;      ///< signed by the authority, valid, right name
    ServerIdentity untrusted() const; ///< signed by another authority of the same name
    ServerIdentity expired() const;   ///< ended yesterday
    ServerIdentity wrongName() const; ///< for "elsewhere.test"

    /// Adds the authority to QSslConfiguration::defaultConfiguration().
    void trust();

    QSslCertificate authority() const;
    /// The authority as a PEM file, for programs that take one; gone with this object.
    QString authorityFile() const;

private:
    class Authority;

    QString m_hostName;
    std::unique_ptr<Authority> m_authority;
    QTemporaryDir m_folder;
    std::unique_ptr<QSslConfiguration> m_before; ///< set while trusted
};

} // namespace test
