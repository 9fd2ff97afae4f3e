#pragma once

class QNetworkReply;
class QObject;
class QString;

/// Fetches a picture with a plain GET on a network manager of its own. The reply comes through the event
/// loop; its slot takes the body with takeBody(). Asker and manager go together. A reply of more than 32
/// million bytes is ended there.
/// @param url as it stands.
/// @param asker receives the reply; not owned.
/// @param replySlot SLOT() of the asker that takes a QNetworkReply*.
void requestPicture(const QString& url, QObject* asker, const char* replySlot);
