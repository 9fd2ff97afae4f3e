#include "service/SoapReply.h"

#include "common/MessageBoxes.h"
#include "service/ReplyRelease.h"
#include "service/XmlGuard.h"

#include <QFile>
#include <QNetworkReply>

namespace
{

QByteArray body(QNetworkReply* reply)
{
    return reply->isReadable() ? reply->readAll() : QByteArray(); // an aborted one is closed
}

} // namespace

SoapReply::SoapReply(QNetworkReply* reply)
    : m_text(QString::fromUtf8(body(reply))), m_document(QLatin1String("output"))
{
    releaseReply(reply);
}

bool SoapReply::open()
{
    QFile gate(QLatin1String(":/3DPH/output.xml"));
    if (!gate.open(QIODevice::ReadOnly)) {
        showCannotOpenBox(gate.fileName());
        return false;
    }
    parseXml(m_text, &m_document);
    return true;
}

QString SoapReply::result(const char* element) const
{
    return m_document.elementsByTagName(QLatin1String(element)).item(0).firstChild().nodeValue();
}
