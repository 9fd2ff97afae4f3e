#include "service/ReplyRelease.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>

void releaseReply(QNetworkReply* reply)
{
    if (reply == nullptr)
        return;
    if (QNetworkAccessManager* manager = reply->manager())
        manager->deleteLater(); // and with it the reply, its child
    else
        reply->deleteLater();
}

void dropReply(QNetworkReply* reply)
{
    if (reply == nullptr)
        return;
    reply->disconnect();
    if (QNetworkAccessManager* manager = reply->manager())
        QObject::disconnect(manager, SIGNAL(finished(QNetworkReply*)), nullptr, nullptr);
    reply->abort();
    releaseReply(reply);
}
