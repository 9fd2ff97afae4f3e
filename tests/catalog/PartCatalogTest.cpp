#include "dev/catalog/parts/PartCatalog.h"

#include <QSet>
#include <QTest>

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
    void searchFindsWordsInAnyOrderAndCase();
    void searchFindsJustWhatHasEveryWord();
    void findsAPartBySupplierAndName();

private:
    const PartCatalog m_catalog;
};

void PartCatalogTest::partsAreManyAndWhole()
{
    QSet<QString> families;
    QString allText;
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
    }
    QVERIFY(m_catalog.parts().size() >= 300);
    QVERIFY(families.size() >= 12);
    for (const QChar awkward : QString("&<\"'"))
        QVERIFY2(allText.contains(awkward), qPrintable(QString(awkward)));
}

void PartCatalogTest::searchFindsWordsInAnyOrderAndCase()
{
    const auto finds = [this](const char* term, const std::string& found) {
        const std::vector<const Part*> hits = m_catalog.search(term);
        return std::any_of(hits.begin(), hits.end(), [&found](const Part* part) {
            return part->supplier + ": " + part->name == found;
        });
    };
    const char* const bolt = "Brandmoor & Vogelsang: Hex bolt M8";
    QVERIFY(finds("vogelsang m8 bolt", bolt));
    QVERIFY(finds("chromium(vi) M8", bolt)); // A word of the description.
    QVERIFY(finds("brand bol m8", bolt));
    QVERIFY(finds("\t M8   BOLT\nHex ", bolt));
    QVERIFY(finds("ｈｅｘ ｂｏｌｔ m8", bolt));
    QVERIFY(finds("шарикоПОДШИПНИК 6204", "ООО «Клён-Подшипник»: Шарикоподшипник 6204"));
    QVERIFY(finds("ΕΛΑΙΏΝΑΣ 2 x 20 ΕΛΑΤΉΡΙΟ", "Ελαιώνας Ελατήρια Α.Ε.: Ελατήριο συμπίεσης 2 x 20"));
    QVERIFY(finds("ZWO\u0308LFHAUS druckfeder 2 x 20", "Federnwerk Zwölfhaus: Druckfeder 2 x 20"));
    QVERIFY(finds("MÜSSIGBRUNN 6204", "Müßigbrunn Wälzlager GmbH & Co. KG: Rillenkugellager 6204"));
    QVERIFY(finds("六角 M8", "碧谷精密工業株式会社: 六角ボルト M8"));
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
    // First come the parts named so, last those that only describe themselves so.
    QCOMPARE(m_catalog.search("gear").front()->family, std::string("spur-gear"));
    QCOMPARE(m_catalog.search("gear").back()->family, std::string("hex-bolt"));
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
