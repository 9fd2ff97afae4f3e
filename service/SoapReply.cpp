#include "service/SoapReply.h"

#include "common/MessageBoxes.h"
#include "service/Transfer.h"
#include "service/XmlGuard.h"

#include <QFile>

QString takeText(QNetworkReply* reply)
{
    return QString::fromUtf8(takeBody(reply));
}

std::optional<SoapReply> SoapReply::open(const QString& text)
{
    QFile gate(QLatin1String(":/3DPH/output.xml"));
    if (gate.open(QIODevice::ReadOnly))
        return SoapReply(text);
    showCannotOpenBox(gate.fileName());
    return std::nullopt;
}

SoapReply::SoapReply(const QString& text) : m_document(QLatin1String("output"))
{
    parseXml(text, &m_document);
}

QString SoapReply::result(const char* element) const
{
    return m_document.elementsByTagName(QLatin1String(element)).item(0).firstChild().nodeValue();
}
