#include "panel/DrawingViews.h"
#include "panel/PartHarbor_2D.h"
#include "panel/PreviewUI.h"
#include "service/DataStorage.h"
#include "service/ReplyLimit.h"
#include "service/SessionValues.h"
#include "service/SoapRequest.h"
#include "service/XmlGuard.h"
#include "tests/service/Envelope.h"
#include "tests/service/MissingResources.h"
#include "tests/service/ServiceFixture.h"

#include <QGridLayout>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QtTest>

using test::MissingResources;
using test::ScriptedReply;
using Identity = test::ScriptedCatalog::Identity;
using Answer = ScriptedReply (*)(const QString& operation);

Q_DECLARE_METATYPE(Answer)
Q_DECLARE_METATYPE(Identity)

namespace
{

const QString externalPath = "/ContentWS/ExternalWS.asmx";

/// The senders and the slots of their replies, each as a page of the pane has them.
class Askers
{
public:
    Askers() : m_results(nullptr, &m_container), m_detail(nullptr, &m_container)
    {
        new QGridLayout(&m_container);
        m_detail.setModel("supplier", "model");
    }

    void send(const QString& operation)
    {
        if (operation == "ServiceLogin") {
            m_session.ServiceLogin();
        } else if (operation == "UserLogin") {
            m_session.UserLogin();
        } else if (operation == "SimpleSearchAcrossCatalogs") {
            m_results.startSearch();
        } else if (operation == "GetConfigInfo") {
            m_detail.GetConfigInfo();
        } else if (operation == "GetDownload2D") {
            m_detail.GetDownloadURL();
        }
    }

private:
    DataStorage m_session;
    QWidget m_container;
    PartHarbor_2D m_results;
    PreviewUI m_detail;
};

/// A body around a result element of the operation.
QByteArray bodyAround(const QString& operation, const QByteArray& element)
{
    return "<r>" + QByteArray(element).replace("Result", operation.toUtf8() + "Result") + "</r>";
}

} // namespace

/// What becomes of a request that cannot be sent and of a reply that says nothing.
class SoapFailureTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_fixture.reset(); }

    void missingTemplates_data();
    void missingTemplates();
    void missingGate_data();
    void missingGate();
    void replies_data();
    void replies();
    void refusedConnection();
    void certificates_data();
    void certificates();
    void endlessReply();
    void managersGo();

private:
    void compareErrorBox(const QString& path);
    void compareNothingSent(Askers& askers);
    void compareLoginAsUnanswered();

    std::unique_ptr<test::ServiceFixture> m_fixture;
};

void SoapFailureTest::init()
{
    m_fixture = std::make_unique<test::ServiceFixture>();
    ApiKey = "old key";
    UserToken = "old token";
}

/// There is one box, and it says that the resource cannot be opened.
void SoapFailureTest::compareErrorBox(const QString& path)
{
    QCOMPARE(m_fixture->boxes().size(), 1);
    const test::SeenMessageBox& box = m_fixture->boxes().first();
    QCOMPARE(box.text, "Cannot open xml file: " + path);
    QCOMPARE(box.title, QString("Error"));
    QCOMPARE(box.icon, QMessageBox::Critical);
    QCOMPARE(box.buttons, QMessageBox::Ok);
    QCOMPARE(box.flags & Qt::WindowType_Mask, Qt::Dialog);
    QVERIFY(box.flags.testFlag(Qt::MSWindowsFixedSizeDialogHint));
    QVERIFY(!box.hasParent && box.isModal && !box.quitOnClose);
    QCOMPARE(box.styleSheet, QString());
}

/// The next request is one that is made now, and the stored values are as before.
void SoapFailureTest::compareNothingSent(Askers& askers)
{
    test::ScriptedService& service = m_fixture->service();
    const int before = service.requests().size();
    service.setReply("ServiceLogin", ScriptedReply::never());
    askers.send("ServiceLogin");
    QTRY_VERIFY(service.requests().size() > before);
    QCOMPARE(service.requests().size(), before + 1);
    QCOMPARE(service.requests().last().operation(), QString("ServiceLogin"));
    QCOMPARE(ApiKey, QString("old key"));
    QCOMPARE(UserToken, QString("old token"));
}

void SoapFailureTest::missingTemplates_data()
{
    QTest::addColumn<QString>("asked");   // what the user's action sends
    QTest::addColumn<QString>("missing"); // of what there is no template; it follows the former's reply
    QTest::newRow("TokenXMLFile.xml") << "ServiceLogin"
                                      << "ServiceLogin";
    QTest::newRow("APIKeyXML.xml") << "ServiceLogin"
                                   << "GenerateApiKeyByDescription";
    QTest::newRow("Login.xml") << "UserLogin"
                               << "UserLogin";
    QTest::newRow("Searchcatalog.xml") << "SimpleSearchAcrossCatalogs"
                                       << "SimpleSearchAcrossCatalogs";
    QTest::newRow("ConfigInfo.xml") << "GetConfigInfo"
                                    << "GetConfigInfo";
    QTest::newRow("ConfigParams.xml") << "GetConfigInfo"
                                      << "GetConfigParams";
    QTest::newRow("download.xml") << "GetDownload2D"
                                  << "GetDownload2D";
}

void SoapFailureTest::missingTemplates()
{
    QFETCH(QString, asked);
    QFETCH(QString, missing);
    test::ScriptedService& service = m_fixture->service();
    service.setReply("ServiceLogin", ScriptedReply::never());
    Askers askers;
    QTRY_COMPARE(service.requests().size(), 1);
    service.setReply(asked, ScriptedReply::result(asked, "text").held());
    if (asked != missing) {
        askers.send(asked);
        QTRY_COMPARE(service.heldCount(), 1);
    }

    auto scope = std::make_unique<MissingResources>(MissingResources::GateStays);
    if (asked == missing) {
        askers.send(asked); // the box opens before it returns
    } else {
        service.releaseAll();
        QTRY_COMPARE(m_fixture->boxes().size(), 1);
    }
    compareErrorBox(QString(":/3DPH/") + QTest::currentDataTag());
    scope.reset();
    compareNothingSent(askers);
}

void SoapFailureTest::missingGate_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QString>("asked");
    QTest::newRow("SetSessionID") << "ServiceLogin"
                                  << "ServiceLogin";
    QTest::newRow("GetAPIKey") << "GenerateApiKeyByDescription"
                               << "ServiceLogin";
    QTest::newRow("SetUserToken") << "UserLogin"
                                  << "UserLogin";
    QTest::newRow("ConfigData") << "GetConfigInfo"
                                << "GetConfigInfo";
    QTest::newRow("ConfigParamData") << "GetConfigParams"
                                     << "GetConfigInfo";
    QTest::newRow("DragAndDrop") << "GetDownload2D"
                                 << "GetDownload2D";
}

void SoapFailureTest::missingGate()
{
    QFETCH(QString, operation);
    QFETCH(QString, asked);
    test::ScriptedService& service = m_fixture->service();
    service.setReply("ServiceLogin", ScriptedReply::never());
    Askers askers;
    QTRY_COMPARE(service.requests().size(), 1);
    service.setReply(asked, ScriptedReply::result(asked, "text"));
    service.setReply(operation, ScriptedReply::result(operation, "text").held());
    askers.send(asked);
    QTRY_COMPARE(service.heldCount(), 1);

    auto scope = std::make_unique<MissingResources>(MissingResources::GateMissing);
    service.releaseAll();
    QTRY_COMPARE(m_fixture->boxes().size(), 1);
    compareErrorBox(":/3DPH/output.xml");
    scope.reset();
    compareNothingSent(askers);
}

void SoapFailureTest::replies_data()
{
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<QString>("result");
    const auto add = [](const char* name, Answer answer, const char* result) {
        QTest::newRow(name) << answer << QString(result);
    };
    add(
        "fault", [](const QString&) { return ScriptedReply::fault("Invalid key"); }, "");
    add(
        "empty body", [](const QString&) { return ScriptedReply::xml({}); }, "");
    add(
        "no document", [](const QString&) { return ScriptedReply::status(503, "Try later"); }, "");
    add(
        "no result element", [](const QString&) { return ScriptedReply::xml("<r><b>x</b></r>"); }, "");
    add(
        "result element of another operation",
        [](const QString&) { return ScriptedReply::xml("<r><OtherResult>x</OtherResult></r>"); }, "");
    add(
        "empty result element",
        [](const QString& op) { return ScriptedReply::xml(bodyAround(op, "<Result/>")); }, "");
    add(
        "connection reset", [](const QString&) { return ScriptedReply::reset(); }, "");
    add(
        "cut behind the result",
        [](const QString& op) {
            return ScriptedReply::cutShort(bodyAround(op, "<Result>x</Result>").chopped(3), 3);
        },
        "");
    add(
        "malformed behind the result",
        [](const QString& op) { return ScriptedReply::xml(bodyAround(op, "<Result>x</Result><b>")); }, "");
    add(
        "document type",
        [](const QString& op) {
            return ScriptedReply::xml("<!DOCTYPE r [<!ENTITY e 'x'>]>" +
                                      bodyAround(op, "<Result>&e;</Result>"));
        },
        "");
    add(
        "two bytes to a character",
        [](const QString& op) {
            const QString body = QString::fromUtf8(bodyAround(op, "<Result>x</Result>"));
            return ScriptedReply::xml(
                QByteArray(reinterpret_cast<const char*>(body.utf16()), body.size() * 2));
        },
        "");
    add(
        "fault with a result",
        [](const QString& op) {
            return ScriptedReply::status(500, bodyAround(op, "<Fault>f</Fault><Result>x</Result>"));
        },
        "x");
    add(
        "byte order mark, declaration of another encoding",
        [](const QString& op) {
            return ScriptedReply::xml("\xEF\xBB\xBF<?xml version='1.0' encoding='iso-8859-1'?>" +
                                      bodyAround(op, "<Result>\xC3\xA9</Result>"));
        },
        "\xC3\xA9");
    add(
        "two results",
        [](const QString& op) {
            return ScriptedReply::xml(bodyAround(op, "<b><Result>first</Result></b><Result>2</Result>"));
        },
        "first");
    add(
        "escaped text",
        [](const QString& op) { return ScriptedReply::xml(bodyAround(op, "<Result>a&lt;&#66;</Result>")); },
        "a<B");
}

void SoapFailureTest::replies()
{
    QFETCH(Answer, answer);
    QFETCH(QString, result);
    test::ScriptedService& service = m_fixture->service();
    for (const QString operation : {"ServiceLogin", "GenerateApiKeyByDescription", "UserLogin"}) {
        service.setReply(operation, answer(operation));
    }

    DataStorage session;
    QTRY_COMPARE(ApiKey, result);
    const auto keyRequest = test::Envelope::read(service.requests("GenerateApiKeyByDescription").at(0).body);
    QCOMPARE(keyRequest.parameters.first(), "sessionId=" + result);
    QCOMPARE(m_fixture->boxes().size(), 0);

    session.UserLogin();
    QTRY_COMPARE(m_fixture->boxes().size(), 1);
    QCOMPARE(UserToken, result);
    QCOMPARE(m_fixture->boxes().first().text,
             QString(result.isEmpty() ? "Login is not successful." : "Login is successful."));
}

/// Key and token end up empty, and the user hears of a failed login alone.
void SoapFailureTest::compareLoginAsUnanswered()
{
    DataStorage session;
    QTRY_COMPARE(ApiKey, QString());
    session.SetPassword("secret");
    session.UserLogin();
    QTRY_COMPARE(m_fixture->boxes().size(), 1);
    QCOMPARE(UserToken, QString());
    QCOMPARE(m_fixture->boxes().first().text, QString("Login is not successful."));
}

void SoapFailureTest::refusedConnection()
{
    m_fixture->proxy().setRefusing(true);
    compareLoginAsUnanswered();
    QCOMPARE(m_fixture->proxy().destinations().size(), 3); // the key is asked for all the same
}

void SoapFailureTest::certificates_data()
{
    using test::TestCertificates;
    QTest::addColumn<Identity>("identity");
    QTest::newRow("untrusted") << Identity(&TestCertificates::untrusted);
    QTest::newRow("expired") << Identity(&TestCertificates::expired);
    QTest::newRow("wrong name") << Identity(&TestCertificates::wrongName);
}

void SoapFailureTest::certificates()
{
    QFETCH(Identity, identity);
    m_fixture.reset();
    m_fixture = std::make_unique<test::ServiceFixture>(identity);
    ApiKey = "old key";
    UserToken = "old token";
    m_fixture->scriptSession("session", "key");
    m_fixture->service().setReply("UserLogin", ScriptedReply::result("UserLogin", "token"));

    compareLoginAsUnanswered();
    QVERIFY(m_fixture->service().connectionCount() > 0);
    QCOMPARE(m_fixture->service().byteCount(), 0);
}

/// A reply is ended when it outgrows what is read, and not only when all of it has been taken in.
void SoapFailureTest::endlessReply()
{
    m_fixture->scriptSession("session", "key");
    DataStorage session;
    QTRY_COMPARE(ApiKey, QString("key"));
    const QByteArray body = bodyAround("UserLogin", "<Result>token</Result><b>" +
                                                        QByteArray(MaximumXmlLength + 1000, 'x') + "</b>");
    m_fixture->service().setReply("UserLogin", ScriptedReply::xml(body).heldAfter(MaximumXmlLength + 1000));
    session.UserLogin();
    QTRY_COMPARE_WITH_TIMEOUT(m_fixture->boxes().size(), 1, 30000);
    QCOMPARE(m_fixture->service().heldCount(), 1);
    QCOMPARE(UserToken, QString());
}

/// A request's network manager goes when its reply has been read, and when its asker goes before that.
void SoapFailureTest::managersGo()
{
    m_fixture->scriptSession("session", "key");
    m_fixture->service().setReply("UserLogin", ScriptedReply::result("UserLogin", "token").held());
    auto session = std::make_unique<DataStorage>();
    QTRY_COMPARE(ApiKey, QString("key"));
    QTRY_COMPARE(session->findChildren<ReplyLimit*>().size(), 0); // they go with their managers

    const QNetworkReply* reply =
        sendSoapRequest(UserLoginOperation, {}, session.get(), SLOT(SetUserToken(QNetworkReply*)));
    const QPointer<QNetworkAccessManager> manager(reply->manager());
    QTRY_COMPARE(m_fixture->service().heldCount(), 1);
    session.reset();
    QTRY_VERIFY(manager.isNull());
    m_fixture->service().releaseAll();
    QCoreApplication::processEvents();
    QCOMPARE(UserToken, QString("old token"));
    QCOMPARE(m_fixture->boxes().size(), 0);
}

QTEST_MAIN(SoapFailureTest)
#include "SoapFailureTest.moc"
