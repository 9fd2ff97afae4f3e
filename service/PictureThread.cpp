#include "service/PictureThread.h"

#include "service/PictureTask.h"

std::shared_ptr<PictureThread> PictureThread::shared()
{
    static std::weak_ptr<PictureThread> present;
    std::shared_ptr<PictureThread> thread = present.lock();
    if (!thread) {
        thread = std::make_shared<PictureThread>();
        present = thread;
    }
    return thread;
}

PictureThread::PictureThread()
{
    m_pool.setMaxThreadCount(1);
}

PictureThread::~PictureThread()
{
    m_pool.clear();
}

void PictureThread::decode(const QByteArray& bytes, const QSize& bound, QObject* asker, const char* imageSlot)
{
    auto* task = new PictureTask(bytes, bound); // the pool deletes it
    QObject::connect(task, SIGNAL(decoded(const QImage&)), asker, imageSlot);
    m_pool.start(task);
}
