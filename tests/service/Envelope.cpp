#include "tests/service/Envelope.h"

#include <QRegularExpression>
#include <QXmlStreamReader>

namespace test
{

namespace
{

const QString SoapNamespace = "http://schemas.xmlsoap.org/soap/envelope/";

/// Goes on to the next tag. @return whether it is a start tag in the given namespace.
bool atChild(QXmlStreamReader& xml, const QString& name, const QString& space)
{
    return xml.readNextStartElement() && xml.name() == name && xml.namespaceUri() == space;
}

void readOperation(QXmlStreamReader& xml, Envelope& envelope)
{
    envelope.operation = xml.name().toString();
    envelope.operationNamespace = xml.namespaceUri().toString();
    while (xml.readNextStartElement()) {
        if (xml.namespaceUri() != envelope.operationNamespace || !xml.attributes().isEmpty())
            xml.raiseError("strange parameter " + xml.qualifiedName().toString());
        const QString name = xml.name().toString();
        envelope.parameters.append(name + '=' + xml.readElementText());
    }
}

} // namespace

Envelope Envelope::read(const QByteArray& bytes)
{
    Envelope envelope;
    QXmlStreamReader xml(bytes);
    xml.readNext();
    envelope.version = xml.documentVersion().toString();
    envelope.encoding = xml.documentEncoding().toString();
    if (!atChild(xml, "Envelope", SoapNamespace))
        xml.raiseError("no envelope");
    for (const QXmlStreamNamespaceDeclaration& declaration : xml.namespaceDeclarations())
        envelope.prefixes.insert(declaration.prefix().toString(), declaration.namespaceUri().toString());
    if (!atChild(xml, "Body", SoapNamespace) || !xml.readNextStartElement())
        xml.raiseError("no body with an operation");
    readOperation(xml, envelope);
    while (!xml.atEnd())
        if (xml.readNext() == QXmlStreamReader::StartElement || bytes.contains("<!DOCTYPE"))
            xml.raiseError("more than an operation");
    envelope.fault = xml.errorString();
    return envelope;
}

QString layoutFault(const QByteArray& xml)
{
    static const QRegularExpression startTag("<\\w[^>]*(?<!/)>");
    static const QRegularExpression endTag("</");
    static const QRegularExpression firstOther("[^ ]|$");
    int depth = 0;
    int number = 0;
    for (const QString& line : QString::fromUtf8(xml).split('\n')) {
        ++number;
        const QString markup = line.trimmed();
        const int level = depth - (markup.startsWith("</") ? 1 : 0);
        if (line.indexOf(firstOther) != level)
            return QString("line %1: '%2'").arg(number).arg(line);
        depth += line.count(startTag) - line.count(endTag);
    }
    return {};
}

} // namespace test
