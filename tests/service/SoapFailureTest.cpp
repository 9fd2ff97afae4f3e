#include "panel/DrawingViews.h"
#include "panel/PartHarbor_2D.h"
#include "panel/PreviewUI.h"
#include "service/DataStorage.h"
#include "service/SessionValues.h"
#include "tests/service/Envelope.h"
#include "tests/service/ServiceFixture.h"

#include <QGridLayout>
#include <QTextCodec>
#include <QtTest>

using test::ScriptedReply;
using Answer = ScriptedReply (*)(const QByteArray& body);

Q_DECLARE_METATYPE(Answer)

// The resource macros declare functions of the global namespace.

/// All request templates.
static void setBundle(bool there)
{
    if (there)
        Q_INIT_RESOURCE(DockWidget_3DPH);
    else
        Q_CLEANUP_RESOURCE(DockWidget_3DPH);
}

/// The gate that replies pass, which this program has once more outside the bundle.
static void setGate(bool there)
{
    if (there)
        Q_INIT_RESOURCE(OwnGate);
    else
        Q_CLEANUP_RESOURCE(OwnGate);
}

namespace
{

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
        if (operation == "ServiceLogin")
            m_session.ServiceLogin();
        else if (operation == "UserLogin")
            m_session.UserLogin();
        else if (operation == "SimpleSearchAcrossCatalogs")
            m_results.startSearch();
        else if (operation == "GetConfigInfo")
            m_detail.GetConfigInfo();
        else if (operation == "GetDownload2D")
            m_detail.GetDownloadURL();
    }

private:
    DataStorage m_session;
    QWidget m_container;
    PartHarbor_2D m_results;
    PreviewUI m_detail;
};

} // namespace

/// What becomes of a request that cannot be sent and of a reply that says nothing.
class SoapFailureTest : public QObject
{
    Q_OBJECT

private slots:
    /// Of a host where bytes are not read as UTF-8 by default.
    void initTestCase() { QTextCodec::setCodecForLocale(QTextCodec::codecForName("ISO-8859-1")); }
    void init();
    void cleanup();

    void missingResources_data();
    void missingResources();
    void replies_data();
    void replies();

private:
    void compareErrorBox(const QString& path);
    void compareNothingSent(Askers& askers);

    std::unique_ptr<test::ServiceFixture> m_fixture;
};

void SoapFailureTest::init()
{
    m_fixture = std::make_unique<test::ServiceFixture>();
    ApiKey = "old key";
    UserToken = "old token";
}

void SoapFailureTest::cleanup()
{
    setBundle(true);
    setGate(true);
    m_fixture.reset();
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

void SoapFailureTest::missingResources_data()
{
    QTest::addColumn<QString>("resource");
    QTest::addColumn<QString>("asked"); // what the user's action sends
    QTest::addColumn<QString>("held");  // the operation on whose reply the resource is missing, if any
    const auto add = [](const char* resource, const char* asked, const char* held) {
        QTest::addRow("%s, %s", resource, held) << QString(resource) << QString(asked) << QString(held);
    };
    add("TokenXMLFile.xml", "ServiceLogin", "");
    add("APIKeyXML.xml", "ServiceLogin", "ServiceLogin");
    add("Login.xml", "UserLogin", "");
    add("Searchcatalog.xml", "SimpleSearchAcrossCatalogs", "");
    add("ConfigInfo.xml", "GetConfigInfo", "");
    add("ConfigParams.xml", "GetConfigInfo", "GetConfigInfo");
    add("download.xml", "GetDownload2D", "");
    add("output.xml", "ServiceLogin", "ServiceLogin");
    add("output.xml", "ServiceLogin", "GenerateApiKeyByDescription");
    add("output.xml", "UserLogin", "UserLogin");
    add("output.xml", "GetConfigInfo", "GetConfigInfo");
    add("output.xml", "GetConfigInfo", "GetConfigParams");
    add("output.xml", "GetDownload2D", "GetDownload2D");
}

void SoapFailureTest::missingResources()
{
    QFETCH(QString, resource);
    QFETCH(QString, asked);
    QFETCH(QString, held);
    test::ScriptedService& service = m_fixture->service();
    service.setReply("ServiceLogin", ScriptedReply::never());
    Askers askers;
    setBundle(false); // what a session starts with has been sent before it is there
    QTRY_COMPARE(service.requests().size(), 1);
    setBundle(true);
    if (!held.isEmpty()) {
        service.setReply(asked, ScriptedReply::result(asked, "text"));
        service.setReply(held, ScriptedReply::result(held, "text").held());
        askers.send(asked);
        QTRY_COMPARE(service.heldCount(), 1);
    }

    setBundle(false);
    setGate(resource != "output.xml");
    if (held.isEmpty()) {
        askers.send(asked); // the box opens before it returns
    } else {
        service.releaseAll();
        QTRY_COMPARE(m_fixture->boxes().size(), 1);
    }
    compareErrorBox(":/3DPH/" + resource);
    const int dataLines = held == "ServiceLogin" ? 1 : held == "GenerateApiKeyByDescription" ? 2 : 0;
    QCOMPARE(m_fixture->warnings().debugLines().size(), dataLines); // before the gate
    setBundle(true);
    compareNothingSent(askers);
}

void SoapFailureTest::replies_data()
{
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<QByteArray>("body"); // "OP" stands for the operation
    QTest::addColumn<QString>("result");
    const auto add = [](const char* name, Answer answer, const char* body, const char* result = "") {
        QTest::newRow(name) << answer << QByteArray(body) << QString(result);
    };
    const Answer xml = &ScriptedReply::xml;
    const Answer failed = [](const QByteArray& body) { return ScriptedReply::status(500, body); };
    const Answer cut = [](const QByteArray& body) { return ScriptedReply::cutShort(body); };
    const Answer wide = [](const QByteArray& body) {
        const QString text = QString::fromUtf8(body);
        return ScriptedReply::xml(QByteArray(reinterpret_cast<const char*>(text.utf16()), text.size() * 2));
    };
    add("empty body", xml, "");
    add("no result element", xml, "<r><b>x</b></r>");
    add("result element of another operation", xml, "<r><OtherResult>x</OtherResult></r>");
    add("empty result element", xml, "<r><OPResult/></r>");
    add("cut behind the result", cut, "<r><OPResult>x</OPResult></");
    add("malformed behind the result", xml, "<r><OPResult>x</OPResult><b></r>");
    add("document type", xml, "<!DOCTYPE r [<!ENTITY e 'x'>]><r><OPResult>&e;</OPResult></r>");
    add("two bytes to a character", wide, "<r><OPResult>x</OPResult></r>");
    add("fault with a result", failed, "<r><Fault>f</Fault><OPResult>x</OPResult></r>", "x");
    add("byte order mark, declaration of another encoding", xml,
        "\xEF\xBB\xBF<?xml version='1.0' encoding='iso-8859-1'?><r><OPResult>\xC3\xA9</OPResult></r>",
        "\xC3\xA9");
    add("two results", xml, "<r><b><OPResult>first</OPResult></b><OPResult>2</OPResult></r>", "first");
    add("an element in the result", xml, "<r><OPResult><b>x</b></OPResult></r>");
    add("a comment before the text", xml, "<r><OPResult><!--c-->x</OPResult></r>", "c"); // the first child
    add("text and section", xml, "<r><OPResult>x<![CDATA[y]]></OPResult></r>", "x");
    add("escaped text", xml, "<r><OPResult>a&lt;&#66;</OPResult></r>", "a<B");
}

void SoapFailureTest::replies()
{
    QFETCH(Answer, answer);
    QFETCH(QByteArray, body);
    QFETCH(QString, result);
    test::ScriptedService& service = m_fixture->service();
    for (const char* operation : {"ServiceLogin", "GenerateApiKeyByDescription", "UserLogin"})
        service.setReply(operation, answer(QByteArray(body).replace("OP", operation)));

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

QTEST_MAIN(SoapFailureTest)
#include "SoapFailureTest.moc"
