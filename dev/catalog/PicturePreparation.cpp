#include "dev/catalog/PicturePreparation.h"

#include <algorithm>
#include <chrono>
#include <exception>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace devcatalog
{

namespace
{

constexpr int PageSize = 5; ///< Rows that a search shows at a time.
constexpr std::chrono::milliseconds Pause(10);

} // namespace

PicturePreparation::PicturePreparation(const PartCatalog& catalog, const std::atomic<int>& requests,
                                       std::function<void(const Part& part)> make)
    : m_requests(requests), m_make(std::move(make)), m_thread([this, &catalog] { run(catalog); })
{
}

PicturePreparation::~PicturePreparation()
{
    m_stopped = true;
    m_thread.join();
}

void PicturePreparation::run(const PartCatalog& catalog) const
{
    std::map<std::string, int> counts;
    std::vector<std::pair<int, const Part*>> paged;
    for (const Part& part : catalog.parts())
        paged.emplace_back(counts[part.family]++ / PageSize, &part);
    std::stable_sort(paged.begin(), paged.end(),
                     [](const auto& one, const auto& other) { return one.first < other.first; });
    for (const auto& [page, part] : paged)
        makeWhenIdle(*part);
}

void PicturePreparation::makeWhenIdle(const Part& part) const
{
    while (m_requests > 0 && !m_stopped)
        std::this_thread::sleep_for(Pause);
    if (m_stopped)
        return;
    try {
        m_make(part);
    } catch (const std::exception&) {
        return; // It is thrown again at whoever asks for this picture.
    }
}

} // namespace devcatalog
