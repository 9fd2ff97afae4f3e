#include "service/XMLParser.h"

#include "common/MessageBoxes.h"
#include "service/ServiceAddress.h"
#include "service/ServiceOperations.h"
#include "service/XmlGuard.h"

#include <QDebug>
#include <QMessageBox>
#include <QTextCodec>
#include <QXmlStreamReader>

#include <climits>

namespace
{

QString textOf(const QDomNode& element)
{
    return element.firstChild().nodeValue();
}

// The children of an element have a place, not a name.

/// What is read of an element.
using Reading = QString (*)(const QDomNodeList& children);

template <int Place>
QString childText(const QDomNodeList& children)
{
    return textOf(children.item(Place));
}

/// Without one leading blank.
QString modelName(const QDomNodeList& fields)
{
    const QString text = childText<0>(fields);
    return text.startsWith(QLatin1Char(' ')) ? text.mid(1) : text;
}

constexpr Reading Description = childText<6>;

QString imageUrl(const QDomNodeList& fields)
{
    return ServiceBaseUrl + childText<7>(fields);
}

constexpr Reading SupplierName = childText<16>;

/// Reads the elements of a name, @p limit of them at the most, in document order.
template <typename List, typename Read>
List readElements(const QDomDocument& document, const ServiceOperation& operation, int limit, Read read)
{
    const QDomNodeList elements = document.elementsByTagName(QLatin1String(operation.resultElement));
    const int count = qBound(0, limit, elements.count());
    List list;
    list.reserve(count);
    for (int i = 0; i < count; ++i)
        list.append(read(elements.item(i).childNodes()));
    return list;
}

QStringList readTexts(const QDomDocument& document, const ServiceOperation& operation, Reading read)
{
    return readElements<QStringList>(document, operation, INT_MAX, read);
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

QStringList configurationNames(const QDomDocument& document)
{
    return readTexts(document, GetConfigInfoOperation, childText<0>);
}

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
    return readTexts(m_document, SearchOperation, modelName);
}

QStringList XMLParser::GetSearchItemField1() const
{
    return readTexts(m_document, SearchOperation, childText<1>);
}

QStringList XMLParser::GetSearchItemField6() const
{
    return readTexts(m_document, SearchOperation, Description);
}

QStringList XMLParser::GetSearchItemImageUrls() const
{
    return readTexts(m_document, SearchOperation, imageUrl);
}

QStringList XMLParser::GetSearchItemField16() const
{
    return readTexts(m_document, SearchOperation, SupplierName);
}

QStringList XMLParser::GetConfigurationNames() const
{
    return configurationNames(m_document);
}

QVector<SearchHit> XMLParser::GetSearchHits(int limit) const
{
    const auto hit = [](const QDomNodeList& fields) {
        return SearchHit{imageUrl(fields), SupplierName(fields), modelName(fields), Description(fields)};
    };
    return readElements<QVector<SearchHit>>(m_document, SearchOperation, limit, hit);
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
