#include "devcatalog/parts/PartCatalog.h"

#include <QSet>
#include <QtTest>

#include <algorithm>
#include <string>

using namespace devcatalog;

using Condition = bool (*)(const Part&);
Q_DECLARE_METATYPE(Condition)

namespace
{

const QStringList views = {"eDrawingView_PREDEFINED", "eDrawingView_4VIEW",    "eDrawingView_MULTI",
                           "eDrawingView_FRONT",      "eDrawingView_TOP",      "eDrawingView_RIGHT",
                           "eDrawingView_BACK",       "eDrawingView_BOTTOM",   "eDrawingView_LEFT",
                           "eDrawingView_ISOMETRIC",  "eDrawingView_DIMETRIC", "eDrawingView_TRIMETRIC"};

bool contains(const std::string& text, const char* piece)
{
    return text.find(piece) != std::string::npos;
}

/// Whether a text has letters beyond those of Latin scripts.
bool isNonLatin(const std::string& text)
{
    const QString letters = QString::fromStdString(text);
    return std::any_of(letters.begin(), letters.end(), [](QChar letter) {
        return letter.isLetter() && letter.script() != QChar::Script_Latin &&
               letter.script() != QChar::Script_Common;
    });
}

QStringList namesOf(const std::vector<const Part*>& parts)
{
    QStringList names;
    for (const Part* part : parts)
        names << QString::fromStdString(part->supplier + ": " + part->name);
    return names;
}

} // namespace

class PartCatalogTest : public QObject
{
    Q_OBJECT

private slots:
    void hasManyPartsOfManyKinds();
    void partsCanBeToldApart();
    void textsAreClean();
    void hasTheCasesThatReadersStumbleOver_data();
    void hasTheCasesThatReadersStumbleOver();
    void configurationsDiffer();
    void searchFindsWordsInAnyOrderAndCase_data();
    void searchFindsWordsInAnyOrderAndCase();
    void searchFindsJustWhatHasEveryWord();
    void searchWithoutWordsFindsNothing();
    void findsAPartBySupplierAndName();

private:
    const PartCatalog m_catalog;
};

void PartCatalogTest::hasManyPartsOfManyKinds()
{
    QSet<QString> families;
    QSet<QString> suppliers;
    for (const Part& part : m_catalog.parts()) {
        families.insert(QString::fromStdString(part.family));
        suppliers.insert(QString::fromStdString(part.supplier));
    }
    QVERIFY2(m_catalog.parts().size() >= 300, qPrintable(QString::number(m_catalog.parts().size())));
    QVERIFY2(families.size() >= 12, qPrintable(QString::number(families.size())));
    QVERIFY2(suppliers.size() >= 12, qPrintable(QString::number(suppliers.size())));
}

void PartCatalogTest::partsCanBeToldApart()
{
    QSet<QString> seen;
    for (const Part& part : m_catalog.parts()) {
        const QString key = QString::fromStdString(part.supplier + '\n' + part.name);
        QVERIFY2(!seen.contains(key), qPrintable(key));
        seen.insert(key);
    }
}

void PartCatalogTest::textsAreClean()
{
    for (const Part& part : m_catalog.parts())
        for (const std::string& text : {part.name, part.supplier, part.description}) {
            const QString read = QString::fromStdString(text);
            QCOMPARE(read.toStdString(), text); // Broken UTF-8 would not come back.
            QCOMPARE(read.trimmed(), read);
            QVERIFY2(!read.contains('{'), qPrintable(read));
        }
}

void PartCatalogTest::hasTheCasesThatReadersStumbleOver_data()
{
    QTest::addColumn<Condition>("applies");
    const auto row = [](const char* name, Condition applies) { QTest::newRow(name) << applies; };
    row("ampersand in a supplier", [](const Part& part) { return contains(part.supplier, "&"); });
    row("angle bracket in a supplier", [](const Part& part) { return contains(part.supplier, "<"); });
    row("quotation mark in a supplier", [](const Part& part) { return contains(part.supplier, "\""); });
    row("apostrophe in a supplier", [](const Part& part) { return contains(part.supplier, "'"); });
    row("angle bracket in a name", [](const Part& part) { return contains(part.name, "<"); });
    row("quotation mark in a name", [](const Part& part) { return contains(part.name, "\""); });
    row("ampersand in a description", [](const Part& part) { return contains(part.description, "&"); });
    row("non-Latin supplier", [](const Part& part) { return isNonLatin(part.supplier); });
    row("non-Latin name", [](const Part& part) { return isNonLatin(part.name); });
    row("non-Latin description", [](const Part& part) { return isNonLatin(part.description); });
    row("umlaut in a name", [](const Part& part) { return contains(part.name, "É"); });
    row("empty description", [](const Part& part) { return part.description.empty(); });
    row("long description", [](const Part& part) { return part.description.size() > 400; });
    row("one configuration", [](const Part& part) { return part.configurations.size() == 1; });
    row("four configurations", [](const Part& part) { return part.configurations.size() == 4; });
    row("views without a drawing", [](const Part& part) { return !part.unsupportedViews.empty(); });
}

void PartCatalogTest::hasTheCasesThatReadersStumbleOver()
{
    QFETCH(Condition, applies);
    const auto& parts = m_catalog.parts();
    const auto count = std::count_if(parts.begin(), parts.end(), applies);
    QVERIFY(count > 0);
    QVERIFY(count < static_cast<std::ptrdiff_t>(parts.size()));
}

void PartCatalogTest::configurationsDiffer()
{
    for (const Part& part : m_catalog.parts()) {
        QVERIFY2(!part.configurations.empty() && part.configurations.size() <= 4, part.name.c_str());
        QSet<QString> names;
        for (const Configuration& configuration : part.configurations) {
            names.insert(QString::fromStdString(configuration.name));
            QVERIFY(configuration.parameters.size() > 1);
            for (const Parameter& parameter : configuration.parameters)
                QVERIFY2(!parameter.name.empty() && !parameter.value.empty(), configuration.name.c_str());
        }
        QCOMPARE(static_cast<std::size_t>(names.size()), part.configurations.size());
        for (const std::string& view : part.unsupportedViews)
            QVERIFY2(views.contains(QString::fromStdString(view)), view.c_str());
    }
}

void PartCatalogTest::searchFindsWordsInAnyOrderAndCase_data()
{
    QTest::addColumn<QString>("term");
    QTest::addColumn<QString>("found");
    const QString bolt = "Brandmoor & Vogelsang: Hex bolt M8";
    QTest::newRow("words of a name") << "hex bolt m8" << bolt;
    QTest::newRow("in another order") << "M8 BOLT Hex" << bolt;
    QTest::newRow("a word of the supplier") << "vogelsang m8 bolt" << bolt;
    QTest::newRow("a word of the description") << "chromium(vi) M8" << bolt;
    QTest::newRow("parts of words") << "brand bol m8" << bolt;
    QTest::newRow("blanks around and between") << "\t hex   bolt\nM8 " << bolt;
    QTest::newRow("ampersand") << "& hex bolt m8" << bolt;
    QTest::newRow("wide letters") << QString::fromUtf8("ｈｅｘ ｂｏｌｔ m8") << bolt;
    QTest::newRow("Cyrillic") << QString::fromUtf8("шарикоПОДШИПНИК 6204")
                              << QString::fromUtf8("ООО «Клён-Подшипник»: Шарикоподшипник 6204");
    QTest::newRow("Greek") << QString::fromUtf8("ΕΛΑΙΏΝΑΣ 2 x 20 ΕΛΑΤΉΡΙΟ")
                           << QString::fromUtf8("Ελαιώνας Ελατήρια Α.Ε.: Ελατήριο συμπίεσης 2 x 20");
    QTest::newRow("umlaut, composed otherwise")
        << QString::fromUtf8("ZWÖLFHAUS druckfeder 2 x 20").normalized(QString::NormalizationForm_D)
        << QString::fromUtf8("Federnwerk Zwölfhaus: Druckfeder 2 x 20");
    QTest::newRow("sharp s") << "MUESSIG" << QString();
    QTest::newRow("sharp s as two") << QString::fromUtf8("MÜSSIGBRUNN 6204")
                                    << QString::fromUtf8(
                                           "Müßigbrunn Wälzlager GmbH & Co. KG: Rillenkugellager 6204");
    QTest::newRow("Japanese") << QString::fromUtf8("六角 M8")
                              << QString::fromUtf8("碧谷精密工業株式会社: 六角ボルト M8");
    QTest::newRow("one word too many") << "hex bolt m8 xylophone" << QString();
}

void PartCatalogTest::searchFindsWordsInAnyOrderAndCase()
{
    QFETCH(QString, term);
    QFETCH(QString, found);
    const QStringList names = namesOf(m_catalog.search(term.toStdString()));
    if (found.isEmpty())
        QCOMPARE(names, QStringList());
    else
        QVERIFY2(names.contains(found), qPrintable(names.join('\n')));
}

void PartCatalogTest::searchFindsJustWhatHasEveryWord()
{
    const auto found = m_catalog.search("hex");
    QVERIFY2(found.size() > 20, qPrintable(QString::number(found.size()))); // Several pages.
    for (const Part& part : m_catalog.parts()) {
        const QString text =
            QString::fromStdString(part.name + '\n' + part.supplier + '\n' + part.description);
        QCOMPARE(std::count(found.begin(), found.end(), &part) == 1,
                 text.contains("hex", Qt::CaseInsensitive));
    }
    QVERIFY(std::is_sorted(found.begin(), found.end())); // In catalog order.
}

void PartCatalogTest::searchWithoutWordsFindsNothing()
{
    for (const char* term : {"", " ", "\t\n", "\u3000"})
        QVERIFY(m_catalog.search(term).empty());
}

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
