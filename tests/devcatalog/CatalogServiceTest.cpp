#include "devcatalog/CatalogSite.h"
#include "devcatalog/drawings/PartDrawing.h"
#include "tests/devcatalog/CatalogFixture.h"
#include "tests/support/FatalWarnings.h"

#include <QDomDocument>
#include <QImage>
#include <QNetworkReply>
#include <QRegularExpression>
#include <QSet>
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
    for (int index = 0; index < nodes.count(); ++index) {
        result.append(nodes.at(index).toElement());
    }
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
    void initTestCase();
    void init();
    void cleanup();

    void everyOperationIsCarriedOut();
    void wrongCredentialsGiveAnEmptyToken();
    void searchesComeInPages_data();
    void searchesComeInPages();
    void everyViewIsDrawnOrEmpty();
    void downloadsAreFilesOfTheRelease();
    void requestsAtTheSameTime();

    void picturesArePng();
    void pages_data();
    void pages();
    void fileNamesAreSafeAndDrawingsFew();

    void theRequestLogTellsNoSecrets();
    void aTakenPortIsNamed();
    void aStoppedServerForgetsAndStartsAgain();

private:
    std::unique_ptr<test::CatalogFixture> m_fixture;
    std::unique_ptr<test::FatalWarnings> m_warnings;
};

void CatalogServiceTest::initTestCase()
{
    m_fixture = std::make_unique<test::CatalogFixture>();
}

void CatalogServiceTest::init()
{
    m_warnings = std::make_unique<test::FatalWarnings>();
}

void CatalogServiceTest::cleanup()
{
    m_warnings.reset();
}

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
    QVERIFY(!child(item, 7).startsWith('/'));
    QCOMPARE(m_fixture->client().get("/" + child(item, 7)).status, 200);
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

    QVERIFY(
        m_fixture->carriedOut(m_fixture->form("GetDownload2D")).startsWith(m_fixture->client().address("/")));
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
    for (const char* page : {"1", "2", "last", "beyond", "0", "-1", "2147483647"}) {
        QTest::newRow(page) << QByteArray(page);
    }
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
    const char* const views[] = {"PREDEFINED", "4VIEW",  "MULTI", "FRONT",     "TOP",      "RIGHT",
                                 "BACK",       "BOTTOM", "LEFT",  "ISOMETRIC", "DIMETRIC", "TRIMETRIC"};
    const devcatalog::Part& part = m_fixture->catalog().parts().front();
    for (const char* view : views) {
        RightForm download = m_fixture->form("GetDownload2D");
        download.value("drawingView") = QByteArray("eDrawingView_") + view;
        const bool isSupported =
            drawPart(part, part.configurations.front(), std::string("eDrawingView_") + view).has_value();
        QCOMPARE(!m_fixture->carriedOut(download).isEmpty(), isSupported);
    }
}

void CatalogServiceTest::downloadsAreFilesOfTheRelease()
{
    const QUrl address = m_fixture->carriedOut(m_fixture->form("GetDownload2D"));
    QVERIFY(QRegularExpression("^[A-Za-z0-9_-]+\\.dwg$").match(address.fileName()).hasMatch());
    const HttpAnswer drawing = m_fixture->client().get(address.path());
    QCOMPARE(drawing.status, 200);
    QVERIFY(drawing.body.startsWith("AC1015"));
    QCOMPARE(m_fixture->client().get(address.path()).body, drawing.body);
    QCOMPARE(m_fixture->client().get(address.path().chopped(1)).status, 404);
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
        for (const auto& [name, value] : soap.headers) {
            request.setRawHeader(name, value);
        }
        replies.append(managers[index].post(request, soap.body));
    }
    for (int index = 0; index < count; ++index) {
        QTRY_VERIFY_WITH_TIMEOUT(replies.at(index)->isFinished(), 20000);
        QCOMPARE(replies.at(index)->error(), QNetworkReply::NoError);
        QVERIFY(replies.at(index)->readAll().contains(forms[index % 3].operation + "Result>"));
    }
}

void CatalogServiceTest::picturesArePng()
{
    const devcatalog::CatalogSite site(m_fixture->catalog());
    QSet<QByteArray> pictures;
    for (const devcatalog::Part* part :
         m_fixture->catalog().search(m_fixture->values().supplier.toStdString())) {
        const HttpAnswer answer =
            m_fixture->client().get("/" + QString::fromStdString(site.thumbnailPath(*part)));
        QCOMPARE(answer.contentType, QByteArray("image/png"));
        QCOMPARE(QImage::fromData(answer.body, "PNG").size(), QSize(256, 256));
        pictures.insert(answer.body);
    }
    QVERIFY(pictures.size() > 1);
}

void CatalogServiceTest::pages_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("/Login.aspx?ForgotPassword=true%5C") << 200 << QByteArray("development catalog");
    QTest::newRow("/Register.aspx/%5C") << 200 << QByteArray("development catalog");
    for (const char* path : {"/", "/Login", "/ContentWS/ExternalWS.asmx", "/Thumbnails/", "/Thumbnails/0",
                             "/Thumbnails/00.png", "/Thumbnails/-1.png", "/Thumbnails/999999.png",
                             "/Thumbnails/../Login.aspx", "/Downloads/", "/%00", "/%0d%0aX: y"}) {
        QTest::newRow(path) << 404 << QByteArray("nothing at this address");
    }
}

void CatalogServiceTest::pages()
{
    QFETCH(int, status);
    QFETCH(QByteArray, text);
    const QByteArray answer =
        m_fixture->client().exchange("GET " + QByteArray(QTest::currentDataTag()).replace(' ', "%20") +
                                     " HTTP/1.1\r\nHost: localhost\r\n\r\n");
    QVERIFY2(answer.startsWith("HTTP/1.1 " + QByteArray::number(status)), answer);
    QVERIFY2(answer.contains(text), answer);
}

void CatalogServiceTest::fileNamesAreSafeAndDrawingsFew()
{
    devcatalog::CatalogSite site(m_fixture->catalog());
    devcatalog::Part part;
    part.family = "gear";
    const std::string longName(300, 'x');
    const QRegularExpression safe("^Downloads/[0-9a-f]{16}/[A-Za-z0-9][A-Za-z0-9_-]{0,59}\\.dwg$");
    for (const char* name : {"M8 x 40", "../../etc/passwd", "\u6b6f\u8eca", "", ".dwg.dwg", " -a&b\"<c>%\r\n",
                             longName.c_str()}) {
        part.name = name;
        const std::string path = site.addDrawing(part, "drawing");
        QVERIFY2(safe.match(QString::fromStdString(path)).hasMatch(), path.c_str());
        QCOMPARE(site.get("/" + path).body, std::string("drawing"));
    }

    const std::string oldest = "/" + site.addDrawing(part, "oldest");
    int later = 0;
    while (site.get(oldest).status == 200 && later < 1000) {
        site.addDrawing(part, "later");
        ++later;
    }
    QVERIFY(later >= 10 && later < 1000);
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
    for (const QByteArray& secret : {values.sessionId, values.apiKey, values.userToken, QByteArray("demo")}) {
        QVERIFY2(!log.contains(secret), secret);
    }
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
        QVERIFY2(text.contains("PARTHARBOR_SERVICE_HOST"), error.what());
        QVERIFY2(!text.contains('\n'), error.what());
    }
    QCOMPARE(second.port(), 0);
    QCOMPARE(m_fixture->client().get("/Login.aspx").status, 200);

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
    test::CatalogClient before(server.port(), caFile);
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
