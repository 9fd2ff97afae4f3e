#pragma once

#include "service/Picture.h"

#include <QThreadPool>

#include <memory>

class QObject;

/// Decodes pictures beside the user interface, one after the other, so that a page of them, or one that takes
/// long, does not hold the host up.
class PictureThread
{
public:
    /// @return the one there is. Kept by the pages that want pictures: it goes with the last of them,
    ///         and thereby before the add-in is unloaded.
    static std::shared_ptr<PictureThread> shared();

    PictureThread();
    /// Waits for the picture that is being decoded; the others are not decoded any more.
    ~PictureThread();

    /// @param bytes, bound as in imageFromBytes().
    /// @param asker receives the picture through the event loop; not owned. Pictures come in the order of the
    /// calls.
    /// @param imageSlot SLOT() of the asker that takes a const QImage&, which is null when the bytes are no
    /// picture.
    void decode(const QByteArray& bytes, const QSize& bound, QObject* asker, const char* imageSlot);

private:
    QThreadPool m_pool;
};
