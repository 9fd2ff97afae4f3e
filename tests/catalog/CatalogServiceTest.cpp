#include "dev/catalog/CatalogSite.h"
#include "dev/catalog/drawings/PartDrawing.h"
#include "dev/catalog/soap/WireContract.h"
#include "tests/catalog/CatalogFixture.h"
#include "tests/support/FatalWarnings.h"

#include <QDomDocument>
#include <QImage>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QRegularExpression>
#include <QtTest>

#include <memory>
#include <string>
#include <vector>

using devcatalog::CatalogServer;
using devcatalog::CatalogServerOptions;
using test::HttpAnswer;
using test::RightForm;
using test::SoapRequest;

namespace
{

/// The elements of a reply by name, in document order.
QVector<QDomElement> elements(const HttpAnswer& answer, const QString& name)
{
    QDomDocument document;
    document.setContent(answer.body);
    const QDomNodeList nodes = document.elementsByTagName(name);
    QVector<QDomElement> result;
    for (int index = 0; index < nodes.count(); ++index)
        result.append(nodes.at(index).toElement());
    return result;
}

QString child(const QDomElement& element, int position)
{
    return element.childNodes().at(position).toElement().text();
}

} // namespace

/// The development catalog as its clients meet it: over HTTPS, on a free port.
class CatalogServiceTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_fixture = std::make_unique<test::CatalogFixture>(); }
    void init() { m_warnings = std::make_unique<test::FatalWarnings>(); }
    void cleanup() { m_warnings.reset(); }

    void everyOperationIsCarriedOut();
    void wrongCredentialsGiveAnEmptyToken();
    void searchesComeInPages_data();
    void searchesComeInPages();
    void everyViewIsDrawnOrEmpty();
    void drawingsAreKeptForDownload();
    void requestsAtTheSameTime();
    void pages();
    void theRequestLogTellsNoSecrets();
    void aTakenPortIsNamed();
    void aStoppedServerForgetsAndStartsAgain();

private:
    std::unique_ptr<test::CatalogFixture> m_fixture;
    std::unique_ptr<test::FatalWarnings> m_warnings;
};

void CatalogServiceTest::everyOperationIsCarriedOut()
{
    const devcatalog::Part& part = m_fixture->catalog().parts().front();
    const test::ClientValues& values = m_fixture->values();
    QVERIFY(QRegularExpression("^[0-9a-f]{32}$").match(values.apiKey).hasMatch());
    QVERIFY(values.apiKey != values.sessionId && values.apiKey != values.userToken);

    const HttpAnswer found = m_fixture->post(m_fixture->form("SimpleSearchAcrossCatalogs"));
    QCOMPARE(found.text("ActualItemCount").toInt(), int(m_fixture->catalog().search(part.name).size()));
    const QDomElement item = elements(found, "ISearchItem").value(0);
    QVERIFY(item.childNodes().count() >= 17);
    QCOMPARE(child(item, 0), " " + QString::fromUtf8(values.model));
    QCOMPARE(child(item, 6), QString::fromStdString(part.description));
    const HttpAnswer picture = m_fixture->client().get("/" + child(item, 7));
    QCOMPARE(picture.contentType, QByteArray("image/png"));
    QCOMPARE(QImage::fromData(picture.body, "PNG").size(), QSize(256, 256));
    QCOMPARE(child(item, 16), QString::fromUtf8(values.supplier));

    const QVector<QDomElement> configurations =
        elements(m_fixture->post(m_fixture->form("GetConfigInfo")), "IConfiguration");
    QCOMPARE(configurations.size(), int(part.configurations.size()));
    QCOMPARE(child(configurations.first(), 0), QString::fromUtf8(values.configuration));

    const QVector<QDomElement> parameters =
        elements(m_fixture->post(m_fixture->form("GetConfigParams")), "IInputParameter");
    QCOMPARE(parameters.size(), int(part.configurations.front().parameters.size()));
    for (int index = 0; index < parameters.size(); ++index) {
        const devcatalog::Parameter& expected = part.configurations.front().parameters.at(std::size_t(index));
        QCOMPARE(parameters.at(index).childNodes().count(), 2);
        QVERIFY(parameters.at(index).hasAttribute("xsi:type"));
        QCOMPARE(child(parameters.at(index), 0), QString::fromStdString(expected.name + expected.unit));
        QCOMPARE(child(parameters.at(index), 1), QString::fromStdString(expected.value));
    }
}

void CatalogServiceTest::wrongCredentialsGiveAnEmptyToken()
{
    for (const char* element : {"userId", "password"}) {
        for (const QByteArray& value : {QByteArray("Demo"), QByteArray()}) {
            RightForm login = m_fixture->form("UserLogin");
            login.value(element) = value;
            QCOMPARE(m_fixture->carriedOut(login), QString(""));
        }
    }
}

void CatalogServiceTest::searchesComeInPages_data()
{
    QTest::addColumn<QByteArray>("page");
    for (const char* page : {"1", "2", "last", "beyond", "0", "-1", "2147483647"})
        QTest::newRow(page) << QByteArray(page);
}

void CatalogServiceTest::searchesComeInPages()
{
    QFETCH(QByteArray, page);
    const QByteArray term = QString::fromUtf8(m_fixture->values().supplier).section(' ', 0, 0).toUtf8();
    const std::vector<const devcatalog::Part*> hits = m_fixture->catalog().search(term.toStdString());
    const int count = int(hits.size());
    QVERIFY2(count > 5, "the term must have more than one page");
    const int last = (count + 4) / 5;
    page.replace("last", QByteArray::number(last)).replace("beyond", QByteArray::number(last + 1));

    RightForm search = m_fixture->form("SimpleSearchAcrossCatalogs");
    search.value("searchTerm") = term;
    search.value("pageNumber") = page;
    const HttpAnswer answer = m_fixture->post(search);
    QCOMPARE(answer.text("ActualItemCount").toInt(), count);

    const int number = page.toInt();
    const QVector<QDomElement> items = elements(answer, "ISearchItem");
    QCOMPARE(items.size(), number < 1 || number > last ? 0 : qMin(5, count - (number - 1) * 5));
    for (int index = 0; index < items.size(); ++index) {
        const int position = (number - 1) * 5 + index;
        const devcatalog::Part* const part = hits.at(std::size_t(position));
        QCOMPARE(child(items.at(index), 0), " " + QString::fromStdString(part->name));
    }
}

void CatalogServiceTest::everyViewIsDrawnOrEmpty()
{
    const devcatalog::Part& part = m_fixture->catalog().parts().front();
    for (const std::string_view view : devcatalog::DrawingViews) {
        RightForm download = m_fixture->form("GetDownload2D");
        download.value("drawingView") = QByteArray(view.data(), int(view.size()));
        const bool isSupported = drawPart(part, part.configurations.front(), view).has_value();
        QCOMPARE(!m_fixture->carriedOut(download).isEmpty(), isSupported);
    }
}

void CatalogServiceTest::drawingsAreKeptForDownload()
{
    const test::CatalogClient& client = m_fixture->client();
    const QString address = m_fixture->carriedOut(m_fixture->form("GetDownload2D"));
    QVERIFY2(address.startsWith(client.address("/")), qPrintable(address));
    const QString path = QUrl(address).path();
    const HttpAnswer drawing = client.get(path);
    QVERIFY(drawing.body.startsWith("AC1015"));
    QCOMPARE(client.get(path).body, drawing.body);
    QCOMPARE(client.get(path.chopped(1)).status, 404);

    devcatalog::CatalogSite site(m_fixture->catalog());
    devcatalog::Part part;
    part.family = "gear";
    const QRegularExpression safe("^Downloads/[0-9a-f]{16}/[A-Za-z0-9][A-Za-z0-9_-]{0,59}\\.dwg$");
    const std::string longName(300, 'x');
    for (const char* name : {"../../etc/passwd", "\u6b6f\u8eca", " -a&b\"<c>%\r\n", longName.c_str()}) {
        part.name = name;
        const std::string file = site.addDrawing(part, "drawing");
        QVERIFY2(safe.match(QString::fromStdString(file)).hasMatch(), file.c_str());
    }
    const std::string oldest = "/" + site.addDrawing(part, "oldest");
    for (int later = 0; later < 10; ++later)
        site.addDrawing(part, "later");
    QCOMPARE(site.get(oldest).body, std::string("oldest"));
    for (int later = 0; later < 1000; ++later)
        site.addDrawing(part, "later");
    QCOMPARE(site.get(oldest).status, 404);
}

void CatalogServiceTest::requestsAtTheSameTime()
{
    constexpr int count = 60;
    QNetworkAccessManager managers[count];
    QVector<QNetworkReply*> replies;
    const RightForm forms[] = {m_fixture->form("SimpleSearchAcrossCatalogs"),
                               m_fixture->form("GetDownload2D"), m_fixture->form("UserLogin")};
    for (int index = 0; index < count; ++index) {
        const SoapRequest soap = forms[index % 3].request(m_fixture->serviceHost());
        QNetworkRequest request{QUrl(m_fixture->client().address(soap.path))};
        request.setSslConfiguration(m_fixture->client().tls());
        for (const auto& [name, value] : soap.headers)
            request.setRawHeader(name, value);
        replies.append(managers[index].post(request, soap.body));
    }
    for (int index = 0; index < count; ++index) {
        QTRY_VERIFY_WITH_TIMEOUT(replies.at(index)->isFinished(), 20000);
        QCOMPARE(replies.at(index)->error(), QNetworkReply::NoError);
        QVERIFY(replies.at(index)->readAll().contains(forms[index % 3].operation + "Result>"));
    }
}

void CatalogServiceTest::pages()
{
    for (const char* path : {"/Login.aspx?ForgotPassword=true%5C", "/Register.aspx/%5C"}) {
        const HttpAnswer answer = m_fixture->client().get(path);
        QCOMPARE(answer.status, 200);
        QVERIFY2(answer.body.contains("development catalog"), path);
    }
    for (const char* path :
         {"/", "/ContentWS/ExternalWS.asmx", "/Thumbnails/", "/Thumbnails/00.png", "/Thumbnails/-1.png",
          "/Thumbnails/999999.png", "/Thumbnails/../Login.aspx", "/Downloads/", "/%00", "/%0d%0aX:%20y"}) {
        const HttpAnswer answer = m_fixture->client().get(path);
        QVERIFY2(answer.status == 404, path);
        QVERIFY2(answer.body.contains("nothing at this address"), path);
    }
}

void CatalogServiceTest::theRequestLogTellsNoSecrets()
{
    const auto before = m_fixture->server().requests().size();
    m_fixture->carriedOut(m_fixture->form("UserLogin"));
    RightForm wrong = m_fixture->form("GetDownload2D");
    wrong.value("drawingView") = m_fixture->values().userToken;
    QCOMPARE(m_fixture->post(wrong).status, 500);
    m_fixture->client().get("/nothing?password=demo");

    const std::vector<devcatalog::RequestRecord> records = m_fixture->server().requests();
    QCOMPARE(records.size(), before + 3);
    QCOMPARE(records.at(before).operation, std::string("UserLogin"));
    QCOMPARE(records.at(before).fault, std::string());
    QCOMPARE(records.at(before + 1).operation, std::string("GetDownload2D"));
    QVERIFY(records.at(before + 1).fault.find("'drawingView'") != std::string::npos);
    QCOMPARE(records.at(before + 2).path, std::string("/nothing"));
    QCOMPARE(records.at(before + 2).status, 404);

    const QByteArray log = m_fixture->log();
    QCOMPARE(log.count('\n'), int(records.size()));
    QVERIFY(log.contains("UserLogin 200\n"));
    const test::ClientValues& values = m_fixture->values();
    for (const QByteArray& secret : {values.sessionId, values.apiKey, values.userToken, QByteArray("demo")})
        QVERIFY2(!log.contains(secret), secret);
}

void CatalogServiceTest::aTakenPortIsNamed()
{
    CatalogServerOptions same = m_fixture->options();
    same.port = m_fixture->server().port();
    CatalogServer second(same);
    try {
        second.start();
        QFAIL("two servers share a port");
    } catch (const std::runtime_error& error) {
        const QString text = error.what();
        QVERIFY2(text.contains(QString::number(same.port)), error.what());
        QVERIFY2(text.contains("PARTHARBOR_SERVICE_HOST") && !text.contains('\n'), error.what());
    }

    CatalogServerOptions wrong = m_fixture->options();
    for (const char* host : {"a b", "a:0", "a:65536", "a:1:2", "[::1", "a,DNS:b", ":80"}) {
        wrong.serviceHost = host;
        QVERIFY_EXCEPTION_THROWN(CatalogServer(wrong).start(), std::invalid_argument);
    }
}

void CatalogServiceTest::aStoppedServerForgetsAndStartsAgain()
{
    CatalogServer server(m_fixture->options());
    server.start();
    const QString caFile = QString::fromStdString(server.caFile().string());
    const test::CatalogClient before(server.port(), caFile);
    QCOMPARE(before.get("/Login.aspx").status, 200);
    server.stop();
    QCOMPARE(server.port(), 0);
    QCOMPARE(before.get("/Login.aspx").status, 0);

    server.start();
    const test::CatalogClient after(server.port(), caFile);
    const SoapRequest search = m_fixture->form("SimpleSearchAcrossCatalogs")
                                   .request(QByteArray::fromStdString(server.serviceHost()));
    QVERIFY(after.post(search).text("faultstring").contains("'apiKey'"));
}

QTEST_GUILESS_MAIN(CatalogServiceTest)
#include "CatalogServiceTest.moc"
