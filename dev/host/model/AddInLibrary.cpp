#include "dev/host/model/AddInLibrary.h"

#include "dev/host/model/HostText.h"
#include "dev/host/model/LoadedFiles.h"

namespace devhost
{

AddInLibrary::AddInLibrary(const QString& file) : m_library(file)
{
}

AddInLibrary::~AddInLibrary()
{
    unload();
}

bool AddInLibrary::load()
{
    if (isLoaded())
        return true;
    if (!m_library.load()) {
        m_errorString = m_library.errorString();
        return false;
    }
    m_connect = reinterpret_cast<Connect>(resolve("connectToPlotvane"));
    m_disconnect = reinterpret_cast<Disconnect>(resolve("disconnectFromPlotvane"));
    m_hasSigned = reinterpret_cast<HasSigned>(resolve("HasSignedByPlotvane"));
    const bool complete = m_connect != nullptr && m_disconnect != nullptr && m_hasSigned != nullptr;
    if (!complete)
        unload();
    return complete;
}

QFunctionPointer AddInLibrary::resolve(const char* name)
{
    const QFunctionPointer function = m_library.resolve(name);
    if (function == nullptr)
        m_errorString = QString("%1 has no entry point %2").arg(m_library.fileName(), name);
    return function;
}

bool AddInLibrary::connect(pvApplication_c* application)
{
    return m_connect(0, application);
}

bool AddInLibrary::disconnect()
{
    return m_disconnect();
}

QString AddInLibrary::identifier() const
{
    pvString identifier;
    m_hasSigned(&identifier, nullptr, nullptr, nullptr);
    return toQString(identifier);
}

bool AddInLibrary::unload()
{
    forgetEntryPoints();
    if (m_library.isLoaded())
        m_library.unload();
    return !isMapped();
}

bool AddInLibrary::isMapped() const
{
    return isFileLoaded(m_library.fileName());
}

void AddInLibrary::forgetEntryPoints()
{
    m_connect = nullptr;
    m_disconnect = nullptr;
    m_hasSigned = nullptr;
}

} // namespace devhost
