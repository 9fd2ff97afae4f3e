#include "dev/host/window/CommandIcons.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QPixmap>

namespace devhost
{

QIcon commandIcon(const QString& command, const QColor& line)
{
    QFile file(QString(":/devhost/icons/%1.svg").arg(command.toLower()));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QByteArray svg = file.readAll();
    svg.replace("currentColor", line.name().toLatin1());

    QIcon icon;
    for (const int side : {16, 24, 32, 48, 64}) {
        QBuffer buffer(&svg);
        QImageReader reader(&buffer, "svg");
        reader.setScaledSize({side, side});
        icon.addPixmap(QPixmap::fromImageReader(&reader));
    }
    return icon;
}

} // namespace devhost
