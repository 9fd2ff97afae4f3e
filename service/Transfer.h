#pragma once

#include <QByteArray>
#include <QtGlobal>

class QNetworkReply;
class QNetworkRequest;
class QObject;
class QUrl;

// The one place that makes network managers. Each transfer has a manager of its own, without a parent, so
// that the reply survives an asker that goes while it is being delivered. Manager and asker are tied by Qt's
// code alone, which is there after the add-in has been unloaded: the manager, and with it the reply, goes
// through the event loop once the asker is destroyed. What is of the add-in goes with the asker.
//
// The end of a transfer comes through the event loop, however it ends. The asker's slot takes the body with
// takeBody(), or, of a reply that it has read as it came, only releases it.

/// Posts a body.
/// @param request address and headers.
/// @param maximumBytes what the reply may bring; one that brings more is ended there. To its asker it is a
///        failed one without a body. (Of replies with status 401 or 407 Qt tells nothing before they are
///        complete, nor of a reply's header lines: these cannot be ended.)
/// @param asker receives the reply; not owned.
/// @param finishedSlot SLOT() of the asker that takes a QNetworkReply*, or nothing.
/// @return the reply under way, owned by its manager.
QNetworkReply* postTransfer(const QNetworkRequest& request, const QByteArray& body, qint64 maximumBytes,
                            QObject* asker, const char* finishedSlot);

/// Fetches an address; otherwise as postTransfer(). An asker that wants to read the reply as it comes
/// connects to its readyRead(), which is not heard again once the reply has been ended. One that runs an
/// event loop at the end, in which the reply may go, connects to the reply's finished() and gives no slot
/// here: the manager looks at the reply once more after its own signal.
QNetworkReply* getTransfer(const QUrl& url, qint64 maximumBytes, QObject* asker, const char* finishedSlot);

/// Reads what has come since the last reading. Only what is read by this counts towards the bound.
/// @return the bytes; none of a reply that was ended.
QByteArray readTransfer(QNetworkReply* reply);

/// Reads what has come as readTransfer() does, and releases the transfer.
QByteArray takeBody(QNetworkReply* reply);

/// Arranges that a reply and its manager go once control is back in the event loop.
/// @param reply may be null.
void releaseTransfer(QNetworkReply* reply);

/// Takes a transfer that is still under way back: nobody hears of it any more, and it goes as above.
/// @param reply may be null.
void dropTransfer(QNetworkReply* reply);
