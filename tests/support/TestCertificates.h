#pragma once

#include "dev/catalog/https/ServerIdentity.h"

#include <QSslConfiguration>
#include <QString>
#include <QTemporaryDir>

#include <filesystem>
#include <memory>

namespace test
{

using devcatalog::ServerIdentity;

/// An authority of its own and what it issues for one host name. Nothing trusts it until trust() is called.
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
    ServerIdentity expired() const;   ///< ended a year ago
    ServerIdentity wrongName() const; ///< for "elsewhere.test"

    /// Adds the authority to QSslConfiguration::defaultConfiguration().
    void trust();

private:
    std::filesystem::path folder(const char* name) const;

    QString m_hostName;
    QTemporaryDir m_folder;
    std::filesystem::path m_authorityFile;
    std::unique_ptr<QSslConfiguration> m_before; ///< set while trusted
};

} // namespace test
