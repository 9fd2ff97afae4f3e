#include "dev/catalog/parts/PartCatalog.h"
#include "dev/catalog/drawings/PartDrawing.h"

#include <QSet>
#include <QtTest>

#include <algorithm>
#include <string>

using namespace devcatalog;

namespace
{

bool contains(const std::string& text, const char* word)
{
    return QString::fromStdString(text).contains(word, Qt::CaseInsensitive);
}

} // namespace

class PartCatalogTest : public QObject
{
    Q_OBJECT

private slots:
    void partsAreManyAndWhole();
    void searchFindsWordsInAnyOrderAndCase_data();
    void searchFindsWordsInAnyOrderAndCase();
    void searchFindsJustWhatHasEveryWord();
    void searchShowsFirstWhatIsNamedSo();
    void findsAPartBySupplierAndName();

private:
    const PartCatalog m_catalog;
};

void PartCatalogTest::partsAreManyAndWhole()
{
    QSet<QString> families;
    QString allText;
    const std::vector<std::string_view> views = drawingViews();
    for (const Part& part : m_catalog.parts()) {
        families.insert(QString::fromStdString(part.family));
        for (const std::string& text : {part.name, part.supplier, part.description}) {
            const QString read = QString::fromStdString(text);
            QCOMPARE(read.toStdString(), text); // Broken UTF-8 would not come back.
            QCOMPARE(read.trimmed(), read);
            QVERIFY2(!read.contains('{'), qPrintable(read));
            allText += read;
        }
        QSet<QString> names;
        for (const Configuration& configuration : part.configurations) {
            names.insert(QString::fromStdString(configuration.name));
            QVERIFY(configuration.parameters.size() > 1);
            for (const Parameter& parameter : configuration.parameters)
                QVERIFY2(!parameter.name.empty() && !parameter.value.empty(), configuration.name.c_str());
        }
        QVERIFY2(!names.isEmpty() && names.size() <= 4, part.name.c_str());
        QCOMPARE(static_cast<std::size_t>(names.size()), part.configurations.size());
        for (const std::string& view : part.unsupportedViews)
            QVERIFY2(std::count(views.begin(), views.end(), view) == 1, view.c_str());
    }
    QVERIFY(m_catalog.parts().size() >= 300);
    QVERIFY(families.size() >= 12);
    for (const QChar awkward : QString("&<\"'"))
        QVERIFY2(allText.contains(awkward), qPrintable(QString(awkward)));
}

void PartCatalogTest::searchFindsWordsInAnyOrderAndCase_data()
{
    QTest::addColumn<QString>("term");
    QTest::addColumn<QString>("found");
    const auto row = [](const char* name, const char* term, const char* found) {
        QTest::newRow(name) << QString::fromUtf8(term) << QString::fromUtf8(found);
    };
    const char* const bolt = "Brandmoor & Vogelsang: Hex bolt M8";
    row("a word of the supplier", "vogelsang m8 bolt", bolt);
    row("a word of the description", "chromium(vi) M8", bolt);
    row("parts of words", "brand bol m8", bolt);
    row("in another order, with blanks", "\t M8   BOLT\nHex ", bolt);
    row("wide letters", "ｈｅｘ ｂｏｌｔ m8", bolt);
    row("Cyrillic", "шарикоПОДШИПНИК 6204", "ООО «Клён-Подшипник»: Шарикоподшипник 6204");
    row("Greek", "ΕΛΑΙΏΝΑΣ 2 x 20 ΕΛΑΤΉΡΙΟ", "Ελαιώνας Ελατήρια Α.Ε.: Ελατήριο συμπίεσης 2 x 20");
    row("umlaut, composed otherwise", "ZWO\u0308LFHAUS druckfeder 2 x 20",
        "Federnwerk Zwölfhaus: Druckfeder 2 x 20");
    row("sharp s as two", "MÜSSIGBRUNN 6204", "Müßigbrunn Wälzlager GmbH & Co. KG: Rillenkugellager 6204");
    row("Japanese", "六角 M8", "碧谷精密工業株式会社: 六角ボルト M8");
}

void PartCatalogTest::searchFindsWordsInAnyOrderAndCase()
{
    QFETCH(QString, term);
    QFETCH(QString, found);
    const std::vector<const Part*> hits = m_catalog.search(term.toStdString());
    QVERIFY(std::any_of(hits.begin(), hits.end(), [&found](const Part* part) {
        return part->supplier + ": " + part->name == found.toStdString();
    }));
}

void PartCatalogTest::searchFindsJustWhatHasEveryWord()
{
    for (const char* term : {"", "\t\n", "\u3000", "hex bolt m8 xylophone"})
        QVERIFY(m_catalog.search(term).empty());
    const auto found = m_catalog.search("hex");
    QVERIFY(found.size() > 20); // Several pages.
    for (const Part& part : m_catalog.parts()) {
        const bool hasWord = contains(part.name + part.family, "hex") || contains(part.supplier, "hex") ||
                             contains(part.description, "hex");
        QCOMPARE(std::count(found.begin(), found.end(), &part) == 1, hasWord);
    }
}

/// A word of the description alone is the least of reasons to show a part.
void PartCatalogTest::searchShowsFirstWhatIsNamedSo()
{
    for (const char* term : {"gear", "washer"}) {
        const auto isNamedSo = [term](const Part* part) { return contains(part->name + part->family, term); };
        const auto isMadeSo = [term](const Part* part) { return contains(part->supplier, term); };
        const auto found = m_catalog.search(term);
        QVERIFY(std::is_partitioned(found.begin(), found.end(), isNamedSo));
        const auto others = std::partition_point(found.begin(), found.end(), isNamedSo);
        QVERIFY(std::is_partitioned(others, found.end(), isMadeSo));
        QVERIFY(std::is_sorted(found.begin(), others)); // In catalog order.
    }
    QCOMPARE(m_catalog.search("gear").front()->family, std::string("spur-gear"));
    QCOMPARE(m_catalog.search("gear").back()->family,
             std::string("hex-bolt")); // "Not to be used for lifting gear"
    QCOMPARE(m_catalog.search("m8 washer").front()->name, std::string("Washer M8"));
}

/// So that supplier and name tell any two parts apart.
void PartCatalogTest::findsAPartBySupplierAndName()
{
    for (const Part& part : m_catalog.parts())
        QCOMPARE(m_catalog.find(part.supplier, part.name), &part);
    const Part& part = m_catalog.parts().front();
    QCOMPARE(m_catalog.find(part.supplier, part.name + " "), nullptr);
    QCOMPARE(m_catalog.find("", part.name), nullptr);
}

QTEST_GUILESS_MAIN(PartCatalogTest)
#include "PartCatalogTest.moc"
