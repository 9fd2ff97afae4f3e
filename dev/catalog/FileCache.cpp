#include "dev/catalog/FileCache.h"

#include <algorithm>
#include <iterator>

namespace devcatalog
{

FileCache::File FileCache::get(const std::string& key, const std::function<std::string()>& make)
{
    std::packaged_task<File()> task([&make] { return std::make_shared<const std::string>(make()); });
    std::shared_future<File> file;
    Entries::iterator entry;
    bool isNew = false;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        entry = std::find_if(m_entries.begin(), m_entries.end(),
                             [&key](const Entry& each) { return each.key == key; });
        isNew = entry == m_entries.end();
        if (isNew)
            entry = m_entries.insert(entry, {key, task.get_future().share(), 0});
        m_entries.splice(m_entries.begin(), m_entries, entry);
        file = entry->file;
    }
    if (isNew) {
        task();
        settle(entry);
    }
    return file.get();
}

/// Counts a file that was just made, or forgets it when it could not be.
void FileCache::settle(Entries::iterator entry)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    try {
        entry->size = entry->key.size() + entry->file.get()->size();
        m_bytes += entry->size;
    } catch (...) {
        m_entries.erase(entry);
    }
    const auto isMade = [](const Entry& each) { return each.size != 0; };
    while (m_bytes > m_maximumBytes) {
        const auto oldest = std::find_if(m_entries.rbegin(), m_entries.rend(), isMade);
        m_bytes -= oldest->size;
        m_entries.erase(std::prev(oldest.base()));
    }
}

} // namespace devcatalog
