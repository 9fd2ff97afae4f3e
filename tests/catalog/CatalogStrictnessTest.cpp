#include "tests/catalog/CatalogFixture.h"
#include "tests/support/FatalWarnings.h"

#include <QtTest>

#include <memory>

using test::HttpAnswer;
using test::SoapRequest;

Q_DECLARE_METATYPE(test::SoapRequest)

namespace
{

/// More than the buffers of two sockets hold, so that it goes out whole only to a server that reads it all.
constexpr int FloodSize = 32000000;

const QByteArray Search = "SimpleSearchAcrossCatalogs";

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
    void addChangedElements(const SoapRequest& valid) const;
    void addChangedEnvelopes(const SoapRequest& valid) const;
    void addChangedHeaders(const SoapRequest& valid) const;
    void addChangedValues() const;
    void addHostileBodies() const;

    std::unique_ptr<test::CatalogFixture> m_fixture;
    std::unique_ptr<test::FatalWarnings> m_warnings;
};

void CatalogStrictnessTest::changedRequestsAreRefused_data()
{
    QTest::addColumn<SoapRequest>("request");
    QTest::addColumn<QString>("cause");
    for (const QByteArray& operation : test::CatalogFixture::operations())
        addChangedElements(m_fixture->request(operation));
    addChangedEnvelopes(m_fixture->request(Search));
    addChangedHeaders(m_fixture->request(Search));
    addChangedValues();
    addHostileBodies();
}

void CatalogStrictnessTest::changedRequestsAreRefused()
{
    QFETCH(SoapRequest, request);
    QFETCH(QString, cause);
    const HttpAnswer answer = m_fixture->post(request);
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
    const SoapRequest valid = m_fixture->request("ServiceLogin");
    QByteArray http = valid.toHttp().chopped(valid.body.size());
    http.replace("Content-Length: " + QByteArray::number(valid.body.size()), "Transfer-Encoding: chunked");
    http += QByteArray::number(valid.body.size(), 16) + "\r\n" + valid.body + "\r\n0\r\n\r\n";
    QVERIFY(m_fixture->client().exchange(http).contains("'content-length' is missing"));
}

/// Each element must be there, filled, and hold what is its own.
void CatalogStrictnessTest::addChangedElements(const SoapRequest& valid) const
{
    const QVector<QByteArray> typed{"searchTerm", "userId", "supplierName", "modelName", "configName"};
    for (const QByteArray& element : valid.elements()) {
        const QByteArray row = valid.operation + " " + element;
        const QString named = "'" + element + "'";
        refuse(row + " missing", valid.replaced(valid.element(element), ""), named);
        refuse(row + " not filled", valid.with(element, "string"), named + " must hold");
        const bool isTyped =
            typed.contains(element) || (valid.operation == "UserLogin" && element == "password");
        if (!isTyped)
            refuse(row + " changed", valid.with(element, "x" + m_fixture->value(element)),
                   named + " must hold");
    }
}

void CatalogStrictnessTest::addChangedEnvelopes(const SoapRequest& valid) const
{
    const auto change = [&valid](const QByteArray& name, const QByteArray& part, const QByteArray& changed,
                                 const QString& cause) {
        refuse(name, valid.replaced(part, changed), cause);
    };
    change("no declaration", "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n", "", "XML declaration");
    change("version 1.1", "version=\"1.0", "version=\"1.1", "'version'");
    change("another encoding", "utf-8", "utf-16", "'encoding'");
    change("a byte order mark", "<?xml", "\xef\xbb\xbf<?xml", "XML declaration");
    for (const QByteArray name : {"xmlns:soap", "xmlns:xsd", "xmlns:xsi", "xmlns"}) {
        change("no " + name, name + "=", "id=", "'" + name + "'");
        change("another " + name, name + "=\"http", name + "=\"https", "'" + name + "'");
    }
    change("xsd twice", "<soap:Envelope", "<soap:Envelope xmlns:xsd='http://www.w3.org/2001/XMLSchema'",
           "'xmlns:xsd'");
    change("another prefix", "soap:", "env:", "'soap:Envelope'");
    change("a header", "<soap:Body>", "<soap:Header/><soap:Body>", "'soap:Header'");
    change("an attribute of the body", "<soap:Body>", "<soap:Body id='1'>", "'id'");
    change("two bodies", "</soap:Body>", "</soap:Body><soap:Body/>", "'soap:Body'");
    change("another operation", Search, "GetConfigInfo", "'GetConfigInfo'");
    change("two operations", "</soap:Body>", "<GetConfigInfo/></soap:Body>", "'GetConfigInfo'");
    change("text after the end", "</soap:Envelope>", "</soap:Envelope>tail", "text");
    change("a document type", "<soap:Envelope", "<!DOCTYPE x><soap:Envelope", "a document type");

    const QByteArray page = valid.element("pageSize");
    change("an element twice", page, page + page, "'pageSize'");
    change("two in the wrong order", page, valid.element("pageNumber") + page, "'pageNumber'");
    change("another letter case", page, "<PageSize>5</PageSize>", "'PageSize'");
    change("an attribute", page, "<pageSize a='b'>5</pageSize>", "'pageSize' has an attribute too many: 'a'");
    change("a child", page, "<pageSize><x/>5</pageSize>", "'pageSize' must hold plain text");
    change("CDATA", page, "<pageSize><![CDATA[5]]></pageSize>", "'pageSize' must hold plain text");
    change("a comment", page, "<!-- c -->" + page, "a comment");
    change("an instruction", page, "<?php ?>" + page, "a processing instruction");
    change("loose text", page, "loose" + page, "text");
    change("an element more", "</" + Search, "<more/></" + Search, "'more'");
}

void CatalogStrictnessTest::addChangedHeaders(const SoapRequest& valid) const
{
    const auto change = [&valid](const char* name, const QByteArray& header, const QByteArray& value,
                                 const QString& cause) {
        refuse(name, valid.withHeader(header, value), cause);
    };
    const QByteArray action = valid.headers.at(1).second;
    const QByteArray prefix = action.chopped(Search.size());
    change("quoted action", "SOAPAction", "\"" + action + "\"", "quotation marks");
    change("action without namespace", "SOAPAction", Search, "SOAPAction");
    change("action with https", "SOAPAction", "https" + action.mid(4), "SOAPAction");
    change("unknown action", "SOAPAction", prefix + "GetModelDetail", "GetModelDetail");
    change("action of another endpoint", "SOAPAction", prefix + "ServiceLogin",
           "'/ContentWS/contentws.asmx'");
    change("action of another body", "SOAPAction", prefix + "GetConfigInfo", "'GetConfigInfo'");
    change("another type", "Content-Type", "application/soap+xml; charset=utf-8", "'content-type'");
    change("no charset", "Content-Type", "text/xml", "'content-type'");
    change("an encoding", "Content-Encoding", "gzip", "encoded");
    for (const auto& header : valid.headers) {
        SoapRequest twice = valid;
        twice.headers.append(header);
        refuse("two of " + header.first, twice, "more than once");
        refuse("no " + header.first, valid.withHeader(header.first, {}),
               "'" + header.first.toLower() + "' is missing");
    }
    const QPair<QByteArray, QString> paths[] = {
        {"/ContentWS/contentws.asmx", "'/ContentWS/ExternalWS.asmx'"},
        {"/contentws/externalws.asmx", "no endpoint"},
    };
    for (const auto& [path, cause] : paths) {
        SoapRequest request = valid;
        request.path = path;
        refuse(path, request, cause);
    }
}

void CatalogStrictnessTest::addChangedValues() const
{
    const auto change = [this](const QByteArray& operation, const QByteArray& element,
                               const QByteArray& value, const QString& cause) {
        refuse(element + " '" + value + "'", m_fixture->request(operation).with(element, value), cause);
    };
    for (const char* page : {"1.5", " 1", "99999999999", ""})
        change(Search, "pageNumber", page, "a whole number");
    change(Search, "apiKey", m_fixture->value("sessionId"), "'apiKey'");
    change("GetDownload2D", "userToken", m_fixture->value("apiKey"), "'userToken'");
    change("GetDownload2D", "drawingView", " Front", "a drawing view");
    change("GetDownload2D", "inputParameters", "\n   ", "nothing");
    change("GetConfigInfo", "supplierName", "Nobody & Sons", "'Nobody & Sons'");
    change("GetConfigParams", "modelName", " " + m_fixture->value("modelName"), "has no model");
    change("GetConfigParams", "configName", "", "has no configuration");
    change("GetDownload2D", "configName", "M5 x 17", "has no configuration 'M5 x 17'");
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
    change("deep and closed", opened + QByteArray("</a>").repeated(50000), "'soap:Envelope'");
    change("deep document type", "<!DOCTYPE a " + QByteArray("[<!").repeated(100000), notWellFormed);
    change("entity bomb", "<!DOCTYPE a [<!ENTITY b 'c'><!ENTITY d '&b;&b;'>]><a>&d;</a>", noText);
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
    QTest::newRow("endless body") << "POST / HTTP/1.1\r\nContent-Length: 9999999999\r\n\r\n" + flood;
    QTest::newRow("negative body") << QByteArray("POST / HTTP/1.1\r\nContent-Length: -1\r\n\r\n");
    QTest::newRow("endless chunk") << "POST / HTTP/1.1\r\nTransfer-Encoding: chunked\r\n\r\n" + flood;
    QTest::newRow("long path") << "GET /" + QByteArray(8000, 'a') + " HTTP/1.1\r\n\r\n";
    QTest::newRow("unknown method") << QByteArray("BREW / HTTP/1.1\r\n\r\n");
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
