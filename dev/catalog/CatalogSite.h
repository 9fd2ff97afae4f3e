#pragma once

#include "dev/catalog/HttpMessages.h"
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
    static constexpr int thumbnailSize = 256;

    /// @param catalog is borrowed.
    explicit CatalogSite(const PartCatalog& catalog);

    /// The address of a part's picture, relative to the site and without a leading slash.
    /// @param part one of the catalog's own.
    std::string thumbnailPath(const Part& part) const;

    /// Keeps a drawing for download; the oldest of many goes.
    /// @param part names the file.
    /// @return its address, relative to the site and without a leading slash.
    std::string addDrawing(const Part& part, std::string dwg);

    /// @param path begins with "/"; query and fragment are gone.
    /// @return the file with status 200; a page that says so with status 404 when there is none.
    HttpReply get(const std::string& path) const;

private:
    static constexpr std::size_t maxDrawings = 64;

    struct StoredDrawing {
        std::string path;
        std::string dwg;
    };

    HttpReply thumbnail(const std::string& name) const;
    HttpReply drawing(const std::string& path) const;

    const PartCatalog& m_catalog;
    mutable std::mutex m_mutex;
    std::deque<StoredDrawing> m_drawings; ///< newest first
};

} // namespace devcatalog
