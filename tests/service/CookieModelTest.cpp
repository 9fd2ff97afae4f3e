#include "service/CookieModel.h"
#include "service/CookieJar.h"
#include "tests/support/FatalWarnings.h"

#include <QAbstractItemModelTester>
#include <QFont>
#include <QSignalSpy>
#include <QtTest>

#include <algorithm>
#include <limits>
#include <memory>

class CookieModelTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void aRowShowsACookie();
    void cellsAnswerNothingElse();
    void headers();
    void removingRows_data();
    void removingRows();
    void cellsHaveNoRows();
    void changesOfTheJarResetTheModel();
    void aModelWithoutAJarIsEmpty();
    void theJarMayGoFirst();

private:
    QList<QByteArray> namesInJar() const;

    std::unique_ptr<test::FatalWarnings> m_warnings;
    std::unique_ptr<CookieJar> m_jar; ///< with cookies "a" to "e"
    std::unique_ptr<CookieModel> m_model;
};

namespace
{

const QUrl site("https://catalog.test/");

} // namespace

void CookieModelTest::init()
{
    m_warnings = std::make_unique<test::FatalWarnings>();
    m_jar = std::make_unique<CookieJar>();
    for (const char* name : {"a", "b", "c", "d", "e"}) {
        QVERIFY(m_jar->setCookiesFromUrl({QNetworkCookie(name, "value")}, site));
    }
    m_model = std::make_unique<CookieModel>(m_jar.get());
}

void CookieModelTest::cleanup()
{
    m_model.reset();
    m_jar.reset();
    m_warnings.reset();
}

QList<QByteArray> CookieModelTest::namesInJar() const
{
    QList<QByteArray> names;
    for (const QNetworkCookie& cookie : m_jar->cookiesForUrl(site)) {
        names << cookie.name();
    }
    std::sort(names.begin(), names.end());
    return names;
}

void CookieModelTest::aRowShowsACookie()
{
    const QDateTime expiry = QDateTime::currentDateTimeUtc().addDays(7);
    QNetworkCookie cookie("id", "12 34");
    cookie.setDomain(".catalog.test");
    cookie.setPath("/ContentWS");
    cookie.setSecure(true);
    cookie.setExpirationDate(expiry);
    m_jar->clear();
    QVERIFY(m_jar->setCookiesFromUrl({cookie}, QUrl("https://catalog.test/ContentWS/x")));

    QCOMPARE(m_model->rowCount(), 1);
    QCOMPARE(m_model->columnCount(), 6);
    const QVariantList cells{".catalog.test", "id", "/ContentWS", true, expiry, "12 34"};
    for (int column = 0; column < cells.size(); ++column) {
        const QModelIndex index = m_model->index(0, column);
        QCOMPARE(index.data(Qt::DisplayRole).toString(), cells.at(column).toString());
        QCOMPARE(index.data(Qt::EditRole), index.data(Qt::DisplayRole));
    }
    QCOMPARE(m_model->index(0, 4).data().toDateTime(), expiry);
}

void CookieModelTest::cellsAnswerNothingElse()
{
    const QModelIndex index = m_model->index(0, 0);
    QCOMPARE(index.data(Qt::FontRole).value<QFont>().pointSize(), 10);
    QVERIFY(!index.data(Qt::ToolTipRole).isValid());
    QVERIFY(!index.data(Qt::CheckStateRole).isValid());
    QVERIFY(!m_model->data(QModelIndex(), Qt::DisplayRole).isValid());
}

void CookieModelTest::headers()
{
    const QStringList titles{"Website", "Name", "Path", "Secure", "Expires", "Contents"};
    QFont font;
    font.setPointSize(10);
    for (int column = 0; column < titles.size(); ++column) {
        QCOMPARE(m_model->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString(), titles.at(column));
        const QSize size = m_model->headerData(column, Qt::Horizontal, Qt::SizeHintRole).toSize();
        QVERIFY(size.height() >= QFontMetrics(font).height());
        QVERIFY(size.width() >= QFontMetrics(font).horizontalAdvance(titles.at(column)));
        QVERIFY(!m_model->headerData(column, Qt::Horizontal, Qt::ToolTipRole).isValid());
    }
    QVERIFY(!m_model->headerData(6, Qt::Horizontal, Qt::DisplayRole).isValid());
    QVERIFY(!m_model->headerData(-1, Qt::Horizontal, Qt::DisplayRole).isValid());
    QCOMPARE(m_model->headerData(2, Qt::Vertical, Qt::DisplayRole).toInt(),
             3); // the base model counts from 1
}

void CookieModelTest::removingRows_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("count");
    QTest::addColumn<bool>("removed");
    QTest::addColumn<QList<QByteArray>>("left");
    const QList<QByteArray> all{"a", "b", "c", "d", "e"};
    QTest::addRow("one") << 2 << 1 << true << QList<QByteArray>{"a", "b", "d", "e"};
    QTest::addRow("several") << 1 << 3 << true << QList<QByteArray>{"a", "e"};
    QTest::addRow("all") << 0 << 5 << true << QList<QByteArray>{};
    QTest::addRow("none") << 0 << 0 << false << all;
    QTest::addRow("past the end") << 3 << 3 << false << all;
    QTest::addRow("far past the end") << 4 << std::numeric_limits<int>::max() << false << all;
    QTest::addRow("behind the end") << 5 << 1 << false << all;
    QTest::addRow("before the start") << -1 << 2 << false << all;
}

void CookieModelTest::removingRows()
{
    QFETCH(int, row);
    QFETCH(int, count);
    QFETCH(bool, removed);
    QFETCH(QList<QByteArray>, left);
    const QAbstractItemModelTester tester(m_model.get());
    const QSignalSpy rowsRemoved(m_model.get(), &CookieModel::rowsRemoved);

    QCOMPARE(m_model->removeRows(row, count), removed);
    QCOMPARE(namesInJar(), left);
    QCOMPARE(m_model->rowCount(), left.size());
    QCOMPARE(rowsRemoved.size(), removed ? 1 : 0);
    if (removed) {
        QCOMPARE(rowsRemoved.at(0).at(1).toInt(), row);
        QCOMPARE(rowsRemoved.at(0).at(2).toInt(), row + count - 1);
    }
}

void CookieModelTest::cellsHaveNoRows()
{
    const QModelIndex cell = m_model->index(0, 0);
    QCOMPARE(m_model->rowCount(cell), 0);
    QVERIFY(!m_model->removeRows(0, 1, cell));
    QCOMPARE(namesInJar().size(), 5);
}

void CookieModelTest::changesOfTheJarResetTheModel()
{
    const QAbstractItemModelTester tester(m_model.get());
    const QSignalSpy reset(m_model.get(), &CookieModel::modelReset);
    m_jar->setCookiesFromUrl({QNetworkCookie("f", "value")}, site);
    QCOMPARE(reset.size(), 1);
    QCOMPARE(m_model->rowCount(), 6);
    m_jar->clear();
    QCOMPARE(reset.size(), 2);
    QCOMPARE(m_model->rowCount(), 0);
}

void CookieModelTest::aModelWithoutAJarIsEmpty()
{
    CookieModel model(nullptr);
    const QAbstractItemModelTester tester(&model);
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(model.columnCount(), 6);
    QVERIFY(!model.removeRows(0, 1));
}

void CookieModelTest::theJarMayGoFirst()
{
    const QSignalSpy reset(m_model.get(), &CookieModel::modelReset);
    const QModelIndex kept = m_model->index(0, 0);
    m_jar.reset();
    QCOMPARE(reset.size(), 1);
    QCOMPARE(m_model->rowCount(), 0);
    QVERIFY(!kept.data().isValid());
    QVERIFY(!m_model->removeRows(0, 1));
}

QTEST_MAIN(CookieModelTest)
#include "CookieModelTest.moc"
