#pragma once

#include <QByteArray>
#include <QImage>
#include <QObject>
#include <QRunnable>
#include <QSize>

/// The decoding of one picture, to be run on any thread.
class PictureTask : public QObject, public QRunnable
{
    Q_OBJECT

public:
    /// @param bytes, bound as in imageFromBytes().
    PictureTask(const QByteArray& bytes, const QSize& bound);

    void run() override;

signals:
    /// @param image the picture; null when there is none.
    void decoded(const QImage& image);

private:
    QByteArray m_bytes;
    QSize m_bound;
};
