#pragma once

class QNetworkReply;

/// Arranges that a reply and the network manager made for it go once control is back in the event loop.
/// @param reply may be null.
void releaseReply(QNetworkReply* reply);

/// Takes a reply that is still under way back: nobody hears of it any more, and it goes as above.
/// @param reply may be null.
void dropReply(QNetworkReply* reply);
