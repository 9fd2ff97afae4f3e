#include "panel/Picture.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QtEndian>

namespace
{

constexpr qint64 MaximumPixels = 16'000'000;
/// Width and height of what is kept: more than any pane shows, and few megabytes for each of many rows.
constexpr QSize Kept(1024, 1024);

/// Formats that can ask for any amount of work, or that do not show where their data ends.
bool isDistrusted(const QByteArray& format)
{
    return format.startsWith("svg") || format == "xbm";
}

/// The toolkit shows what there is of a cut picture in these two formats, and nothing of one in the others.
bool isCut(const QByteArray& format, const QByteArray& bytes)
{
    if (format == "jpeg") // the end of the image stands behind the start of its last scan (ITU-T T.81, B.1)
        return bytes.lastIndexOf("\xFF\xD9") < bytes.lastIndexOf("\xFF\xDA");
    if (format == "bmp") // BITMAPFILEHEADER: the file's length follows the signature
        return bytes.size() < 6 ||
               static_cast<quint32>(bytes.size()) < qFromLittleEndian<quint32>(bytes.constData() + 2);
    return false;
}

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
    const QByteArray format = reader.format();
    if (isDistrusted(format) || isCut(format, bytes) || !size.isValid() ||
        static_cast<qint64>(size.width()) * size.height() > MaximumPixels)
        return QPixmap();
    if (size.boundedTo(Kept) != size)
        reader.setScaledSize(size.scaled(Kept, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
    return QPixmap::fromImage(reader.read());
}
