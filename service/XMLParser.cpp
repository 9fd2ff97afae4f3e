#include "service/XMLParser.h"

#include "common/MessageBoxes.h"
#include "service/ServiceAddress.h"
#include "service/ServiceOperations.h"
#include "service/XmlGuard.h"

#include <QDebug>
#include <QMessageBox>
#include <QTextCodec>
#include <QXmlStreamReader>

namespace
{

// The fields of a hit have a place, not a name.
constexpr int NameField = 0;
constexpr int DescriptionField = 6;
constexpr int ImageField = 7;
constexpr int SupplierField = 16;

QString textOf(const QDomNode& element)
{
    return element.firstChild().nodeValue();
}

/// The first element of either name in document order. Unlike Qt's list it walks no further.
QDomElement firstElement(const QDomNode& parent, const QString& name, const QString& otherName)
{
    for (QDomElement child = parent.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement()) {
        if (child.tagName() == name || child.tagName() == otherName)
            return child;
        const QDomElement found = firstElement(child, name, otherName);
        if (!found.isNull())
            return found;
    }
    return {};
}

QString withoutLeadingBlank(const QString& text)
{
    return text.startsWith(QLatin1Char(' ')) ? text.mid(1) : text;
}

/// A file's text in the encoding that its byte order mark or its declaration names.
QString decode(const QByteArray& xml)
{
    QXmlStreamReader reader(xml);
    reader.readNext();
    QTextCodec* declared = QTextCodec::codecForName(reader.documentEncoding().toLatin1());
    QTextCodec* fallback = declared != nullptr ? declared : QTextCodec::codecForName("UTF-8");
    return QTextCodec::codecForUtfText(xml, fallback)->toUnicode(xml);
}

} // namespace

XMLParser::XMLParser(const QString& fileName)
    : m_fileName(fileName), m_file(std::make_unique<QFile>(fileName))
{
    if (m_file->open(QIODevice::ReadOnly | QIODevice::Text)) {
        setContent(decode(m_file->readAll()));
        m_file->close();
        return;
    }
    const QString text = QObject::tr("Cannot open xml file: %1").arg(fileName);
    QMessageBox::critical(nullptr, QLatin1String("Error"), text, QMessageBox::Ok);
    showInformationBox(text);
}

void XMLParser::setContent(const QString& xml)
{
    QDomDocument document(QLatin1String("mydocument"));
    if (parseXml(xml, &document))
        m_document = document;
}

int XMLParser::GetActualItemCount() const
{
    // As a rule it stands before the hits, which then need not be walked.
    const QString name = QLatin1String("ActualItemCount");
    QDomNode count = firstElement(m_document, name, QLatin1String(SearchOperation.resultElement));
    if (count.nodeName() != name)
        count = m_document.elementsByTagName(name).item(0);
    return textOf(count).toInt();
}

QStringList XMLParser::GetSearchItemNames() const
{
    QStringList names = childTexts(SearchOperation.resultElement, NameField);
    for (QString& name : names)
        name = withoutLeadingBlank(name);
    return names;
}

QStringList XMLParser::GetSearchItemField1() const
{
    return childTexts(SearchOperation.resultElement, 1);
}

QStringList XMLParser::GetSearchItemField6() const
{
    return childTexts(SearchOperation.resultElement, DescriptionField);
}

QStringList XMLParser::GetSearchItemImageUrls() const
{
    QStringList urls = childTexts(SearchOperation.resultElement, ImageField);
    for (QString& url : urls)
        url.prepend(ServiceBaseUrl);
    return urls;
}

QStringList XMLParser::GetSearchItemField16() const
{
    return childTexts(SearchOperation.resultElement, SupplierField);
}

QStringList XMLParser::GetConfigurationNames() const
{
    return childTexts(GetConfigInfoOperation.resultElement, 0);
}

SearchResults XMLParser::GetSearchResults(int limit) const
{
    SearchResults results;
    const QDomNodeList items = m_document.elementsByTagName(QLatin1String(SearchOperation.resultElement));
    const int count = qBound(0, limit, items.count());
    for (QStringList* list :
         {&results.imageUrls, &results.supplierNames, &results.modelNames, &results.descriptions})
        list->reserve(count);
    for (int i = 0; i < count; ++i) {
        const QDomNodeList fields = items.item(i).childNodes();
        results.imageUrls.append(ServiceBaseUrl + textOf(fields.item(ImageField)));
        results.supplierNames.append(textOf(fields.item(SupplierField)));
        results.modelNames.append(withoutLeadingBlank(textOf(fields.item(NameField))));
        results.descriptions.append(textOf(fields.item(DescriptionField)));
    }
    return results;
}

void XMLParser::test()
{
    QDomDocument document(QLatin1String("mydocument"));
    document.setContent(QString::fromLatin1("<root><a>11111</a><a><b>test 123</b></a></root>"));
    const QDomElement root = document.documentElement();
    qDebug("root element has %d childs", root.childNodes().count());
    qDebug("root element is  %s ", qUtf8Printable(root.tagName()));
    for (QDomElement a = root.firstChildElement(QLatin1String("a")); !a.isNull();
         a = a.nextSiblingElement(QLatin1String("a")))
        qDebug("- [%s]", qUtf8Printable(a.text()));
}

void XMLParser::create(const QString& fileName, XMLParser** parser)
{
    if (!fileName.isEmpty())
        *parser = new XMLParser(fileName);
}

QDomDocument XMLParser::documentOf(const XMLParser* parser)
{
    return parser != nullptr ? parser->m_document.cloneNode().toDocument() : QDomDocument();
}

QStringList XMLParser::childTexts(const char* element, int position) const
{
    QStringList texts;
    const QDomNodeList elements = m_document.elementsByTagName(QLatin1String(element));
    for (int i = 0; i < elements.count(); ++i)
        texts.append(textOf(elements.item(i).childNodes().item(position)));
    return texts;
}
