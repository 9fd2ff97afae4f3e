#pragma once

class QAbstractSocket;

namespace devcatalog
{

/// Ends the connection with a TCP reset, so that the peer sees an error and not an orderly end.
/// Data not yet sent is lost.
void resetConnection(QAbstractSocket& socket);

} // namespace devcatalog
