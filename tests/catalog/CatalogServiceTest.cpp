#include "dev/catalog/CatalogSite.h"
#include "dev/catalog/CertificateAuthority.h"
#include "dev/catalog/FileCache.h"
#include "dev/catalog/PicturePreparation.h"
#include "dev/catalog/drawings/PartDrawing.h"
#include "dev/dwg/Writer.h"
#include "tests/catalog/CatalogFixture.h"
#include "tests/support/FatalWarnings.h"

#include <QDomDocument>
#include <QFile>
#include <QImage>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <atomic>
#include <future>
#include <memory>
#include <mutex>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

using devcatalog::CatalogServer;
using devcatalog::CatalogServerOptions;
using test::HttpAnswer;
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

    void keysAndParametersAreGiven();
    void searchesComeInPages();
    void drawingsAreKeptForDownload();
    void drawingsHaveSafeNames();
    void filesAreMadeOnceAndKept();
    void nobodyWaitsForAnother();
    void picturesAreMadeBeforehand();
    void pages();
    void theRequestLogTellsNoSecrets();
    void aTakenPortIsNamed();
    void theAuthorityIsKeptUntilItIsSpent();

private:
    std::unique_ptr<test::CatalogFixture> m_fixture;
    std::unique_ptr<test::FatalWarnings> m_warnings;
};

void CatalogServiceTest::keysAndParametersAreGiven()
{
    const QByteArray key = m_fixture->value("apiKey");
    QVERIFY(QRegularExpression("^[0-9a-f]{32}$").match(key).hasMatch());
    QVERIFY(key != m_fixture->value("sessionId") && key != m_fixture->value("userToken"));
    const SoapRequest login = m_fixture->request("UserLogin");
    for (const char* element : {"userId", "password"})
        for (const QByteArray& text : {QByteArray("Demo"), QByteArray()})
            QCOMPARE(m_fixture->carriedOut(login.with(element, text)), QString(""));

    const auto& expected = m_fixture->catalog().parts().front().configurations.front().parameters;
    const auto given = elements(m_fixture->post(m_fixture->request("GetConfigParams")), "IInputParameter");
    QCOMPARE(given.size(), int(expected.size()));
    for (int index = 0; index < given.size(); ++index) {
        const devcatalog::Parameter& parameter = expected.at(std::size_t(index));
        QVERIFY(given.at(index).hasAttribute("xsi:type"));
        QCOMPARE(child(given.at(index), 0), QString::fromStdString(parameter.name + parameter.unit));
        QCOMPARE(child(given.at(index), 1), QString::fromStdString(parameter.value));
    }
}

void CatalogServiceTest::searchesComeInPages()
{
    const QByteArray term = QString::fromUtf8(m_fixture->value("supplierName")).section(' ', 0, 0).toUtf8();
    const std::vector<const devcatalog::Part*> hits = m_fixture->catalog().search(term.toStdString());
    const int count = int(hits.size());
    QVERIFY2(count > 5, "the term must have more than one page");
    const int last = (count + 4) / 5;
    const SoapRequest search = m_fixture->request("SimpleSearchAcrossCatalogs").with("searchTerm", term);
    for (const int page : {1, 2, last, last + 1, 0, -1, 2147483647}) {
        const HttpAnswer answer = m_fixture->post(search.with("pageNumber", QByteArray::number(page)));
        QCOMPARE(answer.text("ActualItemCount").toInt(), count);
        const QVector<QDomElement> items = elements(answer, "ISearchItem");
        QCOMPARE(items.size(), page < 1 || page > last ? 0 : qMin(5, count - (page - 1) * 5));
        for (int index = 0; index < items.size(); ++index)
            QCOMPARE(child(items.at(index), 0),
                     " " + QString::fromStdString(hits.at(std::size_t((page - 1) * 5 + index))->name));
    }
}

void CatalogServiceTest::drawingsAreKeptForDownload()
{
    const test::CatalogClient& client = m_fixture->client();
    const SoapRequest right = m_fixture->request("GetDownload2D");
    const devcatalog::Part& part = m_fixture->catalog().parts().front();
    for (const std::string_view view : devcatalog::drawingViews()) {
        const QString address =
            m_fixture->carriedOut(right.with("drawingView", QByteArray(view.data(), int(view.size()))));
        const auto drawn = drawPart(part, part.configurations.front(), view);
        QCOMPARE(!address.isEmpty(), drawn.has_value());
        if (!drawn)
            continue;
        QVERIFY2(address.startsWith(client.address("/")), qPrintable(address));
        const QString path = QUrl(address).path();
        QCOMPARE(client.get(path).body, QByteArray::fromStdString(dwg::writeDwg(*drawn)));
        QCOMPARE(client.get(path.chopped(1)).status, 404);
    }
}

/// A file name that every system takes, after which clients put a number of their own.
void CatalogServiceTest::drawingsHaveSafeNames()
{
    devcatalog::CatalogSite site(m_fixture->catalog());
    devcatalog::Part part = m_fixture->catalog().parts().front();
    const devcatalog::Configuration configuration = part.configurations.front();
    const std::string view = "eDrawingView_FRONT";
    const QRegularExpression safe("^Downloads/[0-9a-f]{16}/[A-Za-z0-9][A-Za-z0-9_-]{0,58}[A-Za-z_]\\.dwg$");
    const std::string longName(300, '5');
    for (const char* name :
         {"Hex bolt M5", "../../etc/passwd", "\u6b6f\u8eca", " -a&b\"<c>%\r\n", longName.c_str()}) {
        part.name = name;
        const std::string file = site.addDrawing(part, configuration, view);
        QVERIFY2(safe.match(QString::fromStdString(file)).hasMatch(), file.c_str());
    }
    const std::string oldest = "/" + site.addDrawing(part, configuration, view);
    for (const auto& [later, status] : {std::pair(10, 200), std::pair(100, 404)}) {
        for (int drawing = 0; drawing < later; ++drawing)
            site.addDrawing(part, configuration, view);
        QCOMPARE(site.get(oldest).status, status);
    }
}

/// A file is made once for all who ask at the same time, and meanwhile nobody else waits.
void CatalogServiceTest::filesAreMadeOnceAndKept()
{
    devcatalog::FileCache cache(100);
    std::atomic<int> made{0};
    std::promise<void> begun;
    std::promise<void> mayEnd;
    const auto make = [&] {
        if (++made == 1)
            begun.set_value();
        mayEnd.get_future().wait();
        return std::string(40, 'a');
    };
    auto first = std::async(std::launch::async, [&] { return cache.get("slow", make); });
    begun.get_future().wait();
    auto second = std::async(std::launch::async, [&] { return cache.get("slow", make); });
    const auto quick = [] { return std::string(40, 'b'); };
    QCOMPARE(*cache.get("quick", quick), std::string(40, 'b'));
    mayEnd.set_value();
    const auto slow = first.get();
    QCOMPARE(second.get(), slow);
    QCOMPARE(made.load(), 1);

    const auto fail = []() -> std::string { throw std::runtime_error("no"); };
    QCOMPARE(cache.get("slow", fail), slow);
    QVERIFY_EXCEPTION_THROWN(cache.get("bad", fail), std::runtime_error);
    const auto bad = cache.get("bad", quick); // after all; the one not asked for the longest must go
    QCOMPARE(cache.get("bad", fail), bad);
    QCOMPARE(cache.get("slow", fail), slow);
    QVERIFY_EXCEPTION_THROWN(cache.get("quick", fail), std::runtime_error);
}

/// As many as ten clients have open at a time wait for one slow part; who wants something else does not.
void CatalogServiceTest::nobodyWaitsForAnother()
{
    std::promise<void> promise;
    const std::shared_future<void> released = promise.get_future().share();
    CatalogServerOptions options = m_fixture->options();
    options.beforeReply = [released](const devcatalog::HttpRequest& request, devcatalog::HttpReply&) {
        if (request.path().startsWith("/Thumbnails/"))
            released.wait();
    };
    CatalogServer server(options);
    std::promise<void> mayGo = std::move(promise); // also when the test fails, before the server's end
    server.start();
    const test::CatalogClient client(server.port(), QString::fromStdString(server.caFile().string()));

    constexpr int count = 50;
    QNetworkAccessManager managers[count];
    QVector<QNetworkReply*> replies;
    for (QNetworkAccessManager& manager : managers) {
        QNetworkRequest request(QUrl(client.address("/Thumbnails/0.png")));
        request.setSslConfiguration(client.tls());
        replies.append(manager.get(request));
    }
    QTRY_COMPARE_WITH_TIMEOUT(server.requests().size(), std::size_t(count), 20000);
    QCOMPARE(client.get("/Login.aspx").status, 200);
    mayGo.set_value();
    for (QNetworkReply* reply : replies) {
        QTRY_VERIFY_WITH_TIMEOUT(reply->isFinished(), 20000);
        QCOMPARE(reply->error(), QNetworkReply::NoError);
        QVERIFY(!QImage::fromData(reply->readAll()).isNull());
    }
}

void CatalogServiceTest::picturesAreMadeBeforehand()
{
    const devcatalog::PartCatalog catalog;
    std::atomic<int> requests = 1;
    std::mutex mutex;
    std::vector<const devcatalog::Part*> made;
    const auto count = [&] {
        const std::lock_guard<std::mutex> lock(mutex);
        return made.size();
    };
    const auto make = [&](const devcatalog::Part& part) {
        const std::lock_guard<std::mutex> lock(mutex);
        made.push_back(&part);
        throw std::runtime_error("no picture");
    };
    {
        const devcatalog::PicturePreparation waiting(catalog, requests, make);
    }
    QCOMPARE(count(), std::size_t(0));
    requests = 0;
    const devcatalog::PicturePreparation preparation(catalog, requests, make);
    QTRY_COMPARE(count(), catalog.parts().size());
    for (const char* term : {"bolt", "gear", "sensor"}) {
        const std::vector<const devcatalog::Part*> found = catalog.search(term);
        const auto last = std::find(made.begin(), made.end(), found[4]);
        const auto next = std::find(made.begin(), made.end(), found[5]);
        QVERIFY2(last < next - 50, term); // the first pages of all others lie between
    }

    CatalogServerOptions options = m_fixture->options();
    options.preparesPictures = true;
    CatalogServer server(options);
    server.start(); // and it ends although hundreds are left to be made
    const test::CatalogClient client(server.port(), QString::fromStdString(server.caFile().string()));
    QCOMPARE(client.get("/Thumbnails/0.png").body, m_fixture->client().get("/Thumbnails/0.png").body);
}

void CatalogServiceTest::pages()
{
    const auto isAnswered = [this](const char* path, int status, const char* text) {
        const HttpAnswer answer = m_fixture->client().get(path);
        QVERIFY2(answer.status == status && answer.body.contains(text), path);
    };
    for (const char* path : {"/Login.aspx?ForgotPassword=true%5C", "/Register.aspx/%5C"})
        isAnswered(path, 200, "development catalog");
    for (const char* path : {"/", "/Thumbnails/", "/Thumbnails/00.png", "/Thumbnails/-1.png",
                             "/Thumbnails/999999.png", "/Downloads/", "/%00", "/%0d%0aX:%20y"})
        isAnswered(path, 404, "nothing at this address");
}

void CatalogServiceTest::theRequestLogTellsNoSecrets()
{
    const auto before = m_fixture->server().requests().size();
    m_fixture->carriedOut(m_fixture->request("UserLogin"));
    const QByteArray token = m_fixture->value("userToken");
    QCOMPARE(m_fixture->post(m_fixture->request("GetDownload2D").with("drawingView", token)).status, 500);
    m_fixture->client().get("/nothing?password=demo");

    const std::vector<devcatalog::RequestRecord> records = m_fixture->server().requests();
    QCOMPARE(records.size(), before + 3);
    QVERIFY(records.at(before + 1).fault.find("'drawingView'") != std::string::npos);
    QCOMPARE(records.at(before + 2).status, 404);

    const QByteArray log = m_fixture->log();
    QCOMPARE(log.count('\n'), int(records.size()));
    QVERIFY(log.contains("UserLogin 200\n"));
    const QByteArray session = m_fixture->value("sessionId");
    for (const QByteArray& secret : {session, m_fixture->value("apiKey"), token, QByteArray("demo")})
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

/// Whoever trusts it goes on without being asked again.
void CatalogServiceTest::theAuthorityIsKeptUntilItIsSpent()
{
    const QTemporaryDir parent;
    const QString folder = parent.filePath("authority");
    const auto certificateIn = [&folder](double years) {
        const std::time_t now = std::time(nullptr) + static_cast<std::time_t>(years * 366 * 24 * 60 * 60);
        const devcatalog::CertificateAuthority authority(folder.toStdString(), now);
        QFile file(QString::fromStdString(authority.caFile().string()));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    const QByteArray first = certificateIn(0);
    QVERIFY(first.startsWith("-----BEGIN CERTIFICATE-----") && !first.contains("PRIVATE KEY"));
    QFile key(folder + "/authority-key.pem");
#ifndef Q_OS_WIN // where rights follow from the folder
    const QFile::Permissions others(0x0077);
    QVERIFY(!((key.permissions() | QFile::permissions(folder)) & others));
#endif
    QCOMPARE(certificateIn(8), first);
    QVERIFY(certificateIn(9.5) != first);
    QVERIFY(key.open(QIODevice::WriteOnly));
    key.write("-----BEGIN CERTIFICATE-----\nnoise");
    key.close();
    QVERIFY(certificateIn(0).startsWith("-----BEGIN CERTIFICATE-----"));
}

QTEST_GUILESS_MAIN(CatalogServiceTest)
#include "CatalogServiceTest.moc"
