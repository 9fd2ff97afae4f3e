#pragma once

#include <QString>

// Values of the process: they outlive pages, panes and a disconnect, and end with the library. All of them
// are read and written on the host's user-interface thread.

/// Key that every request to the external endpoint carries. Starts empty. Written by DataStorage::GetAPIKey;
/// read by the senders of those requests, and by the results page before it searches.
extern QString ApiKey;

/// Token of the logged-in user; empty means not logged in. Starts empty. Written by
/// DataStorage::SetUserToken; read by the detail page before and in a download request.
extern QString UserToken;

/// Term of the last search. Starts empty. Written by the main panel; read by the results page.
extern QString SearchTerm;

/// Number of the results page last shown, as decimal text. Starts at "1" and is never reset: a new search
/// starts at the page last shown. Written and read by the results page.
extern QString CurrentPageNumber;
