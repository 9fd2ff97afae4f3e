#include "tests/catalog/CatalogFixture.h"
#include "tests/support/FatalWarnings.h"

#include <QtTest>

#include <memory>

using test::elementLine;
using test::HttpAnswer;
using test::RightForm;
using test::SoapRequest;

Q_DECLARE_METATYPE(test::SoapRequest)

namespace
{

/// More than the buffers of two sockets hold, so that it goes out whole only to a server that reads it all.
constexpr int FloodSize = 32000000;

/// Elements that a person's typing or the catalog's content fills.
bool takesAnyText(const QByteArray& operation, const QByteArray& element)
{
    const QVector<QByteArray> free{"searchTerm", "userId", "supplierName", "modelName", "configName"};
    return free.contains(element) || (operation == "UserLogin" && element == "password");
}

void refuse(const QByteArray& name, const SoapRequest& request, const QString& cause)
{
    QTest::newRow(name) << request << cause;
}

} // namespace

/// Holds the development catalog to its strictness: whatever differs from the wire contract is refused with a
/// fault that names the cause, and nothing that comes in does harm.
class CatalogStrictnessTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_fixture = std::make_unique<test::CatalogFixture>(); }
    void init() { m_warnings = std::make_unique<test::FatalWarnings>(); }
    void cleanup() { m_warnings.reset(); }

    void changedRequestsAreRefused_data();
    void changedRequestsAreRefused();
    void bodyNeedsALength();
    void hostileConnectionsDoNoHarm_data();
    void hostileConnectionsDoNoHarm();

private:
    void addChangedElements(const RightForm& form, int index) const;
    void addChangedEnvelopes() const;
    void addChangedHeaders() const;
    void addChangedValues() const;
    void addHostileBodies() const;

    std::unique_ptr<test::CatalogFixture> m_fixture;
    std::unique_ptr<test::FatalWarnings> m_warnings;
};

void CatalogStrictnessTest::changedRequestsAreRefused_data()
{
    QTest::addColumn<SoapRequest>("request");
    QTest::addColumn<QString>("cause");
    for (const RightForm& form : rightForms(m_fixture->values()))
        for (int index = 0; index < form.elements.size(); ++index)
            addChangedElements(form, index);
    addChangedEnvelopes();
    addChangedHeaders();
    addChangedValues();
    addHostileBodies();
}

void CatalogStrictnessTest::changedRequestsAreRefused()
{
    QFETCH(SoapRequest, request);
    QFETCH(QString, cause);
    const HttpAnswer answer = m_fixture->client().post(request);
    QCOMPARE(answer.status, 500);
    QCOMPARE(answer.contentType, QByteArray("text/xml; charset=utf-8"));
    QCOMPARE(answer.text("faultcode"), QString("soap:Client"));
    const QString fault = answer.text("faultstring");
    QVERIFY2(fault.contains(cause), qPrintable(fault));
    QVERIFY2(!fault.contains("Service & <Password>"), qPrintable(fault));
}

/// A body can come without one, in chunks.
void CatalogStrictnessTest::bodyNeedsALength()
{
    const SoapRequest right = m_fixture->request("ServiceLogin");
    QByteArray http = right.toHttp().chopped(right.body.size());
    http.replace("Content-Length: " + QByteArray::number(right.body.size()), "Transfer-Encoding: chunked");
    http += QByteArray::number(right.body.size(), 16) + "\r\n" + right.body + "\r\n0\r\n\r\n";
    QVERIFY(m_fixture->client().exchange(http).contains("'content-length' is missing"));
}

/// Takes one element out, doubles, moves, renames it, gives it an attribute or a child, and changes its text.
void CatalogStrictnessTest::addChangedElements(const RightForm& form, int index) const
{
    const auto& [element, value] = form.elements.at(index);
    const QByteArray line = elementLine(element, value);
    const QString named = "'" + element + "'";
    const SoapRequest right = form.request(m_fixture->serviceHost());
    const auto change = [&](const char* name, const QByteArray& part, const QByteArray& changed,
                            const QString& cause) {
        SoapRequest request = right;
        request.body.replace(line, QByteArray(line).replace(part, changed));
        refuse(form.operation + " " + element + " " + name, request, cause);
    };
    change("missing", line, "", named);
    change("twice", line, line + line, named);
    change("renamed", element, element.toUpper(), named);
    change("prefixed", element, "soap:" + element, named);
    change("with an attribute", "<" + element, "<" + element + " a='b'",
           named + " has an attribute too many: 'a'");
    change("with a child", "</", "<x/></", named + " must hold");
    change("with its placeholder", line, elementLine(element, "string"), named + " must hold");
    if (!takesAnyText(form.operation, element))
        change("with another value", line, elementLine(element, "x" + value), named + " must hold");
    if (index + 1 < form.elements.size()) {
        const auto& [nextElement, nextValue] = form.elements.at(index + 1);
        const QByteArray nextLine = elementLine(nextElement, nextValue);
        SoapRequest swapped = right;
        swapped.body.replace(line + nextLine, nextLine + line);
        refuse(form.operation + " " + element + " after its neighbour", swapped, named);
    }
}

void CatalogStrictnessTest::addChangedEnvelopes() const
{
    const SoapRequest right = m_fixture->request("SimpleSearchAcrossCatalogs");
    const auto change = [&right](const QByteArray& name, const QByteArray& part, const QByteArray& changed,
                                 const QString& cause) {
        SoapRequest request = right;
        request.body.replace(part, changed);
        QVERIFY2(request.body != right.body, name);
        refuse(name, request, cause);
    };
    change("no declaration", "<?xml version='1.0' encoding='utf-8'?>\n", "", "XML declaration");
    change("version 1.1", "version='1.0'", "version='1.1'", "'version'");
    change("another encoding", "encoding='utf-8'", "encoding='utf-16'", "'encoding'");
    change("a byte order mark", "<?xml", "\xef\xbb\xbf<?xml", "XML declaration");
    for (const QByteArray name : {"xmlns:soap", "xmlns:xsd", "xmlns:xsi", "xmlns"}) {
        change("no " + name, name + "=", "id=", "'" + name + "'");
        change("another " + name, name + "=\"http", name + "=\"https", "'" + name + "'");
    }
    change("xsd twice", "<soap:Envelope", "<soap:Envelope xmlns:xsd='http://www.w3.org/2001/XMLSchema'",
           "'xmlns:xsd'");
    change("another prefix", "soap:", "env:", "'soap:Envelope'");
    change("a header", " <soap:Body>", " <soap:Header/><soap:Body>", "'soap:Header'");
    change("an attribute of the body", "<soap:Body>", "<soap:Body id='1'>", "'id'");
    change("two bodies", "</soap:Body>", "</soap:Body><soap:Body/>", "'soap:Body'");
    change("another operation", "SimpleSearchAcrossCatalogs", "GetConfigInfo", "'GetConfigInfo'");
    change("two operations", " </soap:Body>", "<GetConfigInfo/></soap:Body>", "'GetConfigInfo'");
    change("an element more", "  </Simple", "  <more/></Simple", "'more'");
    change("a comment", "   <apiKey>", "<!-- c --><apiKey>", "a comment");
    change("an instruction", "   <apiKey>", "<?php ?><apiKey>", "a processing instruction");
    change("loose text", "   <apiKey>", "loose<apiKey>", "text");
    change("text after the end", "</soap:Envelope>\n", "</soap:Envelope>tail", "text");
    change("a document type", "<soap:Envelope", "<!DOCTYPE x><soap:Envelope", "a document type");
    change("CDATA", ">Base<", "><![CDATA[Base]]><", "'language' must hold plain text");
}

void CatalogStrictnessTest::addChangedHeaders() const
{
    const SoapRequest right = m_fixture->request("SimpleSearchAcrossCatalogs");
    const auto change = [&right](const char* name, const QByteArray& header, const QByteArray& value,
                                 const QString& cause) {
        SoapRequest request = right;
        request.setHeader(header, value);
        refuse(name, request, cause);
    };
    const QByteArray prefix = "http://" + m_fixture->serviceHost() + "/Content/";
    const QByteArray action = prefix + "SimpleSearchAcrossCatalogs";
    change("quoted action", "SOAPAction", "\"" + action + "\"", "quotation marks");
    change("action without namespace", "SOAPAction", "SimpleSearchAcrossCatalogs", "SOAPAction");
    change("action with https", "SOAPAction", "https" + action.mid(4), "SOAPAction");
    change("unknown action", "SOAPAction", prefix + "GetModelDetail", "GetModelDetail");
    change("action of another endpoint", "SOAPAction", prefix + "ServiceLogin",
           "'/ContentWS/contentws.asmx'");
    change("action of another body", "SOAPAction", prefix + "GetConfigInfo", "'GetConfigInfo'");
    change("empty action", "SOAPAction", "", "'soapaction' is missing");
    change("another type", "Content-Type", "application/soap+xml; charset=utf-8", "'content-type'");
    change("no charset", "Content-Type", "text/xml", "'content-type'");
    change("a form", "Content-Type", "multipart/form-data; boundary=x", "'content-type'");
    change("an encoding", "Content-Encoding", "gzip", "encoded");
    for (const auto& header : right.headers) {
        SoapRequest request = right;
        request.headers.append(header);
        refuse("two of " + header.first, request, "more than once");
        request.removeHeader(header.first);
        refuse("no " + header.first, request, "'" + header.first.toLower() + "' is missing");
    }
    const QPair<QByteArray, QString> paths[] = {
        {"/ContentWS/contentws.asmx", "'/ContentWS/ExternalWS.asmx'"},
        {"/contentws/externalws.asmx", "no endpoint"},
        {"/", "no endpoint"},
    };
    for (const auto& [path, cause] : paths) {
        SoapRequest request = right;
        request.path = path;
        refuse(path, request, cause);
    }
}

void CatalogStrictnessTest::addChangedValues() const
{
    const test::ClientValues& values = m_fixture->values();
    const auto change = [this](const QByteArray& operation, const QByteArray& element,
                               const QByteArray& value, const QString& cause) {
        RightForm form = m_fixture->form(operation);
        form.value(element) = value;
        refuse(element + " '" + value + "'", form.request(m_fixture->serviceHost()), cause);
    };
    for (const char* page : {"two", "1.5", " 1", "99999999999", "", "int"})
        change("SimpleSearchAcrossCatalogs", "pageNumber", page, "a whole number");
    change("GenerateApiKeyByDescription", "sessionId", "", "'sessionId'");
    change("SimpleSearchAcrossCatalogs", "apiKey", "", "'apiKey'");
    change("SimpleSearchAcrossCatalogs", "apiKey", values.sessionId, "'apiKey'");
    change("GetDownload2D", "userToken", values.apiKey, "'userToken'");
    change("GetDownload2D", "drawingView", " Front", "a drawing view");
    change("GetDownload2D", "inputParameters", "\n   ", "nothing");
    change("GetConfigInfo", "supplierName", "Nobody & Sons", "'Nobody & Sons'");
    change("GetConfigParams", "modelName", " " + values.model, "has no model");
    change("GetConfigParams", "configName", "", "has no configuration");
    change("GetDownload2D", "configName", "other", "has no configuration 'other'");
}

void CatalogStrictnessTest::addHostileBodies() const
{
    const auto change = [this](const char* name, const QByteArray& body, const QString& cause) {
        SoapRequest request = m_fixture->request("ServiceLogin");
        request.body = "<?xml version='1.0' encoding='utf-8'?>" + body;
        refuse(name, request, cause);
    };
    const QString notWellFormed = "not well-formed";
    const QString noText = "no XML text";
    const QByteArray opened = QByteArray("<a>").repeated(50000);
    change("empty", "", "'soap:Envelope' is missing");
    change("cut", "<soap:Envelope><soap:Bo", notWellFormed);
    change("crossed", "<a><b></a></b>", notWellFormed);
    change("deep", opened, notWellFormed);
    change("deep and closed", opened + QByteArray("</a>").repeated(50000), "'soap:Envelope'");
    change("deep document type", "<!DOCTYPE a " + QByteArray("[<!").repeated(100000), notWellFormed);
    change("entity bomb", "<!DOCTYPE a [<!ENTITY b 'c'><!ENTITY d '&b;&b;'>]><a>&d;</a>", noText);
    change("unknown reference", "<a>&nbsp;</a>", noText);
    change("bare ampersand", "<a>bolt & nut</a>", noText);
    change("reference to no character", "<a>&#0;</a>", noText);
    change("zero byte", QByteArray("<a>\0</a>", 8), noText);
    change("Latin-1", "<a>\xe4</a>", noText);
    change("overlong UTF-8", "<a>\xe0\x80\xbc</a>", noText);
    change("surrogates", "<a>\xed\xa0\x80</a>", noText);
    change("long name", "<" + QByteArray("n").repeated(100000) + "/>", "...'");
    change("600 KB", QByteArray(600000, 'x'), "too long");
}

void CatalogStrictnessTest::hostileConnectionsDoNoHarm_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray flood(FloodSize, '1');
    QTest::newRow("noise") << QByteArray("\0\1\2\3\r\n\r\n", 8);
    QTest::newRow("endless line") << flood;
    QTest::newRow("endless header") << "POST / HTTP/1.1\r\nX: " + flood;
    QTest::newRow("endless body") << "POST / HTTP/1.1\r\nContent-Length: 9999999999\r\n\r\n" + flood;
    QTest::newRow("endless chunk") << "POST / HTTP/1.1\r\nTransfer-Encoding: chunked\r\n\r\n" + flood;
    QTest::newRow("long path") << "GET /" + QByteArray(8000, 'a') + " HTTP/1.1\r\n\r\n";
    QTest::newRow("long path, posted") << "POST /" + QByteArray(8000, 'a') + " HTTP/1.1\r\n\r\n";
    QTest::newRow("many parts of a file")
        << "GET /Login.aspx HTTP/1.1\r\nRange: bytes=0-" + QByteArray(",0-").repeated(2000) + "\r\n\r\n";
    QTest::newRow("unknown method") << QByteArray("BREW / HTTP/1.1\r\n\r\n");
    QTest::newRow("put") << "PUT / HTTP/1.1\r\nContent-Length: 32000000\r\n\r\n" + flood;
}

void CatalogStrictnessTest::hostileConnectionsDoNoHarm()
{
    QFETCH(QByteArray, bytes);
    qint64 sent = 0;
    QVERIFY(!m_fixture->client().exchange(bytes, &sent).contains(" 200 "));
    QVERIFY2(sent < FloodSize, "the server reads without end");
    QCOMPARE(m_fixture->client().get("/Login.aspx").status, 200);
}

QTEST_GUILESS_MAIN(CatalogStrictnessTest)
#include "CatalogStrictnessTest.moc"
