#include "panel/ClickableLabel.h"
#include "panel/PreviewUI.h"
#include "service/DataStorage.h"
#include "service/PictureThread.h"
#include "service/SessionValues.h"
#include "service/XmlGuard.h"
#include "tests/panel/PanelFixture.h"
#include "tests/support/CannedReplies.h"
#include "tests/support/NetworkWatch.h"
#include "tests/support/WaitUntil.h"

#include <QLabel>
#include <QPointer>
#include <QTest>

#include <functional>

using test::ConfigInfoOperationName;
using test::ConfigParamsOperationName;
using test::DownloadOperationName;
using test::PanelFixture;
using test::ScriptedReply;
using test::SearchOperationName;

namespace
{

const QString SessionOperation = "ServiceLogin";
const QString KeyOperation = "GenerateApiKeyByDescription";
const QString LoginOperation = "UserLogin";
const QString PicturePath = "/pictures/part.png";
const QString DrawingPath = "/files/part.dwg";
const QByteArray Drawing = "AC1015 a drawing";
constexpr int MorePictureBytesThanAreRead = 33'000'000;

/// What a fault leaves of a reply for the add-in.
enum class Comes {
    Everything,
    EverythingLater, ///< when the rest is released
    Half,
    Nothing,
    Text, ///< other than was asked for, and no XML
    Fault,
    NoEnd
};

/// Spoils the reply of a script key, or all later connections, before the request.
using Spoil = std::function<void(PanelFixture& panel, const QString& key, const ScriptedReply& good)>;

const QByteArray Sorry = "<html><p>Sorry";

ScriptedReply faultReply()
{
    return ScriptedReply::fault("Try later");
}

/// One request of the add-in.
struct Request {
    QString key;    ///< of the script
    QString before; ///< key of the request whose reply leads to it; empty where the user's action does
    // What the user sees and what is stored once it has ended, as ServiceFaultsTest::state() tells it.
    QString good;
    QString empty; ///< "%1" is what has come of a drawing
    QString fault;
};

const QString Page = "configuration M8";
const QString NoView = Page + ", box Detailed View is not supported.";

QVector<Request> allRequests()
{
    return {
        {SessionOperation, "", "key 'new'", "key ''", "key ''"},
        {KeyOperation, SessionOperation, "key 'new'", "key ''", "key ''"},
        {LoginOperation, "", "box Login is successful., token 'new'",
         "box Login is not successful., token ''", "box Login is not successful., token ''"},
        // Without a document the last good one is shown again.
        {SearchOperationName, "", "row Nut", "row Bolt", ""},
        {PicturePath, SearchOperationName, "row Nut with picture", "row Nut", "row Nut"},
        {ConfigInfoOperationName, "", Page, "configuration ", "configuration "},
        {ConfigParamsOperationName, ConfigInfoOperationName, Page, Page, Page},
        {DownloadOperationName, "", Page + ", offered " + Drawing, NoView, NoView},
        // What the network leaves of it is offered.
        {DrawingPath, DownloadOperationName, Page + ", offered " + Drawing, Page + ", offered %1",
         Page + ", offered " + faultReply().body()},
    };
}

Spoil answering(const std::function<ScriptedReply(const ScriptedReply&)>& make)
{
    return [make](PanelFixture& panel, const QString& key, const ScriptedReply& good) {
        panel.service().setReply(key, make(good));
    };
}

Spoil answeringAlways(const ScriptedReply& reply)
{
    return answering([reply](const ScriptedReply&) { return reply; });
}

Spoil redirecting(const QByteArray& address)
{
    return answeringAlways(ScriptedReply::status(307).withHeader("Location", address));
}

Spoil showing(test::ServerIdentity (test::TestCertificates::*identity)() const)
{
    return [identity](PanelFixture& panel, const QString&, const ScriptedReply&) {
        panel.service().setIdentity((panel.certificates().*identity)());
    };
}

/// Sends so much that the add-in has to end it, but for a drawing; and never sends the last byte.
void sendWithoutEnd(PanelFixture& panel, const QString& key, const ScriptedReply& good)
{
    const int size = key == PicturePath ? MorePictureBytesThanAreRead : MaximumXmlLength + 1000;
    const QByteArray body = good.body() + QByteArray(key == DrawingPath ? 1000 : size, ' ');
    panel.service().setReply(key, ScriptedReply::xml(body).heldAfter(body.size() - 1));
}

ScriptedReply halfOf(const ScriptedReply& good)
{
    const int half = good.body().size() / 2;
    return ScriptedReply::cutShort(good.body().left(half), good.body().size() - half);
}

} // namespace

Q_DECLARE_METATYPE(Comes)
Q_DECLARE_METATYPE(Request)
Q_DECLARE_METATYPE(Spoil)

/// Every request of the add-in and everything that a service or a connection may do to it: what the user
/// sees, what is stored, that the same action works once the fault is over, and that token and password have
/// gone nowhere else.
class ServiceFaultsTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void faults_data();
    void faults();

private:
    void approach(const QString& key);
    void act(const QString& key);
    /// Sends a request with its reply spoiled, and waits for the end.
    void actSpoiled(const Request& request, const Spoil& spoil, Comes comes);
    bool waitUntilIdle() const;
    QString state() const;
    void compareSecrets() const;

    std::unique_ptr<test::NetworkWatch> m_network;
    std::unique_ptr<PanelFixture> m_panel;
    std::unique_ptr<DataStorage> m_session;
    QHash<QString, ScriptedReply> m_good;
    int m_boxesBefore = 0;
    std::size_t m_promptsBefore = 0;
};

void ServiceFaultsTest::init()
{
    m_network = std::make_unique<test::NetworkWatch>();
    m_panel = std::make_unique<PanelFixture>();
    m_session = std::make_unique<DataStorage>();
    m_session->SetPassword("secret");
    m_panel->host().newDocument();
    m_panel->service().setReply(SearchOperationName, test::searchReply({{"Bolt"}}));
    QVERIFY(waitUntilIdle());
    UserToken = "token";
    m_good = {
        {SessionOperation, ScriptedReply::result(SessionOperation, "session")},
        {KeyOperation, ScriptedReply::result(KeyOperation, "new")},
        {LoginOperation, ScriptedReply::result(LoginOperation, "new")},
        {SearchOperationName, test::searchReply({{"Nut"}})},
        {PicturePath, test::pictureReply(test::pngPicture({60, 90}))},
        {ConfigInfoOperationName, test::configurationsReply({"M8"})},
        {ConfigParamsOperationName, ScriptedReply::xml("<none/>")},
        {DownloadOperationName, ScriptedReply::result(DownloadOperationName, test::addressOf(DrawingPath))},
        {DrawingPath, test::pictureReply(Drawing)}};
}

/// @return once the network is idle and the pictures that have come are decoded.
bool ServiceFaultsTest::waitUntilIdle() const
{
    if (!test::waitUntil([this] { return m_network->isIdle(); }))
        return false;
    const QPointer<QObject> last(new QObject);
    const auto pictures = PictureThread::shared();
    pictures->decode({}, {}, last, SLOT(deleteLater()));
    return test::waitUntil([&] { return last.isNull(); });
}

void ServiceFaultsTest::cleanup()
{
    m_session.reset();
    m_panel.reset();
    m_network.reset();
}

void ServiceFaultsTest::faults_data()
{
    QTest::addColumn<Request>("asked");
    QTest::addColumn<Spoil>("spoil");
    QTest::addColumn<Comes>("comes");
    const auto add = [](const char* fault, Comes comes, const Spoil& spoil) {
        for (const Request& request : allRequests())
            QTest::addRow("%s, %s", qPrintable(request.key), fault) << request << spoil << comes;
    };
    using test::TestCertificates;
    add("slow", Comes::EverythingLater,
        answering([](const ScriptedReply& good) { return good.heldAfter(5); }));
    add("cut", Comes::Half, answering(halfOf));
    add("reset", Comes::Nothing, answeringAlways(ScriptedReply::reset()));
    add("refused", Comes::Nothing,
        [](PanelFixture& panel, const QString&, const ScriptedReply&) { panel.proxy().setRefusing(true); });
    add("redirected", Comes::Nothing, redirecting("/elsewhere"));
    add("redirected to another host", Comes::Nothing, redirecting("https://elsewhere.test/"));
    add("redirected to plain HTTP", Comes::Nothing, redirecting("http://catalog.test:8443/elsewhere"));
    add("endless", Comes::NoEnd, sendWithoutEnd);
    add("wrong content", Comes::Text, answeringAlways(ScriptedReply::status(200, Sorry, "text/html")));
    add("no HTTP", Comes::Nothing, answeringAlways(ScriptedReply::raw("?")));
    add("fault", Comes::Fault, answeringAlways(faultReply()));
    add("untrusted certificate", Comes::Nothing, showing(&TestCertificates::untrusted));
    add("expired certificate", Comes::Nothing, showing(&TestCertificates::expired));
    add("certificate of another name", Comes::Nothing, showing(&TestCertificates::wrongName));
    add("closed after the reply", Comes::Everything,
        answering([](const ScriptedReply& good) { return ScriptedReply::raw(good.bytes()); }));
    add("HTTP/1.0", Comes::Everything, answering([](const ScriptedReply& good) {
            return ScriptedReply::raw("HTTP/1.0 200 OK\r\nContent-Type: text/xml\r\n\r\n" + good.body());
        }));
}

void ServiceFaultsTest::faults()
{
    QFETCH(Request, asked);
    QFETCH(Spoil, spoil);
    QFETCH(Comes, comes);
    approach(asked.key);
    if (QTest::currentTestFailed())
        return;
    if (asked.key == SearchOperationName)
        m_good[PicturePath] = ScriptedReply::status(404); // which a broken connection takes along
    for (auto reply = m_good.cbegin(); reply != m_good.cend(); ++reply)
        m_panel->service().setReply(reply.key(), reply.value());

    actSpoiled(asked, spoil, comes);
    const bool isGood = comes == Comes::Everything || comes == Comes::EverythingLater;
    const QByteArray came = comes == Comes::Half   ? Drawing.left(Drawing.size() / 2)
                            : comes == Comes::Text ? Sorry
                                                   : QByteArray();
    const QString outcome = isGood ? asked.good : comes == Comes::Fault ? asked.fault : asked.empty;
    if (comes == Comes::NoEnd && asked.key == DrawingPath)
        QTRY_COMPARE(state(), Page + ", file part0.dwg");
    else
        QCOMPARE(state(), QString(outcome).replace("%1", came));

    m_panel->proxy().setRefusing(false);
    m_panel->service().setIdentity(m_panel->certificates().good());
    m_panel->service().setReply(KeyOperation, m_good[KeyOperation]);
    m_panel->service().setReply(asked.key, m_good[asked.key]);
    act(asked.key);
    QVERIFY(waitUntilIdle());
    QCOMPARE(state(), asked.good);
    compareSecrets();
}

/// Goes to where the request is made.
void ServiceFaultsTest::approach(const QString& key)
{
    if (key == DownloadOperationName || key == DrawingPath)
        m_panel->openFirstPart();
    else if (key == SearchOperationName || key == PicturePath || key.startsWith("GetConfig"))
        m_panel->showResults();
    QVERIFY(waitUntilIdle());
}

void ServiceFaultsTest::act(const QString& key)
{
    m_boxesBefore = m_panel->boxTexts().size();
    m_promptsBefore = m_panel->view().prompts().size();
    if (key == SessionOperation || key == KeyOperation) {
        m_session->ServiceLogin();
    } else if (key == LoginOperation) {
        m_session->UserLogin();
    } else if (key == SearchOperationName || key == PicturePath) {
        m_panel->click("pushButton2");
    } else if (key == DownloadOperationName || key == DrawingPath) {
        m_panel->clickPreview();
    } else {
        if (m_panel->shownPages() == QStringList("PreviewUI")) {
            m_panel->click("pushButton");
            QVERIFY(waitUntilIdle());
        }
        m_panel->clickThumbnail(0);
    }
}

void ServiceFaultsTest::actSpoiled(const Request& request, const Spoil& spoil, Comes comes)
{
    test::ScriptedService& service = m_panel->service();
    if (!request.before.isEmpty()) {
        service.setReply(request.before, m_good[request.before].held());
        act(request.key);
        QVERIFY(test::waitUntil([&] { return service.heldCount() == 1; }));
        service.setReply(request.before, m_good[request.before]);
    }
    const qint64 bytesBefore = service.byteCount();
    const auto requestsBefore = service.requests().size();
    spoil(*m_panel, request.key, m_good[request.key]);
    if (request.key == SessionOperation && comes != Comes::Everything && comes != Comes::EverythingLater)
        service.setReply(KeyOperation, faultReply()); // nobody gets a key without a session
    if (request.before.isEmpty())
        act(request.key);
    else
        service.releaseAll();
    if (comes == Comes::EverythingLater) {
        QVERIFY(test::waitUntil([&] { return service.heldCount() == 1; }));
        QVERIFY(!m_network->isIdle());
        service.releaseAll();
    }
    if (comes != Comes::NoEnd || request.key != DrawingPath)
        QVERIFY(waitUntilIdle());
    // A connection that does not stand gets nothing.
    QCOMPARE(service.byteCount() == bytesBefore, service.requests().size() == requestsBefore);
}

/// @return boxes, rows, what the detail page shows, drawings offered and files since the last action; key and
///         token where they have changed.
QString ServiceFaultsTest::state() const
{
    QStringList parts;
    if (const auto* row = m_panel->row(0)) {
        const bool pictured = !row->findChild<QPushButton*>("iconpushButton")->icon().isNull();
        parts << "row " + row->findChild<QLabel*>("namevaluelabel")->text() +
                     (pictured ? " with picture" : "");
    }
    if (const auto* page = m_panel->shown<PreviewUI>())
        for (const QLabel* label : page->findChildren<QLabel*>())
            if (label->frameShape() == QFrame::Box)
                parts << "configuration " + label->text();
    for (const QString& text : m_panel->boxTexts().mid(m_boxesBefore))
        parts << "box " + text;
    const auto& offered = m_panel->view().promptedContents();
    for (std::size_t i = m_promptsBefore; i < offered.size(); ++i)
        parts << "offered " + offered[i];
    for (const QString& file : m_panel->files())
        parts << "file " + file;
    if (ApiKey != "key")
        parts << "key '" + ApiKey + '\'';
    if (UserToken != "token")
        parts << "token '" + UserToken + '\'';
    return parts.join(", ");
}

/// The password has gone out with logins alone, the token with requests for a drawing, and nothing at all to
/// another host.
void ServiceFaultsTest::compareSecrets() const
{
    for (const QString& destination : m_panel->proxy().destinations())
        QCOMPARE(destination, QString("catalog.test:8443"));
    for (const test::RecordedRequest& request : m_panel->service().requests()) {
        const QByteArray all = request.head + request.body;
        QCOMPARE(request.header("Host"), QByteArray("catalog.test:8443"));
        QVERIFY(request.path() != "/elsewhere");
        QCOMPARE(all.contains("secret"), request.operation() == LoginOperation);
        QCOMPARE(all.contains(">token<"), request.operation() == DownloadOperationName);
    }
    QVERIFY(!m_panel->warnings().debugLines().join(' ').contains("secret"));
}

QTEST_MAIN(ServiceFaultsTest)
#include "ServiceFaultsTest.moc"
