#include "dev/catalog/CertificateFolder.h"

#include <cstdlib>
#include <stdexcept>
#include <string>

namespace fs = std::filesystem;

namespace devcatalog
{

namespace
{

/// @return an empty path unless the variable holds an absolute one.
fs::path pathFrom(const char* variable)
{
    const char* const value = std::getenv(variable);
    const fs::path path = value ? fs::path(value) : fs::path();
    return path.is_absolute() ? path : fs::path();
}

fs::path requireHome(const char* variable)
{
    fs::path home = pathFrom(variable);
    if (home.empty())
        throw std::runtime_error(std::string(variable) + " names no folder to keep certificates in.");
    return home;
}

fs::path userCacheFolder()
{
#if defined(_WIN32)
    return requireHome("LOCALAPPDATA");
#elif defined(__APPLE__)
    return requireHome("HOME") / "Library" / "Caches";
#else
    const fs::path configured = pathFrom("XDG_CACHE_HOME"); // XDG Base Directory: else it is ~/.cache
    return configured.empty() ? requireHome("HOME") / ".cache" : configured;
#endif
}

} // namespace

fs::path defaultCertificateFolder()
{
    return userCacheFolder() / "partharbor-devcatalog";
}

} // namespace devcatalog
