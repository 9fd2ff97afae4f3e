#include "service/Picture.h"

#include <QBuffer>
#include <QImageReader>
#include <QtEndian>

#include <algorithm>

namespace
{

constexpr qint64 MaximumPixels = 16'000'000;
/// Scans of a JPEG: real ones have about ten, and each goes over all of the picture.
constexpr int MaximumScans = 32;

/// The formats of pictures on web sites. Others tell a size that is not the one they decode to, do not show
/// where their data ends, or can ask for any amount of work.
bool isWebFormat(const QByteArray& format)
{
    return format == "png" || format == "jpeg" || format == "gif" || format == "bmp";
}

/// A PNG without what Qt reads besides the picture: texts, which a few bytes can make gigabytes of.
/// Chunks: a length, a type, the data, a checksum (W3C PNG, 5.3); critical ones have a capital first letter.
QByteArray withoutTexts(const QByteArray& png)
{
    constexpr qint64 signature = 8;
    constexpr qint64 lengthAndType = 8;
    constexpr qint64 checksum = 4;

    QByteArray picture = png.left(signature);
    qint64 next = signature;
    while (next + lengthAndType <= png.size()) {
        const auto length = qFromBigEndian<quint32>(png.constData() + next);
        const char* const type = png.constData() + next + 4;
        const qint64 size = std::min<qint64>(lengthAndType + length + checksum, png.size() - next);
        const bool critical = (*type & 0x20) == 0;
        if (critical || qstrncmp(type, "tRNS", 4) == 0)
            picture.append(png.constData() + next, static_cast<int>(size));
        next += size;
    }
    return picture;
}

/// Of a cut JPEG Qt shows what there is. The end of the image (FF D9) stands behind the start of its
/// last scan (FF DA), and neither can stand in a scan's data (ITU-T T.81, B.1.1).
bool isWithinJpegLimits(const QByteArray& bytes)
{
    const QByteArray startOfScan("\xFF\xDA");
    return bytes.lastIndexOf("\xFF\xD9") > bytes.lastIndexOf(startOfScan) &&
           bytes.count(startOfScan) <= MaximumScans;
}

/// Of a cut BMP Qt shows what there is, too. The file's length follows the signature
/// (BITMAPFILEHEADER).
bool isWholeBmp(const QByteArray& bytes)
{
    return bytes.size() >= 6 &&
           static_cast<quint32>(bytes.size()) >= qFromLittleEndian<quint32>(bytes.constData() + 2);
}

/// Whether what the format leaves open is in order; Qt sees to the rest.
bool isAcceptable(const QByteArray& format, const QByteArray& bytes)
{
    return isWebFormat(format) && (format != "jpeg" || isWithinJpegLimits(bytes)) &&
           (format != "bmp" || isWholeBmp(bytes));
}

} // namespace

QImage imageFromBytes(const QByteArray& bytes, const QSize& bound)
{
    QBuffer buffer;
    buffer.setData(bytes.startsWith("\x89PNG") ? withoutTexts(bytes) : bytes);
    buffer.open(QIODevice::ReadOnly);
    const QByteArray format = QImageReader::imageFormat(&buffer);
    if (!isAcceptable(format, bytes))
        return QImage();
    QImageReader reader(&buffer, format);

    // These formats tell their size before anything is decoded.
    const QSize stated = reader.size();
    const qint64 height = qAbs<qint64>(stated.height()); // negative for a BMP that begins at its top
    if (stated.width() <= 0 || height == 0 || stated.width() * height > MaximumPixels)
        return QImage();
    const QSize size(stated.width(), static_cast<int>(height));
    if (size.boundedTo(bound) != size)
        reader.setScaledSize(size.scaled(bound, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
    return reader.read();
}
