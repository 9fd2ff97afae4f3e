#include "dev/host/window/DrawingFile.h"

#include "dev/host/drawing/DxfWriter.h"
#include "dev/host/window/SvgWriter.h"

#include <QFileInfo>
#include <QSaveFile>

namespace devhost
{

namespace
{

/// @return the drawing in the kind of file that the suffix stands for; nothing when it cannot be written.
QByteArray bytesOf(const PlacedBlocks& drawing, const QString& suffix)
{
    return suffix == "svg" ? writeSvg(drawing) : writeDxf(drawing);
}

} // namespace

QString saveDrawing(const PlacedBlocks& drawing, const QString& path)
{
    const auto sentence = [&](const QString& reason) {
        return QString("Cannot save %1: %2.").arg(path, reason);
    };
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (suffix != "dxf" && suffix != "svg")
        return sentence("a copy is a .dxf or a .svg file");
    const QByteArray bytes = bytesOf(drawing, suffix);
    if (bytes.isEmpty())
        return sentence("the drawing cannot be written as such a file");
    QSaveFile file(path);
    const bool isSaved =
        file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
    return isSaved ? QString() : sentence(file.errorString());
}

} // namespace devhost
