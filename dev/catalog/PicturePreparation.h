#pragma once

#include "dev/catalog/parts/PartCatalog.h"

#include <atomic>
#include <functional>
#include <thread>

namespace devcatalog
{

/// Makes the parts' pictures in a thread of its own before anyone asks for them, so that a first search need
/// not wait for the modelling kernel. While requests are answered it leaves the processors to them. The first
/// page of each family comes before the second ones.
class PicturePreparation
{
public:
    /// @param catalog,requests are borrowed.
    /// @param requests number of those being answered.
    /// @param make makes one part's picture; what it throws is left to whoever asks for this picture.
    PicturePreparation(const PartCatalog& catalog, const std::atomic<int>& requests,
                       std::function<void(const Part& part)> make);

    /// Stops after the picture being made.
    ~PicturePreparation();
    PicturePreparation(const PicturePreparation&) = delete;
    PicturePreparation& operator=(const PicturePreparation&) = delete;

private:
    void run(const PartCatalog& catalog) const;
    void makeWhenIdle(const Part& part) const;

    const std::atomic<int>& m_requests;
    const std::function<void(const Part& part)> m_make;
    std::atomic<bool> m_stopped = false;
    std::thread m_thread; ///< begins when the others are there
};

} // namespace devcatalog
