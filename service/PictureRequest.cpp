#include "service/PictureRequest.h"

#include "service/Transfer.h"

#include <QUrl>

namespace
{

/// A thumbnail has some tens of thousands.
constexpr qint64 MaximumPictureBytes = 32'000'000;

} // namespace

void requestPicture(const QString& url, QObject* asker, const char* replySlot)
{
    getTransfer(QUrl(url), MaximumPictureBytes, asker, replySlot);
}
