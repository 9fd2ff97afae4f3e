#include "service/Transfer.h"
#include "tests/service/ServiceFixture.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTest>

using test::ScriptedReply;

namespace
{

constexpr int Maximum = 1000;
constexpr int FirstPart = 600; ///< what comes at once

QByteArray bytes(int count)
{
    return QByteArray(count, 'x');
}

/// Asks for a file, and reads it at its end or as it comes.
class Asker : public QObject
{
    Q_OBJECT

public:
    explicit Asker(bool readsAsItComes)
        : m_reply(getTransfer(QUrl("https://" + test::ScriptedCatalog::host() + "/file"), Maximum, this,
                              SLOT(finished(QNetworkReply*))))
    {
        if (readsAsItComes)
            connect(m_reply, SIGNAL(readyRead()), this, SLOT(readyRead()));
    }

    QNetworkReply* reply() const { return m_reply; }
    const QByteArray& received() const { return m_received; }
    int ends() const { return m_ends; }
    /// What ties the asker to something else.
    int ties() const { return receivers(SIGNAL(destroyed(QObject*))) + children().size(); }

public slots:
    void readyRead()
    {
        QCOMPARE(m_ends, 0); // an asker that has heard of the end has forgotten the reply
        m_received += readTransfer(m_reply);
    }
    void finished(QNetworkReply* reply)
    {
        ++m_ends;
        m_received += takeBody(reply);
    }

private:
    QNetworkReply* m_reply;
    QByteArray m_received;
    int m_ends = 0;
};

} // namespace

class TransferTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_fixture = std::make_unique<test::ServiceFixture>(); }
    void cleanup() { m_fixture.reset(); }

    void bound_data();
    void bound();
    void takenBack_data();
    void takenBack();

private:
    std::unique_ptr<test::ServiceFixture> m_fixture;
};

void TransferTest::bound_data()
{
    QTest::addColumn<bool>("readsAsItComes");
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("received");
    QTest::newRow("at the bound, read at its end") << false << Maximum << Maximum;
    QTest::newRow("at the bound, read as it comes") << true << Maximum << Maximum;
    QTest::newRow("beyond, read at its end") << false << Maximum + 1 << 0;
    QTest::newRow("beyond, read as it comes") << true << Maximum + 1 << FirstPart;
}

/// Of a reply that outgrows its bound nothing more is heard. Nothing of any transfer stays with its asker.
void TransferTest::bound()
{
    QFETCH(bool, readsAsItComes);
    QFETCH(int, size);
    m_fixture->service().setReply("/file", ScriptedReply::status(200, bytes(size)).heldAfter(FirstPart));
    Asker asker(readsAsItComes);
    const QPointer<QNetworkAccessManager> manager(asker.reply()->manager());
    QTRY_VERIFY(asker.reply()->bytesAvailable() + asker.received().size() == FirstPart);
    m_fixture->service().releaseAll();
    QTRY_COMPARE(asker.ends(), 1);
    QTEST(asker.received().size(), "received");
    QTRY_VERIFY(manager.isNull());
    QCOMPARE(asker.ties(), 0);
}

void TransferTest::takenBack_data()
{
    QTest::addColumn<bool>("dropped");
    QTest::newRow("dropped") << true;
    QTest::newRow("the asker goes") << false;
}

void TransferTest::takenBack()
{
    QFETCH(bool, dropped);
    m_fixture->service().setReply("/file", ScriptedReply::status(200, bytes(Maximum)).heldAfter(FirstPart));
    auto asker = std::make_unique<Asker>(true);
    const QPointer<QNetworkAccessManager> manager(asker->reply()->manager());
    QTRY_COMPARE(asker->received().size(), FirstPart);
    if (dropped)
        dropTransfer(asker->reply());
    else
        asker.reset();
    m_fixture->service().releaseAll();
    QTRY_VERIFY(manager.isNull());
    QVERIFY(!asker || (asker->ends() == 0 && asker->received().size() == FirstPart && asker->ties() == 0));
}

QTEST_MAIN(TransferTest)
#include "TransferTest.moc"
