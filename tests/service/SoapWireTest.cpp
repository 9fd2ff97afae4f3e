#include "panel/DrawingViews.h"
#include "panel/PartHarbor_2D.h"
#include "panel/PreviewUI.h"
#include "service/DataStorage.h"
#include "service/SessionValues.h"
#include "tests/service/Envelope.h"
#include "tests/service/ServiceFixture.h"
#include "tests/support/CannedReplies.h"

#include <QGridLayout>
#include <QTest>

using test::ScriptedReply;

namespace
{

const QString ContentNamespace = "http://" + test::ScriptedCatalog::host() + "/Content";

struct ExpectedRequest {
    const char* operation;
    const char* path;
    const char* parameters; ///< parted by commas
};

/// Where the asker gives a value, "%1"; its key, "%2"; its token, "%3"; its drawing view, "%4".
const QVector<ExpectedRequest> ExpectedRequests{
    {"ServiceLogin", "/ContentWS/contentws.asmx",
     "catalog=partharbor,serviceuser=PlotvaneSU,password=TulipWindowCanvas,enduser=Plotvane,debug=false"},
    {"GenerateApiKeyByDescription", "/ContentWS/adminws.asmx",
     "sessionId=%1,description=Plotvane session ID1"},
    {"UserLogin", "/ContentWS/ExternalWS.asmx", "apiKey=%2,userId=%1,password=%1"},
    {"SimpleSearchAcrossCatalogs", "/ContentWS/ExternalWS.asmx",
     "apiKey=%2,searchTerm=%1,totalLimit=10000,pageSize=5,pageNumber=%1,language=Base"},
    {"GetConfigInfo", "/ContentWS/ExternalWS.asmx", "apiKey=%2,supplierName=%1,modelName=%1,language=Base"},
    {"GetConfigParams", "/ContentWS/ExternalWS.asmx",
     "apiKey=%2,supplierName=%1,modelName=%1,configName=%1,language=Base"},
    {"GetDownload2D", "/ContentWS/ExternalWS.asmx",
     "apiKey=%2,userToken=%3,supplierName=%1,modelName=%1,configName=%1,formatName=dwg,version=R2002,"
     "units=cm,inputParameters=,drawingView=%4,hiddenEdge=eHiddenEdge_UNSPECIFIED,"
     "tangentEdge=eTangentEdge_UNSPECIFIED,zipOutput=false,endUser=Plotvane"},
};

/// Request line and the headers that the senders set, as they arrived and in that order: the network layer
/// puts the true length behind the rest. A cookie would show up, too.
QStringList headOf(const test::RecordedRequest& request)
{
    QStringList lines{QString::fromUtf8(request.method + ' ' + request.target)};
    for (const auto& header : request.headers) {
        const QString name = QString::fromUtf8(header.first);
        if (QStringList{"content-type", "content-length", "soapaction", "cookie"}.contains(name.toLower()))
            lines.append(name + ": " + QString::fromUtf8(header.second));
    }
    return lines;
}

} // namespace

/// What goes over the wire, sent by the add-in's own senders.
class SoapWireTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_fixture = std::make_unique<test::ServiceFixture>(); }
    void cleanup() { m_fixture.reset(); }

    void requests_data();
    void requests();

private:
    std::unique_ptr<test::ServiceFixture> m_fixture;
};

void SoapWireTest::requests_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("drawingView");
    const auto add = [](const char* name, const QString& value) { QTest::newRow(name) << value << value; };
    add("plain", "M8 x 40");
    add("markup", "a<b>&amp;\"c\" 'd' ]]> <!-- </soap:Body>");
    add("line end, tab, blanks", "  one\n\ttwo ");
    add("beyond the basic plane",
        QString::fromUtf8("\xF0\x9F\x94\xA9 \xF0\xA0\x80\x80 \xC3\xA9 \xE4\xB8\xAD"));
    add("10,000 characters", QString("0123456789").repeated(1000));
    add("10,000 to be escaped", QString("<&").repeated(5000));
    add("a view without its blank", "Detailed");
    QTest::newRow("the detailed view") << " Detailed"
                                       << "eDrawingView_PREDEFINED";
    QTest::newRow("empty") << QString() << "eDrawingView_PREDEFINED";
}

void SoapWireTest::requests()
{
    QFETCH(QString, value);
    QFETCH(QString, drawingView);
    const QString key = value.isEmpty() ? "key" : value;     // without a key nothing is searched for,
    const QString token = value.isEmpty() ? "token" : value; // and without a token nothing downloaded
    test::ScriptedService& service = m_fixture->service();
    service.setReply("ServiceLogin",
                     ScriptedReply::result("ServiceLogin", value).withHeader("Set-Cookie", "id=1; Path=/"));
    service.setReply("GenerateApiKeyByDescription",
                     ScriptedReply::result("GenerateApiKeyByDescription", key));
    service.setReply("UserLogin", ScriptedReply::result("UserLogin", token));
    service.setReply("GetConfigInfo", test::configurationsReply({value}));
    service.setReply("/ContentWS/ExternalWS.asmx", ScriptedReply::never());

    DataStorage session;
    QTRY_COMPARE(ApiKey, key);
    session.SetUserId(value);
    session.SetPassword(value);
    session.UserLogin();
    QTRY_COMPARE(m_fixture->boxes().size(), 1);
    QCOMPARE(UserToken, token);

    QWidget container;
    new QGridLayout(&container);
    SearchTerm = value;
    CurrentPageNumber = value;
    PartHarbor_2D results(nullptr, &container);
    results.startSearch();
    QTRY_COMPARE(service.requests("SimpleSearchAcrossCatalogs").size(), 1);
    PreviewUI detail(nullptr, &container);
    detail.setModel(value, value);
    detail.GetConfigInfo();
    QTRY_COMPARE(service.requests("GetConfigParams").size(), 1);
    g_drawingView = value;
    detail.GetDownloadURL();
    QTRY_COMPARE(service.requests("GetDownload2D").size(), 1);

    QCOMPARE(service.requests().size(), ExpectedRequests.size());
    for (int i = 0; i < ExpectedRequests.size(); ++i) {
        const ExpectedRequest& expected = ExpectedRequests.at(i);
        const test::RecordedRequest& request = service.requests().at(i);
        QCOMPARE(headOf(request),
                 (QStringList{QString("POST ") + expected.path, "Content-Type: text/xml; charset=utf-8",
                              "SOAPAction: " + ContentNamespace + '/' + expected.operation,
                              QString("Content-Length: %1").arg(request.body.size())}));

        QStringList parameters = QString(expected.parameters).split(',');
        parameters.replaceInStrings("=%1", '=' + value);
        parameters.replaceInStrings("=%2", '=' + key);
        parameters.replaceInStrings("=%3", '=' + token);
        parameters.replaceInStrings("=%4", '=' + drawingView);
        const auto envelope = test::Envelope::read(request.body);
        QCOMPARE(envelope.fault, QString());
        QCOMPARE(envelope.version, QString("1.0"));
        QCOMPARE(envelope.encoding, QString("utf-8"));
        QCOMPARE(envelope.prefixes,
                 (QMap<QString, QString>{{"xsi", "http://www.w3.org/2001/XMLSchema-instance"},
                                         {"xsd", "http://www.w3.org/2001/XMLSchema"},
                                         {"soap", "http://schemas.xmlsoap.org/soap/envelope/"}}));
        QCOMPARE(envelope.operation, QString(expected.operation));
        QCOMPARE(envelope.operationNamespace, ContentNamespace);
        QCOMPARE(envelope.parameters, parameters);
        if (!value.contains('\n'))
            QCOMPARE(test::layoutFault(request.body), QString());
    }
    // The bootstrap's two replies; nothing else is written, least of all a password or token.
    QCOMPARE(m_fixture->warnings().debugLines().size(), 2);
    for (const QString& line : m_fixture->warnings().debugLines())
        QVERIFY2(line.startsWith("data \"<?xml"), qPrintable(line));
}

QTEST_MAIN(SoapWireTest)
#include "SoapWireTest.moc"
