#include "tests/support/FatalWarnings.h"
#include "tests/support/MessageBoxAnswerer.h"
#include "tests/support/ScriptedCatalog.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QtTest>

#include <memory>

using test::ScriptedReply;

using Identity = test::ScriptedCatalog::Identity;

Q_DECLARE_METATYPE(test::ScriptedReply)
Q_DECLARE_METATYPE(Identity)

namespace
{

const QString operation = "UserLogin";
const QString path = "/ContentWS/ExternalWS.asmx";
const QByteArray body = "0123456789";

} // namespace

/// Holds the test support to its word, as seen from the toolkit's network and widget classes.
class SupportTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void repliesEndAsScripted_data();
    void repliesEndAsScripted();
    void requestsAreRecordedAsTheyArrive();
    void queuedRepliesGoBeforeTheStandingOne();
    void heldRepliesWait();
    void aReplyCanBeHeldInTheMiddle();
    void aSilentServiceIsLeftByTheClient();
    void theProxyLeadsEveryNameToTheService();
    void refusedConnections_data();
    void refusedConnections();
    void certificates_data();
    void certificates();
    void messageBoxesAreNotedAndAnswered();

private:
    using Reply = std::unique_ptr<QNetworkReply>;
    Reply post(const QByteArray& requestBody = "<x/>");

    std::unique_ptr<test::FatalWarnings> m_warnings;
    std::unique_ptr<test::ScriptedCatalog> m_catalog;
    std::unique_ptr<QNetworkAccessManager> m_manager;
};

void SupportTest::init()
{
    m_warnings = std::make_unique<test::FatalWarnings>();
    m_catalog = std::make_unique<test::ScriptedCatalog>();
    m_manager = std::make_unique<QNetworkAccessManager>();
}

void SupportTest::cleanup()
{
    m_manager.reset();
    m_catalog.reset();
    m_warnings.reset();
}

SupportTest::Reply SupportTest::post(const QByteArray& requestBody)
{
    QNetworkRequest request(QUrl("https://" + test::ScriptedCatalog::host() + path));
    request.setRawHeader("Content-Type", "text/xml; charset=utf-8");
    request.setRawHeader("SOAPAction", "urn:content/" + operation.toUtf8());
    return Reply(m_manager->post(request, requestBody));
}

void SupportTest::repliesEndAsScripted_data()
{
    QTest::addColumn<ScriptedReply>("scripted");
    QTest::addColumn<QNetworkReply::NetworkError>("error");
    QTest::addColumn<QByteArray>("expected");
    QTest::addRow("xml") << ScriptedReply::xml(body) << QNetworkReply::NoError << body;
    QTest::addRow("empty") << ScriptedReply::xml({}) << QNetworkReply::NoError << QByteArray();
    QTest::addRow("status") << ScriptedReply::status(503, body) << QNetworkReply::ServiceUnavailableError
                            << body;
    QTest::addRow("broken") << ScriptedReply::raw("no HTTP") << QNetworkReply::RemoteHostClosedError
                            << QByteArray();
    QTest::addRow("cut short") << ScriptedReply::cutShort(body) << QNetworkReply::RemoteHostClosedError
                               << body;
    QTest::addRow("reset") << ScriptedReply::reset() << QNetworkReply::RemoteHostClosedError << QByteArray();
}

void SupportTest::repliesEndAsScripted()
{
    QFETCH(ScriptedReply, scripted);
    m_catalog->service().setReply(operation, scripted);
    const Reply reply = post();
    QTRY_VERIFY(reply->isFinished());
    QTEST(reply->error(), "error");
    QTEST(reply->readAll(), "expected");
}

void SupportTest::requestsAreRecordedAsTheyArrive()
{
    const QByteArray large(300000, 'x'); // arrives in several pieces
    const Reply first = post(large);
    QTRY_VERIFY(first->isFinished());
    QCOMPARE(first->error(), QNetworkReply::ContentNotFoundError); // nobody scripted it
    const Reply second = post();
    QTRY_VERIFY(second->isFinished());

    const auto& requests = m_catalog->service().requests();
    QCOMPARE(requests.size(), 2);
    QCOMPARE(requests.at(0).method, QByteArray("POST"));
    QCOMPARE(requests.at(0).path(), path);
    QCOMPARE(requests.at(0).operation(), operation);
    QCOMPARE(requests.at(0).body, large);
    QCOMPARE(requests.at(0).header("content-length"), QByteArray("300000"));
    QVERIFY(requests.at(0).head.contains("Content-Type: text/xml; charset=utf-8\r\n"));
    QCOMPARE(requests.at(1).body, QByteArray("<x/>"));
    QCOMPARE(m_catalog->service().requests(operation).size(), 2);
    QCOMPARE(m_catalog->service().requests("/elsewhere").size(), 0);
}

void SupportTest::queuedRepliesGoBeforeTheStandingOne()
{
    m_catalog->service().setReply(path, ScriptedReply::result(operation, "by path"));
    m_catalog->service().setReply(operation, ScriptedReply::result(operation, "a < b"));
    m_catalog->service().enqueue(operation, ScriptedReply::fault("one & two"));

    const Reply first = post();
    QTRY_VERIFY(first->isFinished());
    QCOMPARE(first->error(), QNetworkReply::InternalServerError);
    QVERIFY(first->readAll().contains("<faultstring>one &amp; two</faultstring>"));
    const Reply second = post();
    QTRY_VERIFY(second->isFinished());
    QVERIFY(second->readAll().contains("<UserLoginResult>a &lt; b</UserLoginResult>"));
}

void SupportTest::heldRepliesWait()
{
    m_catalog->service().enqueue(operation, ScriptedReply::xml("first").held());
    m_catalog->service().enqueue(operation, ScriptedReply::xml("second").held());
    const Reply first = post();
    QTRY_COMPARE(m_catalog->service().heldCount(), 1);
    const Reply second = post();
    QTRY_COMPARE(m_catalog->service().heldCount(), 2);

    m_catalog->service().release(1);
    QTRY_VERIFY(second->isFinished());
    QVERIFY(!first->isFinished());
    m_catalog->service().releaseAll();
    QTRY_VERIFY(first->isFinished());
    QCOMPARE(first->readAll(), QByteArray("first"));
    QCOMPARE(second->readAll(), QByteArray("second"));
}

void SupportTest::aReplyCanBeHeldInTheMiddle()
{
    m_catalog->service().setReply(operation,
                                  ScriptedReply::cutShort(body).withHeader("X-Kind", "late").heldAfter(4));
    const Reply reply = post();
    QTRY_COMPARE(reply->bytesAvailable(), 4);
    QCOMPARE(reply->rawHeader("X-Kind"), QByteArray("late"));
    QVERIFY(!reply->isFinished());
    m_catalog->service().releaseAll();
    QTRY_VERIFY(reply->isFinished());
    QCOMPARE(reply->readAll(), body);
    QCOMPARE(reply->error(), QNetworkReply::RemoteHostClosedError);
}

void SupportTest::aSilentServiceIsLeftByTheClient()
{
    m_catalog->service().setReply(operation, ScriptedReply::never());
    const Reply reply = post();
    QTRY_COMPARE(m_catalog->service().requests().size(), 1);
    QVERIFY(!reply->isFinished());
    reply->abort();
    QCOMPARE(reply->error(), QNetworkReply::OperationCanceledError);
}

void SupportTest::theProxyLeadsEveryNameToTheService()
{
    m_catalog->service().setReply("/picture.svg", ScriptedReply::status(200, body, "image/svg+xml"));
    const Reply reply(m_manager->get(
        QNetworkRequest(QUrl("https://" + test::ScriptedCatalog::host() + "/picture.svg?size=1"))));
    QTRY_VERIFY(reply->isFinished());
    QCOMPARE(reply->readAll(), body);
    QCOMPARE(m_catalog->service().requests("/picture.svg").at(0).target, QByteArray("/picture.svg?size=1"));
    QCOMPARE(m_catalog->proxy().destinations(), QStringList(test::ScriptedCatalog::host()));
}

void SupportTest::refusedConnections_data()
{
    QTest::addColumn<bool>("byProxy");
    QTest::addRow("by the proxy") << true;
    QTest::addRow("by the port behind it") << false;
}

void SupportTest::refusedConnections()
{
    QFETCH(bool, byProxy);
    if (byProxy) {
        m_catalog->proxy().setRefusing(true);
    } else {
        m_catalog->service().stopListening();
    }
    const Reply reply = post();
    QTRY_VERIFY(reply->isFinished());
    QCOMPARE(reply->error(), QNetworkReply::ConnectionRefusedError);
}

void SupportTest::certificates_data()
{
    using Certificates = test::TestCertificates;
    QTest::addColumn<Identity>("identity");
    QTest::addColumn<bool>("accepted");
    QTest::addRow("good") << &Certificates::good << true;
    QTest::addRow("untrusted") << &Certificates::untrusted << false;
    QTest::addRow("expired") << &Certificates::expired << false;
    QTest::addRow("wrong name") << &Certificates::wrongName << false;
}

void SupportTest::certificates()
{
    QFETCH(Identity, identity);
    QFETCH(bool, accepted);
    m_catalog.reset(); // takes back proxy and trust before the next one
    m_catalog = std::make_unique<test::ScriptedCatalog>(identity);
    test::ScriptedService& service = m_catalog->service();
    service.setReply(operation, ScriptedReply::xml(body));

    const Reply reply = post();
    QTRY_VERIFY(reply->isFinished());
    QCOMPARE(reply->error(), accepted ? QNetworkReply::NoError : QNetworkReply::SslHandshakeFailedError);
    QCOMPARE(service.connectionCount(), 1);
    QCOMPARE(service.byteCount() > 0, accepted);
}

void SupportTest::messageBoxesAreNotedAndAnswered()
{
    test::MessageBoxAnswerer answerer;
    answerer.enqueue(QMessageBox::Yes);
    answerer.enqueue(QMessageBox::NoButton);
    QCOMPARE(QMessageBox::question(nullptr, "Sure?", "Really?"), QMessageBox::Yes);
    QCOMPARE(QMessageBox::question(nullptr, "Sure?", "Really?"), QMessageBox::No);
    QMessageBox box(QMessageBox::Critical, "Error", "Broken", QMessageBox::Ok, nullptr,
                    Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    box.setAttribute(Qt::WA_QuitOnClose, false);
    box.exec();

    QCOMPARE(answerer.boxes().size(), 3);
    const test::SeenMessageBox& seen = answerer.boxes().last();
    QCOMPARE(seen.text, QString("Broken"));
    QCOMPARE(seen.title, QString("Error"));
    QCOMPARE(seen.icon, QMessageBox::Critical);
    QCOMPARE(seen.flags & Qt::WindowType_Mask, Qt::Dialog);
    QVERIFY(seen.flags.testFlag(Qt::MSWindowsFixedSizeDialogHint));
    QCOMPARE(seen.buttons, QMessageBox::Ok);
    QVERIFY(!seen.quitOnClose && !seen.hasParent && seen.isModal);
}

QTEST_MAIN(SupportTest)
#include "SupportTest.moc"
