#include "service/DataStorage.h"
#include "service/SessionValues.h"
#include "tests/service/Envelope.h"
#include "tests/service/ServiceFixture.h"

#include <QTest>
#include <QTextCodec>

using test::ScriptedReply;
using Answer = ScriptedReply (*)(const QByteArray& body);

Q_DECLARE_METATYPE(Answer)

/// What becomes of a reply that says nothing, or not what was asked for.
class SoapFailureTest : public QObject
{
    Q_OBJECT

private slots:
    /// Of a host where bytes are not read as UTF-8 by default.
    void initTestCase() { QTextCodec::setCodecForLocale(QTextCodec::codecForName("ISO-8859-1")); }
    void init();
    void cleanup() { m_fixture.reset(); }

    void replies_data();
    void replies();

private:
    std::unique_ptr<test::ServiceFixture> m_fixture;
};

void SoapFailureTest::init()
{
    m_fixture = std::make_unique<test::ServiceFixture>();
    ApiKey = "old key";
    UserToken = "old token";
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
