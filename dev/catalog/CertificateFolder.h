#pragma once

#include <filesystem>

namespace devcatalog
{

/// Where programs keep the development catalog's certificate authority unless told otherwise: a folder of its
/// own in the user's cache.
/// @throws std::runtime_error when the environment names no home.
std::filesystem::path defaultCertificateFolder();

} // namespace devcatalog
