#include "tests/devcatalog/CatalogFixture.h"
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
constexpr int floodSize = 32000000;

/// Elements that a person's typing or the catalog's content fills.
bool takesAnyText(const QByteArray& operation, const QByteArray& element)
{
    const QVector<QByteArray> free{"searchTerm", "userId", "supplierName", "modelName", "configName"};
    return free.contains(element) || (operation == "UserLogin" && element == "password");
}

} // namespace

/// Holds the development catalog to its strictness: whatever differs from the wire contract is refused with a
/// fault that names the cause, and nothing that comes in does harm.
class CatalogStrictnessTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void changedElementsAreRefused_data();
    void changedElementsAreRefused() { requireRefusal(); }
    void changedEnvelopesAreRefused_data();
    void changedEnvelopesAreRefused() { requireRefusal(); }
    void changedHeadersAreRefused_data();
    void changedHeadersAreRefused() { requireRefusal(); }
    void changedValuesAreRefused_data();
    void changedValuesAreRefused() { requireRefusal(); }
    void hostileBodiesAreRefused_data();
    void hostileBodiesAreRefused() { requireRefusal(); }
    void hostileConnectionsDoNoHarm_data();
    void hostileConnectionsDoNoHarm();

private:
    void beginTable() const;
    void addChangedElements(const RightForm& form, int index) const;
    void requireRefusal();

    std::unique_ptr<test::CatalogFixture> m_fixture;
    std::unique_ptr<test::FatalWarnings> m_warnings;
};

void CatalogStrictnessTest::initTestCase()
{
    m_fixture = std::make_unique<test::CatalogFixture>();
}

void CatalogStrictnessTest::init()
{
    m_warnings = std::make_unique<test::FatalWarnings>();
}

void CatalogStrictnessTest::cleanup()
{
    m_warnings.reset();
}

void CatalogStrictnessTest::beginTable() const
{
    QTest::addColumn<SoapRequest>("request");
    QTest::addColumn<QString>("cause");
}

void CatalogStrictnessTest::requireRefusal()
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

void CatalogStrictnessTest::changedElementsAreRefused_data()
{
    beginTable();
    for (const RightForm& form : rightForms(m_fixture->values())) {
        for (int index = 0; index < form.elements.size(); ++index) {
            addChangedElements(form, index);
        }
    }
}

/// Takes one element out, doubles, moves, renames it, gives it an attribute or a child, and changes its text.
void CatalogStrictnessTest::addChangedElements(const RightForm& form, int index) const
{
    const QByteArray element = form.elements.at(index).first;
    const QByteArray value = form.elements.at(index).second;
    const QByteArray line = elementLine(element, value);
    const QString named = "'" + element + "'";
    const auto refuse = [&](const QByteArray& change, const QByteArray& changed, const QString& cause) {
        SoapRequest request = form.request(m_fixture->serviceHost());
        request.body.replace(line, changed);
        QTest::newRow(form.operation + " " + element + " " + change) << request << cause;
    };
    refuse("missing", "", named);
    refuse("twice", line + line, named);
    refuse("renamed", QByteArray(line).replace(element, element.toUpper()), named);
    refuse("prefixed", QByteArray(line).replace(element, "soap:" + element), named);
    refuse("with an attribute", QByteArray(line).replace("<" + element, "<" + element + " a='b'"),
           named + " has an attribute too many: 'a'");
    refuse("with a child", QByteArray(line).replace("</", "<x/></"), named + " must hold");
    refuse("with its placeholder", elementLine(element, "string"), named + " must hold");
    if (!takesAnyText(form.operation, element)) {
        refuse("with another value", elementLine(element, "x" + value), named + " must hold");
    }
    if (index + 1 < form.elements.size()) {
        const auto& [nextElement, nextValue] = form.elements.at(index + 1);
        const QByteArray nextLine = elementLine(nextElement, nextValue);
        SoapRequest swapped = form.request(m_fixture->serviceHost());
        swapped.body.replace(line + nextLine, nextLine + line);
        QTest::newRow(form.operation + " " + element + " after its neighbour") << swapped << named;
    }
}

void CatalogStrictnessTest::changedEnvelopesAreRefused_data()
{
    beginTable();
    const SoapRequest right = m_fixture->request("SimpleSearchAcrossCatalogs");
    const auto refuse = [&right](const char* name, const QByteArray& part, const QByteArray& changed,
                                 const QString& cause) {
        SoapRequest request = right;
        request.body.replace(part, changed);
        QVERIFY2(request.body != right.body, name);
        QTest::newRow(name) << request << cause;
    };
    const QByteArray host = m_fixture->serviceHost();
    const QByteArray soap12 = "http://www.w3.org/2003/05/soap-envelope";
    refuse("no declaration", "<?xml version='1.0' encoding='utf-8'?>\n", "", "XML declaration");
    refuse("version 1.1", "version='1.0'", "version='1.1'", "'version'");
    refuse("another encoding", "encoding='utf-8'", "encoding='utf-16'", "'encoding'");
    refuse("a blank first", "<?xml", " <?xml", "XML declaration");
    refuse("a byte order mark", "<?xml", "\xef\xbb\xbf<?xml", "XML declaration");
    refuse("SOAP 1.2", "http://schemas.xmlsoap.org/soap/envelope/", soap12, "'xmlns:soap'");
    refuse("xsd of another year", "2001/XMLSchema\"", "1999/XMLSchema\"", "'xmlns:xsd'");
    refuse("no xsi", " xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\"", "", "'xmlns:xsi'");
    refuse("xsd twice", "<soap:Envelope", "<soap:Envelope xmlns:xsd='http://www.w3.org/2001/XMLSchema'",
           "'xmlns:xsd'");
    refuse("another prefix", "soap:", "env:", "'soap:Envelope'");
    refuse("a header", " <soap:Body>", " <soap:Header/><soap:Body>", "'soap:Header'");
    refuse("an attribute of the body", "<soap:Body>", "<soap:Body id='1'>", "'id'");
    refuse("two bodies", "</soap:Body>", "</soap:Body><soap:Body/>", "'soap:Body'");
    refuse("another namespace", "/Content\"", "/content\"", "'xmlns'");
    refuse("https in the namespace", "\"http://" + host, "\"https://" + host, "'xmlns'");
    refuse("no namespace", " xmlns=\"http://" + host + "/Content\"", "", "'xmlns'");
    refuse("another operation", "SimpleSearchAcrossCatalogs", "GetConfigInfo",
           "'SimpleSearchAcrossCatalogs'");
    refuse("two operations", " </soap:Body>", "<GetConfigInfo/></soap:Body>", "'GetConfigInfo'");
    refuse("an element more", "  </Simple", "  <more/></Simple", "'more'");
    refuse("a comment", "   <apiKey>", "<!-- c --><apiKey>", "a comment");
    refuse("an instruction", "   <apiKey>", "<?php ?><apiKey>", "a processing instruction");
    refuse("loose text", "   <apiKey>", "loose<apiKey>", "text");
    refuse("text after the end", "</soap:Envelope>\n", "</soap:Envelope>tail", "text");
    refuse("a document type", "<soap:Envelope", "<!DOCTYPE x><soap:Envelope", "a document type");
    refuse("CDATA", ">Base<", "><![CDATA[Base]]><", "'language' must hold plain text");
}

void CatalogStrictnessTest::changedHeadersAreRefused_data()
{
    beginTable();
    const SoapRequest right = m_fixture->request("SimpleSearchAcrossCatalogs");
    const auto refuse = [&right](const char* name, const QByteArray& header, const QByteArray& value,
                                 const QString& cause) {
        SoapRequest request = right;
        request.setHeader(header, value);
        QTest::newRow(name) << request << cause;
    };
    const QByteArray prefix = m_fixture->serviceHost() + "/Content/";
    const QByteArray action = "http://" + prefix + "SimpleSearchAcrossCatalogs";
    refuse("quoted action", "SOAPAction", "\"" + action + "\"", "quotation marks");
    refuse("action without namespace", "SOAPAction", "SimpleSearchAcrossCatalogs", "SOAPAction");
    refuse("action with https", "SOAPAction", "https" + action.mid(4), "SOAPAction");
    refuse("unknown action", "SOAPAction", "http://" + prefix + "GetModelDetail", "GetModelDetail");
    refuse("action of another endpoint", "SOAPAction", "http://" + prefix + "ServiceLogin",
           "'/ContentWS/contentws.asmx'");
    refuse("action of another body", "SOAPAction", "http://" + prefix + "GetConfigInfo", "'GetConfigInfo'");
    refuse("empty action", "SOAPAction", "", "'soapaction' is missing");
    refuse("another type", "Content-Type", "application/soap+xml; charset=utf-8", "'content-type'");
    refuse("another charset", "Content-Type", "text/xml; charset=latin1", "'content-type'");
    refuse("no charset", "Content-Type", "text/xml", "'content-type'");
    refuse("a form", "Content-Type", "multipart/form-data; boundary=x", "'content-type'");
    refuse("an encoding", "Content-Encoding", "gzip", "encoded");
    for (const char* header : {"Content-Type", "SOAPAction"}) {
        SoapRequest missing = right;
        missing.removeHeader(header);
        QTest::addRow("no %s", header) << missing << QString("'%1' is missing").arg(header).toLower();
        SoapRequest doubled = right;
        doubled.headers += right.headers;
        QTest::addRow("two of %s", header) << doubled << "more than once";
    }

    const QPair<const char*, QString> paths[] = {
        {"/ContentWS/contentws.asmx", "'/ContentWS/ExternalWS.asmx'"},
        {"/contentws/externalws.asmx", "no endpoint"},
        {"/", "no endpoint"},
    };
    for (const auto& [path, cause] : paths) {
        SoapRequest request = right;
        request.path = path;
        QTest::newRow(path) << request << cause;
    }
}

void CatalogStrictnessTest::changedValuesAreRefused_data()
{
    beginTable();
    const test::ClientValues& values = m_fixture->values();
    const auto refuse = [this](const char* operation, const char* element, const QByteArray& value,
                               const QString& cause) {
        RightForm form = m_fixture->form(operation);
        form.value(element) = value;
        QTest::addRow("%s '%s'", element, value.constData())
            << form.request(m_fixture->serviceHost()) << cause;
    };
    for (const char* page : {"two", "1.5", " 1", "99999999999", "", "int"}) {
        refuse("SimpleSearchAcrossCatalogs", "pageNumber", page, "a whole number");
    }
    refuse("GenerateApiKeyByDescription", "sessionId", "", "'sessionId'");
    refuse("SimpleSearchAcrossCatalogs", "apiKey", "", "'apiKey'");
    refuse("SimpleSearchAcrossCatalogs", "apiKey", values.sessionId, "'apiKey'");
    refuse("GetDownload2D", "userToken", values.apiKey, "'userToken'");
    refuse("GetDownload2D", "drawingView", " Front", "a drawing view");
    refuse("GetDownload2D", "inputParameters", "\n   ", "nothing");
    refuse("GetConfigInfo", "supplierName", "Nobody & Sons", "'Nobody & Sons'");
    refuse("GetConfigParams", "modelName", " " + values.model, "has no model");
    refuse("GetConfigParams", "configName", "", "has no configuration");
    refuse("GetDownload2D", "configName", "other", "has no configuration 'other'");
}

void CatalogStrictnessTest::hostileBodiesAreRefused_data()
{
    beginTable();
    const auto refuse = [this](const char* name, const QByteArray& body, const QString& cause) {
        SoapRequest request = m_fixture->request("ServiceLogin");
        request.body = "<?xml version='1.0' encoding='utf-8'?>" + body;
        QTest::newRow(name) << request << cause;
    };
    const QString notWellFormed = "not well-formed";
    const QString noText = "no XML text";
    const QByteArray opened = QByteArray("<a>").repeated(50000);
    refuse("empty", "", "'soap:Envelope' is missing");
    refuse("cut", "<soap:Envelope><soap:Bo", notWellFormed);
    refuse("crossed", "<a><b></a></b>", notWellFormed);
    refuse("deep", opened, notWellFormed);
    refuse("deep and closed", opened + QByteArray("</a>").repeated(50000), "'soap:Envelope'");
    refuse("deep document type", "<!DOCTYPE a " + QByteArray("[<!").repeated(100000), notWellFormed);
    refuse("entity bomb", "<!DOCTYPE a [<!ENTITY b 'c'><!ENTITY d '&b;&b;'>]><a>&d;</a>", noText);
    refuse("unknown reference", "<a>&nbsp;</a>", noText);
    refuse("bare ampersand", "<a>bolt & nut</a>", noText);
    refuse("reference to no character", "<a>&#0;</a>", noText);
    refuse("zero byte", QByteArray("<a>\0</a>", 8), noText);
    refuse("Latin-1", "<a>\xe4</a>", noText);
    refuse("overlong UTF-8", "<a>\xe0\x80\xbc</a>", noText);
    refuse("surrogates", "<a>\xed\xa0\x80</a>", noText);
    refuse("long name", "<" + QByteArray("n").repeated(100000) + "/>", "...'");
    refuse("600 KB", QByteArray(600000, 'x'), "too long");
}

void CatalogStrictnessTest::hostileConnectionsDoNoHarm_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray flood(floodSize, '1');
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
    QVERIFY2(sent < floodSize, "the server reads without end");
    QCOMPARE(m_fixture->client().get("/Login.aspx").status, 200);
}

QTEST_GUILESS_MAIN(CatalogStrictnessTest)
#include "CatalogStrictnessTest.moc"
