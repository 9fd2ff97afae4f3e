#include "dev/host/model/LoadedFiles.h"

#include <QDir>

#include <windows.h>

namespace devhost
{

bool isFileLoaded(const QString& file)
{
    return GetModuleHandleW(QDir::toNativeSeparators(file).toStdWString().c_str()) != nullptr;
}

} // namespace devhost
