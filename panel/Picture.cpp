#include "panel/Picture.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>

namespace
{

constexpr qint64 MaximumPixels = 16'000'000;
/// Width and height of what is kept: more than any pane shows, and few megabytes for each of many rows.
constexpr QSize Kept(1024, 1024);

} // namespace

QPixmap pictureFromBytes(const QByteArray& bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);

    // Most formats tell their size before anything is decoded; one that does not is not trusted.
    const QSize size = reader.size();
    if (reader.format().startsWith("svg") || !size.isValid() ||
        static_cast<qint64>(size.width()) * size.height() > MaximumPixels)
        return QPixmap();
    if (size.boundedTo(Kept) != size)
        reader.setScaledSize(size.scaled(Kept, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
    return QPixmap::fromImage(reader.read());
}
