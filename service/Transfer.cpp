#include "service/Transfer.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>

namespace
{

/// Property of a reply: how many of its bytes have been read.
constexpr const char* BytesRead = "bytesRead";

/// Ends a reply that has brought too much. The network layer keeps the whole body in memory until it is read,
/// and a service may send more than there is.
struct Bound {
    QNetworkReply* reply;
    qint64 maximumBytes;

    void operator()() const
    {
        if (reply->property(BytesRead).toLongLong() + reply->bytesAvailable() <= maximumBytes)
            return;
        reply->disconnect(SIGNAL(readyRead())); // its readers come after this, when it has been finished
        reply->abort();
    }
};

QNetworkAccessManager* createManager(QObject* asker, const char* finishedSlot)
{
    auto* manager = new QNetworkAccessManager;
    if (finishedSlot != nullptr)
        QObject::connect(manager, SIGNAL(finished(QNetworkReply*)), asker, finishedSlot);
    QObject::connect(asker, SIGNAL(destroyed()), manager, SLOT(deleteLater()));
    return manager;
}

/// The connection, and what it holds, goes with the reply or the asker, whichever goes first.
QNetworkReply* bounded(QNetworkReply* reply, qint64 maximumBytes, QObject* asker)
{
    QObject::connect(reply, &QNetworkReply::readyRead, asker, Bound{reply, maximumBytes});
    return reply;
}

} // namespace

QNetworkReply* postTransfer(const QNetworkRequest& request, const QByteArray& body, qint64 maximumBytes,
                            QObject* asker, const char* finishedSlot)
{
    return bounded(createManager(asker, finishedSlot)->post(request, body), maximumBytes, asker);
}

QNetworkReply* getTransfer(const QUrl& url, qint64 maximumBytes, QObject* asker, const char* finishedSlot)
{
    return bounded(createManager(asker, finishedSlot)->get(QNetworkRequest(url)), maximumBytes, asker);
}

QByteArray readTransfer(QNetworkReply* reply)
{
    if (!reply->isReadable()) // it is closed where it was ended
        return QByteArray();
    QByteArray bytes = reply->readAll();
    reply->setProperty(BytesRead, reply->property(BytesRead).toLongLong() + bytes.size());
    return bytes;
}

QByteArray takeBody(QNetworkReply* reply)
{
    QByteArray body = readTransfer(reply);
    releaseTransfer(reply);
    return body;
}

void releaseTransfer(QNetworkReply* reply)
{
    if (reply == nullptr)
        return;
    if (QNetworkAccessManager* manager = reply->manager())
        manager->deleteLater(); // and with it the reply, its child
    else
        reply->deleteLater();
}

void dropTransfer(QNetworkReply* reply)
{
    if (reply == nullptr)
        return;
    reply->disconnect();
    if (QNetworkAccessManager* manager = reply->manager())
        QObject::disconnect(manager, SIGNAL(finished(QNetworkReply*)), nullptr, nullptr);
    reply->abort();
    releaseTransfer(reply);
}
