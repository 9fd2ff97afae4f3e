#include "service/PictureRequest.h"

#include "service/Picture.h"
#include "service/ReplyLimit.h"
#include "service/ReplyRelease.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QUrl>

namespace
{

/// A thumbnail has some tens of thousands.
constexpr qint64 MaximumPictureBytes = 32'000'000;

} // namespace

void requestPicture(const QString& url, QObject* asker, const char* replySlot)
{
    auto* manager = new QNetworkAccessManager;
    QObject::connect(manager, SIGNAL(finished(QNetworkReply*)), asker, replySlot);
    QObject::connect(asker, SIGNAL(destroyed()), manager, SLOT(deleteLater()));
    new ReplyLimit(manager->get(QNetworkRequest(QUrl(url))), MaximumPictureBytes, asker);
}

QPixmap takePicture(QNetworkReply* reply)
{
    const QByteArray bytes = reply->isOpen() ? reply->readAll() : QByteArray(); // closed where it was ended
    releaseReply(reply);
    return pictureFromBytes(bytes);
}
