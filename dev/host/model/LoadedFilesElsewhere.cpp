#include "dev/host/model/LoadedFiles.h"

#include <QFileInfo>

#include <link.h>

namespace devhost
{

namespace
{

int isSameFile(dl_phdr_info* info, std::size_t, void* canonicalPath)
{
    const QString loaded = QFileInfo(QString::fromLocal8Bit(info->dlpi_name)).canonicalFilePath();
    return loaded == *static_cast<const QString*>(canonicalPath) ? 1 : 0;
}

} // namespace

bool isFileLoaded(const QString& file)
{
    QString canonicalPath = QFileInfo(file).canonicalFilePath();
    return !canonicalPath.isEmpty() && dl_iterate_phdr(isSameFile, &canonicalPath) != 0;
}

} // namespace devhost
