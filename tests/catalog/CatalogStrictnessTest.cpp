#include "tests/catalog/CatalogFixture.h"

#include <QTest>

#include <memory>

using test::HttpAnswer;
using test::SoapRequest;

Q_DECLARE_METATYPE(test::SoapRequest)

namespace
{

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

    void changedRequestsAreRefused_data();
    void changedRequestsAreRefused();
    void hostileConnectionsDoNoHarm();

private:
    static void addChangedElements(const SoapRequest& valid);
    static void addChangedEnvelopes(const SoapRequest& valid);
    static void addChangedHeaders(const SoapRequest& valid);

    std::unique_ptr<test::CatalogFixture> m_fixture;
};

void CatalogStrictnessTest::changedRequestsAreRefused_data()
{
    QTest::addColumn<SoapRequest>("request");
    QTest::addColumn<QString>("cause");
    for (const QByteArray& operation : test::CatalogFixture::operations())
        addChangedElements(m_fixture->request(operation));
    const SoapRequest valid = m_fixture->request(Search);
    addChangedEnvelopes(valid);
    addChangedHeaders(valid);

    refuse("no whole number", valid.with("pageNumber", "1.5"), "a whole number");
    refuse("another token", valid.with("apiKey", m_fixture->value("sessionId")), "'apiKey'");
    const SoapRequest download = m_fixture->request("GetDownload2D");
    refuse("unknown view", download.with("drawingView", " Front"), "a drawing view");
    refuse("filled parameters", download.with("inputParameters", "\n   "), "nothing");
    refuse("unknown supplier", download.with("supplierName", "Nobody & Sons"), "'Nobody & Sons'");
    refuse("unknown model", download.with("modelName", " " + m_fixture->value("modelName")), "has no model");
    refuse("unknown configuration", download.with("configName", "M5 x 17"), "has no configuration 'M5 x 17'");
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

/// Each element must be there, and filled.
void CatalogStrictnessTest::addChangedElements(const SoapRequest& valid)
{
    for (const QByteArray& element : valid.elements()) {
        const QByteArray row = valid.operation + " " + element;
        const QString named = "'" + element + "'";
        refuse(row + " missing", valid.replaced(valid.element(element), ""), named);
        refuse(row + " not filled", valid.with(element, "string"), named + " must hold");
    }
}

void CatalogStrictnessTest::addChangedEnvelopes(const SoapRequest& valid)
{
    const auto change = [&valid](const QByteArray& name, const QByteArray& part, const QByteArray& changed,
                                 const QString& cause) {
        refuse(name, valid.replaced(part, changed), cause);
    };
    change("no declaration", "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n", "", "XML declaration");
    change("another encoding", "utf-8", "utf-16", "'encoding'");
    for (const QByteArray name : {"xmlns:soap", "xmlns:xsd", "xmlns:xsi", "xmlns"})
        change("another " + name, name + "=\"http", name + "=\"https", "'" + name + "'");
    change("another prefix", "soap:", "env:", "'soap:Envelope'");
    change("a header", "<soap:Body>", "<soap:Header/><soap:Body>", "'soap:Header'");
    change("another operation", Search, "GetConfigInfo", "'GetConfigInfo'");
    change("two operations", "</soap:Body>", "<GetConfigInfo/></soap:Body>", "'GetConfigInfo'");
    change("a document type", "<soap:Envelope", "<!DOCTYPE x><soap:Envelope", "a document type");
    const QByteArray page = valid.element("pageSize");
    change("an element twice", page, page + page, "'pageSize'");
    change("two in the wrong order", page, valid.element("pageNumber") + page, "'pageNumber'");
    change("an attribute", page, "<pageSize a='b'>5</pageSize>", "'pageSize' has an attribute too many: 'a'");
    change("a child", page, "<pageSize><x/>5</pageSize>", "'pageSize' must hold plain text");
    change("loose text", page, "loose" + page, "text");

    const auto replaceAll = [&valid](const char* name, const QByteArray& body, const QString& cause) {
        SoapRequest request = valid;
        request.body = "<?xml version='1.0' encoding='utf-8'?>" + body;
        refuse(name, request, cause);
    };
    replaceAll("cut", "<soap:Envelope><soap:Bo", "not well-formed");
    replaceAll("deep", QByteArray("<a>").repeated(50000) + QByteArray("</a>").repeated(50000),
               "'soap:Envelope'");
    replaceAll("entity bomb", "<!DOCTYPE a [<!ENTITY b 'c'><!ENTITY d '&b;&b;'>]><a>&d;</a>", "no XML text");
    replaceAll("zero byte", QByteArray("<a>\0</a>", 8), "no XML text");
    replaceAll("Latin-1", "<a>\xe4</a>", "no XML text");
    replaceAll("600 KB", QByteArray(600000, 'x'), "too long");
}

void CatalogStrictnessTest::addChangedHeaders(const SoapRequest& valid)
{
    const auto change = [&valid](const char* name, const QByteArray& header, const QByteArray& value,
                                 const QString& cause) {
        refuse(name, valid.withHeader(header, value), cause);
    };
    const QByteArray action = valid.headers.at(1).second;
    const QByteArray prefix = action.chopped(Search.size());
    change("quoted action", "SOAPAction", "\"" + action + "\"", "quotation marks");
    change("unknown action", "SOAPAction", prefix + "GetModelDetail", "GetModelDetail");
    change("action of another endpoint", "SOAPAction", prefix + "ServiceLogin",
           "'/ContentWS/contentws.asmx'");
    change("action of another body", "SOAPAction", prefix + "GetConfigInfo", "'GetConfigInfo'");
    change("no charset", "Content-Type", "text/xml", "'content-type'");
    for (const auto& header : valid.headers) {
        SoapRequest twice = valid;
        twice.headers.append(header);
        refuse("two of " + header.first, twice, "more than once");
        refuse("no " + header.first, valid.withHeader(header.first, {}),
               "'" + header.first.toLower() + "' is missing");
    }
    SoapRequest elsewhere = valid;
    elsewhere.path = "/contentws/externalws.asmx";
    refuse("path in another letter case", elsewhere, "no endpoint");
}

void CatalogStrictnessTest::hostileConnectionsDoNoHarm()
{
    // More than the buffers of two sockets hold, so that it goes out whole only to a server that reads it
    // all.
    const QByteArray flood(32000000, '1');
    const QByteArray post = "POST / HTTP/1.1\r\n";
    const QVector<QByteArray> all{QByteArray("\0\1\2\3\r\n\r\n", 8),
                                  flood,
                                  post + "Content-Length: 9999999999\r\n\r\n" + flood,
                                  post + "Content-Length: -1\r\n\r\n",
                                  post + "Transfer-Encoding: chunked\r\n\r\n" + flood,
                                  "GET /" + QByteArray(8000, 'a') + " HTTP/1.1\r\n\r\n",
                                  "BREW / HTTP/1.1\r\n\r\n"};
    for (const QByteArray& bytes : all) {
        qint64 sent = 0;
        const QByteArray begin = bytes.left(60);
        QVERIFY2(!m_fixture->client().exchange(bytes, &sent).contains(" 200 "), begin);
        QVERIFY2(sent < flood.size(), begin); // It reads without end.
        QCOMPARE(m_fixture->client().get("/Login.aspx").status, 200);
    }
}

QTEST_GUILESS_MAIN(CatalogStrictnessTest)
#include "CatalogStrictnessTest.moc"
