#include "dev/catalog/CatalogSite.h"

#include "dev/catalog/RandomText.h"
#include "dev/catalog/drawings/PartDrawing.h"
#include "dev/dwg/Writer.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <string_view>
#include <utility>

namespace devcatalog
{

namespace
{

const std::string ThumbnailFolder = "Thumbnails/";
const std::string ThumbnailSuffix = ".png";
const std::string DrawingFolder = "Downloads/";

HttpReply page(int status, const std::string& title, const std::string& text)
{
    return {status, "text/html; charset=utf-8",
            "<!DOCTYPE html>\n<html lang=\"en\">\n<head><meta charset=\"utf-8\"><title>" + title +
                "</title></head>\n<body><h1>" + title + "</h1><p>" + text + "</p></body>\n</html>\n"};
}

HttpReply notFound()
{
    return page(404, "Not found", "The development catalog has nothing at this address.");
}

bool beginsWith(std::string_view text, std::string_view beginning)
{
    return text.substr(0, beginning.size()) == beginning;
}

/// A file name that every system takes, without dots. Clients put a number of their own after it, which must
/// not read as part of a size: it never ends in a digit.
std::string fileStem(const Part& part)
{
    constexpr std::size_t longest = 60;
    constexpr std::string_view digits = "0123456789";
    constexpr std::string_view safe = "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
    std::string stem;
    for (const char character : part.name)
        if (safe.find(character) != std::string_view::npos)
            stem += character;
        else if (!stem.empty() && stem.back() != '_')
            stem += '_';
    if (stem.empty())
        return part.family;
    stem = stem.substr(0, longest - 1);
    return digits.find(stem.back()) == std::string_view::npos ? stem : stem + '_';
}

} // namespace

CatalogSite::CatalogSite(const PartCatalog& catalog) : m_catalog(catalog), m_files(MaximumKeptBytes)
{
}

std::string CatalogSite::thumbnailPath(const Part& part) const
{
    return ThumbnailFolder + std::to_string(&part - m_catalog.parts().data()) + ThumbnailSuffix;
}

std::string CatalogSite::addDrawing(const Part& part, const Configuration& configuration,
                                    const std::string& view)
{
    const std::string key = part.supplier + '\n' + part.name + '\n' + configuration.name + '\n' + view;
    const FileCache::File dwg = m_files.get(key, [&] {
        const std::optional<dwg::Drawing> drawn = drawPart(part, configuration, view);
        return drawn ? dwg::writeDwg(*drawn) : std::string();
    });
    if (dwg->empty())
        return {};
    std::string path = DrawingFolder + randomHex(16) + "/" + fileStem(part) + ".dwg";
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_downloads.push_front({path, dwg});
    if (m_downloads.size() > MaximumDrawings)
        m_downloads.pop_back();
    return path;
}

HttpReply CatalogSite::get(const std::string& path)
{
    std::string file = path.substr(std::min<std::size_t>(1, path.size()));
    if (beginsWith(file, ThumbnailFolder))
        return thumbnail(file.substr(ThumbnailFolder.size()));
    if (beginsWith(file, DrawingFolder))
        return drawing(file);
    while (!file.empty() && (file.back() == '/' || file.back() == '\\'))
        file.pop_back(); // the links that clients show end in such a tail
    if (file == "Login.aspx") {
        return page(200, "Log in",
                    "This is the development catalog. It has one demo account, named in its documentation; "
                    "there is no password to be sent anew. Log in from the client.");
    }
    if (file == "Register.aspx") {
        return page(
            200, "Register",
            "This is the development catalog. Nobody can register here: use the demo account named in "
            "its documentation.");
    }
    return notFound();
}

HttpReply CatalogSite::thumbnail(const std::string& name)
{
    const std::vector<Part>& parts = m_catalog.parts();
    std::size_t index = parts.size();
    std::from_chars(name.data(), name.data() + name.size(), index);
    if (index >= parts.size() || name != std::to_string(index) + ThumbnailSuffix)
        return notFound();
    const FileCache::File picture =
        m_files.get(name, [&] { return drawThumbnail(parts[index], ThumbnailSize, ThumbnailSize); });
    return {200, "image/png", *picture};
}

HttpReply CatalogSite::drawing(const std::string& path)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto found = std::find_if(m_downloads.begin(), m_downloads.end(),
                                    [&path](const Download& download) { return download.path == path; });
    return found == m_downloads.end() ? notFound() : HttpReply{200, "image/vnd.dwg", *found->dwg};
}

} // namespace devcatalog
