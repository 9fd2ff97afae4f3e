#pragma once

#include <cstddef>
#include <functional>
#include <future>
#include <list>
#include <memory>
#include <mutex>
#include <string>

namespace devcatalog
{

/// Keeps files that take a while to make. Whoever asks first makes the file, in the own thread; who asks for
/// the same meanwhile waits for it, and nobody waits for another one. Any thread may use it.
class FileCache
{
public:
    using File = std::shared_ptr<const std::string>;

    /// @param maximumBytes the files kept are no more than this in all: those not asked for the longest go.
    explicit FileCache(std::size_t maximumBytes) : m_maximumBytes(maximumBytes) {}

    /// @param make makes the file; what it throws reaches all who wait, and the next asker tries again.
    File get(const std::string& key, const std::function<std::string()>& make);

private:
    struct Entry {
        std::string key;
        std::shared_future<File> file;
        std::size_t size; ///< of key and file in bytes; 0 while the file is being made, when the entry stays
    };
    using Entries = std::list<Entry>;

    void settle(Entries::iterator entry);

    const std::size_t m_maximumBytes;
    std::mutex m_mutex; ///< guards what follows
    Entries m_entries;  ///< last asked for first
    std::size_t m_bytes = 0;
};

} // namespace devcatalog
