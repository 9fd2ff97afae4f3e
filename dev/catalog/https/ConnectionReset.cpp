#include "dev/catalog/https/ConnectionReset.h"

#include <QAbstractSocket>

#ifdef Q_OS_WIN
#include <winsock2.h>
#else
#include <sys/socket.h>
#endif

namespace devcatalog
{

void resetConnection(QAbstractSocket& socket)
{
    // Closing with a linger time of zero is what makes every socket layer send a reset.
    linger now{};
    now.l_onoff = 1;
    now.l_linger = 0;
#ifdef Q_OS_WIN
    const auto handle = static_cast<SOCKET>(socket.socketDescriptor());
#else
    const auto handle = static_cast<int>(socket.socketDescriptor());
#endif
    ::setsockopt(handle, SOL_SOCKET, SO_LINGER, reinterpret_cast<const char*>(&now), sizeof(now));
    socket.abort();
}

} // namespace devcatalog
