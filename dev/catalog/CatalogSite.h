#pragma once

#include "dev/catalog/FileCache.h"
#include "dev/catalog/https/HttpReply.h"
#include "dev/catalog/parts/PartCatalog.h"

#include <cstddef>
#include <deque>
#include <mutex>
#include <string>

namespace devcatalog
{

/// What the catalog serves to a plain GET: pictures of the parts, drawings that were asked for, and the two
/// web pages that clients link to. Any thread may use it.
class CatalogSite
{
public:
    /// The width and height of a picture in pixels.
    static constexpr int ThumbnailSize = 256;

    /// @param catalog is borrowed.
    explicit CatalogSite(const PartCatalog& catalog);

    /// The address of a part's picture, relative to the site and without a leading slash.
    /// @param part one of the catalog's own.
    std::string thumbnailPath(const Part& part) const;

    /// Makes a drawing and keeps it for download; the oldest of many addresses goes.
    /// @param part names the file.
    /// @param view wire name.
    /// @return its address, relative to the site and without a leading slash; empty when the part has no such
    /// view.
    std::string addDrawing(const Part& part, const Configuration& configuration, const std::string& view);

    /// @param path begins with "/"; query and fragment are gone.
    /// @return the file with status 200; a page that says so with status 404 when there is none.
    HttpReply get(const std::string& path);

private:
    static constexpr std::size_t MaximumDrawings = 64;
    static constexpr std::size_t MaximumKeptBytes = std::size_t{64} << 20U;

    struct Download {
        std::string path;
        FileCache::File dwg;
    };

    HttpReply thumbnail(const std::string& name);
    HttpReply drawing(const std::string& path);

    const PartCatalog& m_catalog;
    FileCache m_files; ///< pictures by their names, and drawings
    std::mutex m_mutex;
    std::deque<Download> m_downloads; ///< newest first
};

} // namespace devcatalog
