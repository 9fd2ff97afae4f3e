#include "panel/DownloadedFile.h"

#include <QDir>
#include <QUrl>

int g_downloadCounter = 0;

namespace
{

/// Control characters as well: a zero cuts the name that a file is opened by, and keeps it from being
/// removed.
bool endsFolder(QChar character)
{
    return character < QLatin1Char(' ') || QLatin1String("/\\:").contains(character);
}

} // namespace

DownloadedFile::DownloadedFile(const QString& name) : m_file(QDir::current().absoluteFilePath(name))
{
    m_file.open(QIODevice::ReadWrite);
}

DownloadedFile::~DownloadedFile()
{
    if (!m_file.isOpen())
        return;
    m_file.close();
    QFile::remove(path()); // the object's own remove() gives up where closing fails, as on a full disk
}

QString fileNameOf(const QString& address)
{
    const QString path = QUrl(address).path();
    int start = path.size();
    while (start > 0 && !endsFolder(path[start - 1]))
        --start;
    const QString name = path.mid(start);
    return name.isEmpty() ? QString(QLatin1String("index.html")) : name;
}

QString numberedFileName(const QString& fileName, int counter)
{
    QString name = fileName;
    name.remove(QLatin1String(".dwg"));
    return name + QString::number(counter) + QLatin1String(".dwg");
}
