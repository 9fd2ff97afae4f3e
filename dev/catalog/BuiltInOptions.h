#pragma once

#include "dev/catalog/CatalogServer.h"

namespace devcatalog
{

/// @return the person who can log in to a development catalog.
UserAccount demoAccount();

/// @return what serves the add-in of this build: the service host it was built for, at that host's own port,
/// its service account, and the demo account.
CatalogServerOptions builtInOptions();

} // namespace devcatalog
