#include "service/DataStorage.h"
#include "service/SessionValues.h"
#include "tests/service/Envelope.h"
#include "tests/service/ServiceFixture.h"

#include <QTest>

using test::ScriptedReply;

namespace
{

const QString KeyOperation = "GenerateApiKeyByDescription";

} // namespace

/// The session: the key from start on, the user's login, and what of both is told to whom.
class DataStorageTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_fixture = std::make_unique<test::ServiceFixture>(); }
    void cleanup() { m_fixture.reset(); }

    void theLastKeyToArriveStays();
    void loginsInARow();

private:
    std::unique_ptr<test::ServiceFixture> m_fixture;
};

void DataStorageTest::theLastKeyToArriveStays()
{
    test::ScriptedService& service = m_fixture->service();
    service.setReply("ServiceLogin", ScriptedReply::result("ServiceLogin", "session"));
    for (const QString key : {"first", "second", ""})
        service.enqueue(KeyOperation, ScriptedReply::result(KeyOperation, key).held());
    DataStorage first;
    QTRY_COMPARE(service.heldCount(), 1);
    DataStorage second;
    QTRY_COMPARE(service.heldCount(), 2);
    first.ServiceLogin(); // once more, for the empty key
    QTRY_COMPARE(service.heldCount(), 3);

    service.release(3);
    QTRY_COMPARE(ApiKey, QString("second"));
    service.release(1);
    QTRY_COMPARE(ApiKey, QString("first"));
    service.release(5);
    QTRY_COMPARE(ApiKey, QString());
}

/// Before there is a key. Whatever the service answers takes the token's place; the box says what the token
/// has become.
void DataStorageTest::loginsInARow()
{
    m_fixture->service().setReply("ServiceLogin", ScriptedReply::never());
    DataStorage session;
    QString tokenUnderTheBox;
    connect(&m_fixture->answerer(), &test::MessageBoxAnswerer::opened, &session,
            [&] { tokenUnderTheBox = UserToken; });
    for (const QString token : {"token", "other", "", "again"}) {
        const int before = m_fixture->boxes().size();
        m_fixture->service().setReply("UserLogin", ScriptedReply::result("UserLogin", token));
        session.SetUserId("user@example.test");
        session.SetPassword("secret");
        session.UserLogin();
        QTRY_COMPARE(m_fixture->boxes().size(), before + 1);
        QCOMPARE(test::Envelope::read(m_fixture->service().requests("UserLogin").last().body).parameters,
                 (QStringList{"apiKey=", "userId=user@example.test", "password=secret"}));
        QCOMPARE(UserToken, token);
        QCOMPARE(tokenUnderTheBox, token);
        const test::SeenMessageBox& box = m_fixture->boxes().last();
        QCOMPARE(box.text, QString(token.isEmpty() ? "Login is not successful." : "Login is successful."));
        QCOMPARE(box.title, QString("Message"));
        QCOMPARE(box.icon, QMessageBox::Information);
        QCOMPARE(box.buttons, QMessageBox::Ok);
        QVERIFY(box.flags.testFlag(Qt::MSWindowsFixedSizeDialogHint));
        QVERIFY(!box.hasParent && box.isModal && !box.quitOnClose);
    }
}

QTEST_MAIN(DataStorageTest)
#include "DataStorageTest.moc"
