#include "service/PictureTask.h"

#include "service/Picture.h"

PictureTask::PictureTask(const QByteArray& bytes, const QSize& bound) : m_bytes(bytes), m_bound(bound)
{
}

void PictureTask::run()
{
    emit decoded(imageFromBytes(m_bytes, m_bound));
}
