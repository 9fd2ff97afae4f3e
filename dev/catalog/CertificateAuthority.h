#pragma once

#include "dev/catalog/https/ServerIdentity.h"

#include <ctime>
#include <filesystem>
#include <string>

namespace devcatalog
{

/// The development catalog's own certificate authority. It is made at first use and kept in a folder, so that
/// whoever trusts it once need not do so again. Server certificates are issued in memory at each start and
/// never stored: they always fit the host's name and the day.
class CertificateAuthority
{
public:
    /// Opens the authority kept in a folder; makes a new one when there is none, or when it is damaged or
    /// would end before a certificate that it issues today.
    /// @param folder is created where needed; the private key in it is readable by its owner only.
    /// @param now the day to judge by.
    /// @throws std::runtime_error when the folder or its files cannot be written.
    explicit CertificateAuthority(std::filesystem::path folder, std::time_t now = std::time(nullptr));

    /// The authority's own certificate in PEM form, for clients to trust.
    std::filesystem::path caFile() const;

    /// Issues a certificate, valid for a year, for a host and for this machine's own names.
    /// @param hostName a name or number, without port or brackets.
    /// @throws std::runtime_error when the name cannot stand in a certificate.
    ServerIdentity issue(const std::string& hostName) const;

private:
    std::filesystem::path keyFile() const;
    void create() const;

    std::filesystem::path m_folder;
    std::time_t m_now;
};

} // namespace devcatalog
