#include "service/XMLParser.h"
#include "common/DarkTheme.h"
#include "tests/support/FatalWarnings.h"
#include "tests/support/MessageBoxAnswerer.h"
#include "tests/support/ScriptedCatalog.h"

#include <QTemporaryDir>
#include <QTest>
#include <QTextCodec>

#include <memory>

namespace
{

const QString Site = "https://" + test::ScriptedCatalog::host() + '/';

/// An item with a text for every child up to the supplier's, "<prefix>0" to "<prefix>16".
QString item(const QString& prefix)
{
    QString children;
    for (int i = 0; i <= 16; ++i) {
        const QString number = QString::number(i);
        children += QString("<f%1>%2</f%1>\r\n  ").arg(number, prefix + number);
    }
    return "<ISearchItem>\n  " + children + "</ISearchItem>\n";
}

QString searchReply(const QString& items, const QString& count)
{
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<r><ActualItemCount>" + count +
           "</ActualItemCount><Items>\n" + items + "</Items></r>";
}

} // namespace

class XMLParserTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_warnings.reset(); }

    void hits();
    void names();
    void itemCount();
    void malformedReplyKeepsTheLastGoodOne();
    void files();
    void missingFile();
    void factoryAndAccessor();
    void selfCheck();

private:
    QString fileOf(const QByteArray& bytes);

    std::unique_ptr<test::FatalWarnings> m_warnings;
    QTemporaryDir m_folder;
};

void XMLParserTest::init()
{
    m_warnings = std::make_unique<test::FatalWarnings>();
    g_darkMode = 0;
}

/// Every list has an entry for every item, so that they stay parallel; a page shows the same.
void XMLParserTest::hits()
{
    XMLParser parser;
    parser.setContent(searchReply("<ISearchItem/>" + item("a") + "<deeper>" + item(" b") +
                                      "</deeper><ISearchItem><f0/></ISearchItem>",
                                  "10000"));
    QCOMPARE(parser.GetActualItemCount(), 10000);
    QCOMPARE(parser.GetSearchItemNames(), (QStringList{"", "a0", "b0", ""}));
    QCOMPARE(parser.GetSearchItemField1(), (QStringList{"", "a1", " b1", ""}));
    QCOMPARE(parser.GetSearchItemField6(), (QStringList{"", "a6", " b6", ""}));
    QCOMPARE(parser.GetSearchItemImageUrls(), (QStringList{Site, Site + "a7", Site + " b7", Site}));
    QCOMPARE(parser.GetSearchItemField16(), (QStringList{"", "a16", " b16", ""}));
    QCOMPARE(parser.GetConfigurationNames(), QStringList());

    for (const int limit : {3, 2147483647, 0, -1}) {
        const int count = qBound(0, limit, 4);
        const QVector<SearchHit> hits = parser.GetSearchHits(limit);
        QCOMPARE(hits.size(), count);
        for (int i = 0; i < count; ++i) {
            QCOMPARE(hits[i].modelName, parser.GetSearchItemNames()[i]);
            QCOMPARE(hits[i].description, parser.GetSearchItemField6()[i]);
            QCOMPARE(hits[i].imageUrl, parser.GetSearchItemImageUrls()[i]);
            QCOMPARE(hits[i].supplierName, parser.GetSearchItemField16()[i]);
        }
    }
}

void XMLParserTest::names()
{
    const QPair<QString, QString> children[] = {
        {"<n> M8</n>", "M8"},
        {"<n>  M8 </n>", " M8 "},
        {"<n>\tM8</n>", "\tM8"},
        {"<n> </n>", ""}, // White space alone is dropped.
        {"<n>&lt;M8&gt; &amp;</n>", "<M8> &"},
        {"<n><![CDATA[<M8>]]></n>", "<M8>"},
        {"<n><b>M8</b></n>", ""},
        {"<n>M8<b/>x40</n>", "M8"},
    };
    XMLParser parser;
    for (const auto& [child, name] : children) {
        parser.setContent("<r><ISearchItem>" + child + "</ISearchItem></r>");
        QCOMPARE(parser.GetSearchItemNames(), QStringList{name});
    }
    parser.setContent("<r><IConfiguration><n> one</n><m>x</m></IConfiguration><IConfiguration/>"
                      "<IConfiguration><n>two</n></IConfiguration></r>");
    QCOMPARE(parser.GetConfigurationNames(), (QStringList{" one", "", "two"}));
    QCOMPARE(parser.GetSearchItemNames(), QStringList());
}

void XMLParserTest::itemCount()
{
    const QPair<QString, int> replies[] = {
        {searchReply({}, "0"), 0},
        {searchReply({}, "-1"), -1},
        {searchReply({}, "2147483647"), 2147483647},
        {searchReply({}, "2147483648"), 0},
        {searchReply({}, "60 hits"), 0},
        {searchReply({}, "6e1"), 0},
        {searchReply({}, "0x10"), 0},
        {searchReply({}, ""), 0},
        {"<r/>", 0},
        {"<r><ISearchItem/><b><ActualItemCount>7</ActualItemCount></b></r>", 7},
        {"<r><ISearchItem><ActualItemCount>8</ActualItemCount></ISearchItem></r>", 8},
        {"<r><b><ActualItemCount>1</ActualItemCount></b><ActualItemCount>2</ActualItemCount></r>", 1},
    };
    for (const auto& [reply, count] : replies) {
        XMLParser parser;
        parser.setContent(reply);
        QVERIFY2(parser.GetActualItemCount() == count, qPrintable(reply));
    }
}

void XMLParserTest::malformedReplyKeepsTheLastGoodOne()
{
    XMLParser parser;
    QCOMPARE(parser.GetActualItemCount(), 0);
    QCOMPARE(parser.GetSearchItemNames(), QStringList());
    parser.setContent(searchReply(item("a"), "60"));
    const QString other = searchReply(item("b"), "61");
    for (const QString& bad : {QString(), QString("no document"), other.chopped(1), other + "<",
                               "<!DOCTYPE r>" + other, QString("<a>").repeated(5000)}) {
        parser.setContent(bad);
        QCOMPARE(parser.GetActualItemCount(), 60);
        QCOMPARE(parser.GetSearchItemNames(), QStringList{"a0"});
    }
    parser.setContent(other);
    QCOMPARE(parser.GetSearchItemNames(), QStringList{"b0"});
    parser.setContent("<r/>"); // well-formed, so it counts
    QCOMPARE(parser.GetSearchItemNames(), QStringList());
}

void XMLParserTest::files()
{
    const QString reply = QString::fromUtf8("<r><ISearchItem><n>\xC3\xA9\r\n</n></ISearchItem></r>");
    const auto declared = [&reply](const char* encoding) {
        return QString("<?xml version='1.0' encoding='%1'?>%2").arg(encoding, reply);
    };
    const QStringList names{QString::fromUtf8("\xC3\xA9\n")};
    const QPair<QByteArray, QStringList> files[] = {
        {"\xEF\xBB\xBF" + declared("utf-8").toUtf8(), names},
        {declared("iso-8859-1").toLatin1(), names},
        {QTextCodec::codecForName("UTF-16")->fromUnicode(declared("utf-16").remove('\r')), names},
        {declared("klingon").toUtf8(), names},
        {reply.toUtf8().chopped(1), QStringList()},
    };
    const test::MessageBoxAnswerer answerer;
    for (const auto& [bytes, found] : files)
        QCOMPARE(XMLParser(fileOf(bytes)).GetSearchItemNames(), found);
    QCOMPARE(answerer.boxes().size(), 0);
}

/// The same text twice, first in Qt's own box, which has no theme, then in the add-in's.
void XMLParserTest::missingFile()
{
    g_darkMode = 1;
    const test::MessageBoxAnswerer answerer;
    const XMLParser parser("missing.xml");
    QCOMPARE(parser.GetActualItemCount(), 0);
    QCOMPARE(answerer.boxes().size(), 2);
    for (const test::SeenMessageBox& box : answerer.boxes()) {
        QCOMPARE(box.text, QString("Cannot open xml file: missing.xml"));
        QCOMPARE(box.buttons, QMessageBox::Ok);
        QVERIFY(!box.hasParent && box.isModal);
    }
    const test::SeenMessageBox& first = answerer.boxes().first();
    QCOMPARE(first.title, QString("Error"));
    QCOMPARE(first.icon, QMessageBox::Critical);
    QCOMPARE(first.styleSheet, QString());
    const test::SeenMessageBox& second = answerer.boxes().last();
    QCOMPARE(second.title, QString("Message"));
    QCOMPARE(second.icon, QMessageBox::Information);
    QVERIFY(!second.styleSheet.isEmpty() && !second.quitOnClose);
}

void XMLParserTest::factoryAndAccessor()
{
    QVERIFY(XMLParser::documentOf(nullptr).isNull());
    XMLParser other;
    XMLParser* parser = &other;
    XMLParser::create(QString(), &parser);
    QCOMPARE(parser, &other);

    XMLParser::create(fileOf("<r><ISearchItem><n>M8</n></ISearchItem></r>"), &parser);
    const std::unique_ptr<XMLParser> owner(parser);
    QVERIFY(parser != &other);
    QDomDocument copy = XMLParser::documentOf(parser);
    QCOMPARE(copy.documentElement().tagName(), QString("r"));
    copy.removeChild(copy.documentElement());
    QCOMPARE(parser->GetSearchItemNames(), QStringList{"M8"});
}

void XMLParserTest::selfCheck()
{
    XMLParser::test();
    QCOMPARE(m_warnings->debugLines(), (QStringList{"root element has 2 childs", "root element is  root ",
                                                    "- [11111]", "- [test 123]"}));
}

QString XMLParserTest::fileOf(const QByteArray& bytes)
{
    QFile file(m_folder.filePath("reply.xml"));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qCritical("Cannot write %s", qPrintable(file.fileName()));
    return file.fileName();
}

QTEST_MAIN(XMLParserTest)
#include "XMLParserTest.moc"
