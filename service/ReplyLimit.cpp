#include "service/ReplyLimit.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>

ReplyLimit::ReplyLimit(QNetworkReply* reply, qint64 maximum, QObject* asker)
    : QObject(asker), m_reply(reply), m_maximum(maximum)
{
    connect(reply, SIGNAL(readyRead()), this, SLOT(check()));
    connect(reply->manager(), SIGNAL(destroyed()), this, SLOT(deleteLater()));
}

void ReplyLimit::check()
{
    if (m_reply->bytesAvailable() > m_maximum)
        m_reply->abort();
}
