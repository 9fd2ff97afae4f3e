#include "service/CookieModel.h"
#include "service/CookieJar.h"
#include "tests/support/FatalWarnings.h"

#include <QAbstractItemModelTester>
#include <QFont>
#include <QFontMetrics>
#include <QSignalSpy>
#include <QTest>

#include <limits>
#include <memory>

namespace
{

const QUrl Site("https://catalog.test/ContentWS/x");

} // namespace

class CookieModelTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void cells();
    void headers();
    void removingRows_data();
    void removingRows();
    void changesOfTheJarResetTheModel();

private:
    std::unique_ptr<test::FatalWarnings> m_warnings;
    std::unique_ptr<CookieJar> m_jar; ///< with cookies "a" to "e"
    std::unique_ptr<CookieModel> m_model;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};

void CookieModelTest::init()
{
    m_warnings = std::make_unique<test::FatalWarnings>();
    m_jar = std::make_unique<CookieJar>();
    for (const char* name : {"a", "b", "c", "d", "e"})
        QVERIFY(m_jar->setCookiesFromUrl({QNetworkCookie(name, "value")}, Site));
    m_model = std::make_unique<CookieModel>(m_jar.get());
    m_tester = std::make_unique<QAbstractItemModelTester>(m_model.get());
}

void CookieModelTest::cleanup()
{
    m_tester.reset();
    m_model.reset();
    m_jar.reset();
    m_warnings.reset();
}

void CookieModelTest::cells()
{
    const QDateTime expiry = QDateTime::currentDateTimeUtc().addDays(7);
    QNetworkCookie cookie("id", "12 34");
    cookie.setDomain(".catalog.test");
    cookie.setPath("/ContentWS");
    cookie.setSecure(true);
    cookie.setExpirationDate(expiry);
    m_jar->clear();
    QVERIFY(m_jar->setCookiesFromUrl({cookie}, Site));

    QCOMPARE(m_model->rowCount(), 1);
    QCOMPARE(m_model->columnCount(), 6);
    const QVariantList contents{".catalog.test", QByteArray("id"),   "/ContentWS", true,
                                expiry,          QByteArray("12 34")};
    for (int column = 0; column < contents.size(); ++column) {
        const QModelIndex index = m_model->index(0, column);
        QCOMPARE(index.data(Qt::DisplayRole), contents.at(column));
        QCOMPARE(index.data(Qt::DisplayRole).type(), contents.at(column).type()); // texts compare equal, too
        QCOMPARE(index.data(Qt::EditRole), index.data(Qt::DisplayRole));
        QCOMPARE(index.data(Qt::FontRole).value<QFont>().pointSize(), 10);
        QVERIFY(!index.data(Qt::ToolTipRole).isValid());
        QVERIFY(!m_model->removeRows(0, 1, index));
    }
}

void CookieModelTest::headers()
{
    const QStringList titles{"Website", "Name", "Path", "Secure", "Expires", "Contents"};
    QFont font;
    font.setPointSize(10);
    for (int column = 0; column < titles.size(); ++column) {
        QCOMPARE(m_model->headerData(column, Qt::Horizontal).toString(), titles.at(column));
        const QSize size = m_model->headerData(column, Qt::Horizontal, Qt::SizeHintRole).toSize();
        QVERIFY(size.height() >= QFontMetrics(font).height());
        QVERIFY(size.width() >= QFontMetrics(font).horizontalAdvance(titles.at(column)));
        QVERIFY(!m_model->headerData(column, Qt::Horizontal, Qt::ToolTipRole).isValid());
    }
    QCOMPARE(m_model->headerData(2, Qt::Vertical).toInt(), 3); // the base model counts from 1
}

void CookieModelTest::removingRows_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("count");
    QTest::addColumn<QByteArray>("left");
    QTest::addRow("one") << 2 << 1 << QByteArray("abde");
    QTest::addRow("several") << 1 << 3 << QByteArray("ae");
    QTest::addRow("all") << 0 << 5 << QByteArray();
    QTest::addRow("none") << 0 << 0 << QByteArray("abcde");
    QTest::addRow("past the end") << 3 << 3 << QByteArray("abcde");
    QTest::addRow("far past the end") << 4 << std::numeric_limits<int>::max() << QByteArray("abcde");
    QTest::addRow("behind the end") << 5 << 1 << QByteArray("abcde");
    QTest::addRow("before the start") << -1 << 2 << QByteArray("abcde");
}

void CookieModelTest::removingRows()
{
    QFETCH(int, row);
    QFETCH(int, count);
    QFETCH(QByteArray, left);
    const QSignalSpy rowsRemoved(m_model.get(), &CookieModel::rowsRemoved);
    const bool removed = m_model->removeRows(row, count);
    QCOMPARE(removed, left.size() < 5);
    QCOMPARE(rowsRemoved.size(), removed ? 1 : 0); // which rows, the model tester knows
    QByteArray names;
    for (int i = 0; i < m_model->rowCount(); ++i)
        names += m_model->index(i, 1).data().toByteArray();
    QCOMPARE(names, left);
    QCOMPARE(m_jar->cookiesForUrl(Site).size(), left.size());
}

void CookieModelTest::changesOfTheJarResetTheModel()
{
    const QSignalSpy reset(m_model.get(), &CookieModel::modelReset);
    m_jar->setCookiesFromUrl({QNetworkCookie("f", "value")}, Site);
    QCOMPARE(reset.size(), 1);
    QCOMPARE(m_model->rowCount(), 6);
    const QModelIndex kept = m_model->index(0, 0);
    m_jar.reset();
    QCOMPARE(reset.size(), 2);
    QCOMPARE(m_model->rowCount(), 0);
    QVERIFY(!kept.data().isValid());
    QVERIFY(!m_model->removeRows(0, 1));
    QCOMPARE(CookieModel(nullptr).rowCount(), 0); // The jar may be missing from the start.
}

QTEST_MAIN(CookieModelTest)
#include "CookieModelTest.moc"
