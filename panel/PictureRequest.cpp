#include "panel/PictureRequest.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QUrl>

void requestPicture(const QString& url, QObject* asker, const char* replySlot)
{
    auto* manager = new QNetworkAccessManager;
    QObject::connect(manager, SIGNAL(finished(QNetworkReply*)), asker, replySlot);
    QObject::connect(asker, SIGNAL(destroyed()), manager, SLOT(deleteLater()));
    manager->get(QNetworkRequest(QUrl(url)));
}
