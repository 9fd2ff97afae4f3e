#include "service/XMLParser.h"
#include "service/XmlGuard.h"
#include "tests/support/FatalWarnings.h"

#include <QDomDocument>
#include <QRandomGenerator>
#include <QTest>
#include <QThread>

#include <memory>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace
{

constexpr uint SmallStack = 1024 * 1024; ///< what a thread of a Windows program has, the main one included
constexpr int Large = 4 * 1000 * 1000;

/// Bytes allocated at the moment; 0 where the platform does not say.
qint64 allocatedBytes()
{
#ifdef __GLIBC__
#if __GLIBC_PREREQ(2, 33)
    const struct mallinfo2 info = mallinfo2();
    return static_cast<qint64>(info.uordblks) + static_cast<qint64>(info.hblkhd);
#endif
#endif
    return 0;
}

QString inRoot(const QString& content)
{
    return "<r>" + content + "</r>";
}

/// Elements around one another, @p depth of them with the root.
QString nested(int depth, const QString& start = "<a>")
{
    return inRoot(start.repeated(depth - 1) + QString("</a>").repeated(depth - 1));
}

/// Copies of @p unit, a large text of them.
QString many(const QString& unit)
{
    return unit.repeated(Large / unit.size());
}

/// An element with attributes, whose values look like the end of its tag.
QString attributes(const QStringList& names)
{
    return "<r " + names.join("='>' ") + "='>'/>";
}

QStringList numberedNames(int count)
{
    QStringList names;
    for (int i = 0; i < count; ++i)
        names.append('a' + QString::number(i));
    return names;
}

/// Two words of one length that Qt's hash cannot tell apart, whatever stands before or behind them: it only
/// adds or shifts by what it has had, with whatever seed.
QPair<QString, QString> collidingWords()
{
    QRandomGenerator random(1);
    QHash<uint, QString> words;
    while (true) {
        QString word;
        for (int i = 0; i < 8; ++i)
            word += QChar('a' + random.bounded(26));
        const QString other = words.value(qHash(word, qGlobalQHashSeed()), word);
        if (other != word)
            return {word, other};
        words.insert(qHash(word, qGlobalQHashSeed()), word);
    }
}

/// Names of one hash value, which a hash table can only search one after the other.
QStringList collidingNames(int count)
{
    const auto [word, other] = collidingWords();
    QStringList names{QString()};
    while (names.size() < count) {
        const QStringList shorter = names;
        names.clear();
        for (const QString& name : shorter)
            names << name + word << name + other;
    }
    return names.mid(0, count);
}

/// Copies of @p unit, filled up by one long value to @p size characters.
QString copies(const QString& unit, int count, int size)
{
    const QString start = "<r p='";
    const QString rest = "'>" + unit.repeated(count) + "</r>";
    return start + QString(size - start.size() - rest.size(), 'x') + rest;
}

} // namespace

/// Replies that would be too much for Qt's parser, or for the host's memory once they are parsed.
class HostileRepliesTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_warnings = std::make_unique<test::FatalWarnings>(); }
    void cleanup() { m_warnings.reset(); }

    void replies_data();
    void replies();

private:
    std::unique_ptr<test::FatalWarnings> m_warnings;
};

void HostileRepliesTest::replies_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("parsed");
    const auto parsed = [](const char* name, const QString& text) { QTest::newRow(name) << text << true; };
    const auto refused = [](const char* name, const QString& text) { QTest::newRow(name) << text << false; };

    parsed("200 levels", nested(200));
    refused("201 levels", nested(201));
    refused("40,000 levels", nested(40000));
    refused("levels with attributes", nested(5000, "<a b='/>' c=\"</a>\">"));
    refused("levels behind a comment", "<!-- </r> -->" + nested(5000));
    refused("levels without end tags", QString("<a>").repeated(Large / 3));
    parsed("many elements of few levels", inRoot(("<a>" + nested(100) + "</a>").repeated(100)));
    parsed("what is no tag",
           inRoot("<!-- " + QString("<a>").repeated(5000) + " --><![CDATA[" + QString("<a>").repeated(5000) +
                  "]]><?p " + QString("<a>").repeated(5000) + "?><b c=\"" + QString("&lt;a>").repeated(5000) +
                  "\"/>"));

    parsed("large text", inRoot(many("text ")));
    parsed("large attribute", "<r a='" + many("text>") + "'/>");
    parsed("long fields", inRoot(many("<Description>as long as texts are here</Description>")));
    parsed("10,000 hits of short fields",
           inRoot(("<Hit>" + QString("<Fieldname>x</Fieldname>").repeated(20) + "</Hit>").repeated(10000)));
    parsed("100 attributes", attributes(numberedNames(100)));
    refused("101 attributes", attributes(numberedNames(101)));
    refused("attributes of one hash value", attributes(collidingNames(16000)));
    parsed("lines of fields", inRoot(QString("\n<p>1</p>").repeated(30000)));
    parsed("elements of attributes", inRoot(QString("<p n='a' v='1' u='mm'/>").repeated(8000)));
    parsed("escaped characters", inRoot(QString("&lt;&#65;").repeated(50000)));
    const auto limit = [&](const char* unit, int nodes, int size, int mostNodes) {
        const int count = (mostNodes - 4) / nodes; // the root and its attribute count as four
        parsed(qPrintable(QString("as many as may be: %1").arg(unit)), copies(unit, count, size));
        refused(qPrintable(QString("one too many: %1").arg(unit)), copies(unit, count + 1, size));
    };
    for (const auto& [unit, nodes] : {std::pair("<a:b/>", 1), std::pair("<a/>x", 2),
                                      std::pair("<a b=''/>", 4), std::pair("<a/>x&a;x", 4)})
        limit(unit, nodes, 1'200'000, 200'000);
    limit("<a:b>xyz</a:b>", 2, MaximumXmlLength, 500'000);
    refused("tiny elements between texts", inRoot(many("xxxxxx<a/>")));
    refused("comments", inRoot(many("<!---->")));
    refused("instructions", inRoot(many("<?a?>")));
    refused("attributes of many elements", inRoot(many("<a b='' c='' d=''/>")));
    refused("unknown entities", inRoot(many("&a;")));
    refused("longer than anything", inRoot(QString(MaximumXmlLength, 'x')));

    refused("document type", "<!DOCTYPE r>" + inRoot("x"));
    refused("entities of entities",
            "<!DOCTYPE r [<!ENTITY a 'xxxxxxxxxx'><!ENTITY b '&a;&a;&a;&a;'>]>" + inRoot("&b;"));
    parsed("a document type's look", inRoot("<![CDATA[<!DOCTYPE html>]]>"));

    refused("nothing", QString());
    refused("brackets", many("<"));
    refused("a bracket at the end", inRoot("x") + '<');
    refused("an open comment", "<r><!--" + many(" --"));
    refused("an open section", "<r><![CDATA[" + many("]] "));
    refused("an open instruction", "<r><?" + many("? "));
    refused("an open value", "<r a='" + many("\">"));
    refused("an open tag", "<r " + many("a "));
    refused("end tags", many("</a>"));
    refused("cut in a tag", nested(10).chopped(2));
    refused("a result, then nonsense", "<r><UserLoginResult>token</UserLoginResult><b></r>");
    parsed("zero characters", inRoot(QString(1000, QChar(0))));
    refused("what the parser takes for the end", "<r>" + QString(1000, QChar(0xFFFF)) + "</r>");
    refused("half characters", many(QChar(0xD83D)));
    refused("bytes of another encoding", QString::fromUtf8(QByteArray("\xFF\xFE<\0r\0/\0>\0", 10)));
}

/// They are read in a thread with a small stack, as a host's may be.
void HostileRepliesTest::replies()
{
    QFETCH(QString, text);
    QFETCH(bool, parsed);
    bool wasParsed = false;
    bool hasContent = false;
    qint64 heldBytes = 0;
    const std::unique_ptr<QThread> thread(QThread::create([&] {
        const qint64 before = allocatedBytes();
        QDomDocument document("output");
        wasParsed = parseXml(text, &document);
        heldBytes = allocatedBytes() - before;
        hasContent = document.hasChildNodes();
        XMLParser parser;
        parser.setContent(text);
        parser.GetSearchHits(5);
        parser.GetSearchItemField1();
        parser.GetConfigurationNames();
        XMLParser::documentOf(&parser);
    }));
    thread->setStackSize(SmallStack);
    thread->start();
    QVERIFY(thread->wait(60000));
    QCOMPARE(wasParsed, parsed);
    QCOMPARE(hasContent, parsed); // a refused one leaves nothing behind
    QVERIFY2(heldBytes <= 34LL * text.size() + 13'000'000 && heldBytes <= 150'000'000,
             qPrintable(QString("%1 bytes for %2 characters").arg(heldBytes).arg(text.size())));
}

QTEST_MAIN(HostileRepliesTest)
#include "HostileRepliesTest.moc"
