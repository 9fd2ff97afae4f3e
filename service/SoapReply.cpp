#include "service/SoapReply.h"

#include "common/MessageBoxes.h"
#include "service/Transfer.h"
#include "service/XmlGuard.h"

#include <QFile>

SoapReply::SoapReply(QNetworkReply* reply)
    : m_text(QString::fromUtf8(takeBody(reply))), m_document(QLatin1String("output"))
{
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
