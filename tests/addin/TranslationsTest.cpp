#include "tests/addin/LoadedAddIn.h"

#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QLocale>
#include <QTest>
#include <QTranslator>
#include <QtEndian>

namespace
{

/// A text that the files translate.
struct Message {
    const char* context;
    const char* source;
};

const Message messages[] = {
    {"PartHarbor_2D", " 4 View"},
    {"PartHarbor_2D", " Back"},
    {"PartHarbor_2D", " Bottom"},
    {"PartHarbor_2D", " Detailed"},
    {"PartHarbor_2D", " Dimetric"},
    {"PartHarbor_2D", " Front"},
    {"PartHarbor_2D", " Isometric"},
    {"PartHarbor_2D", " Left"},
    {"PartHarbor_2D", " Mulit View"},
    {"PartHarbor_2D", " Right"},
    {"PartHarbor_2D", " Top"},
    {"PartHarbor_2D", " Trimetric"},
    {"PartHarbor_2D", "3D PARTHARBOR"},
    {"PartHarbor_2D", "Back"},
    {"PartHarbor_2D", "Configuration : "},
    {"PartHarbor_2D", "Creates a 2D representation of the model"},
    {"PartHarbor_2D", "Email Address : "},
    {"PartHarbor_2D", "Error"},
    {"PartHarbor_2D", "Help"},
    {"PartHarbor_2D", "Log In"},
    {"PartHarbor_2D", "Password :"},
    {"PartHarbor_2D", "View : "},
    {"QObject", "2D"},
    {"QObject", "Cannot open xml file: %1"},
    {"QObject", "Configure"},
    {"QObject", "Log In"},
    {"QObject", "Please Login to 3DPH to Download."},
    {"QObject", "Please enter Search string"},
    {"QObject", "Preview"},
    {"QObject", "Search"},
    {"QObject", "Server was unable to process request. Invalid key string."},
};

/// What stays as it is in every language.
const char* const untranslated[] = {"3D PARTHARBOR", "3DPH", "%1"};

struct Language {
    int hostValue;
    QLocale::Language locale;
    const char* file; ///< Between "3DPH_" and the suffix.
};

const Language languages[] = {
    {2, QLocale::English, "en"},
    {1, QLocale::German, "german"},
    {9, QLocale::Chinese, "chinese-simple"},
    {8, QLocale::Chinese, "chinese"},
    {7, QLocale::French, "french"},
    {10, QLocale::Italian, "italian"},
    {6, QLocale::Japanese, "japanese"},
    {13, QLocale::Korean, "korean"},
    {5, QLocale::Polish, "polish"},
    {19, QLocale::Portuguese, "portugese-brazil"},
    {18, QLocale::Russian, "russian"},
    {11, QLocale::Spanish, "spanish"},
    {3, QLocale::Turkish, "turkish"},
};

QString compiled(const QString& language)
{
    return ":/3DPH/3DPH_" + language + ".qm";
}

QString blanksAround(const QString& text)
{
    const QString trimmed = text.trimmed();
    return text.section(trimmed, 0, 0) + '|' + text.section(trimmed, 1);
}

/// @return the children's element names, each once.
QStringList elementNames(const QDomElement& parent)
{
    QStringList names;
    for (QDomElement child = parent.firstChildElement(); !child.isNull(); child = child.nextSiblingElement())
        names.append(child.tagName());
    names.removeDuplicates();
    return names;
}

/// @return the blocks of a compiled file, by their tags; 0 for a file that is none.
QList<int> blockTags(const QByteArray& file)
{
    static const QByteArray magic = QByteArray::fromHex("3cb86418caef9c95cd211cbf60a1bddd");
    if (!file.startsWith(magic))
        return {0};
    QList<int> tags;
    for (int at = magic.size(); at + 5 <= file.size();
         at += 5 + static_cast<int>(qFromBigEndian<quint32>(file.constData() + at + 1)))
        tags.append(static_cast<quint8>(file.at(at)));
    return tags;
}

/// Counts the announcements that the application's language has changed.
class LanguageChanges : public QObject
{
public:
    LanguageChanges() { QCoreApplication::instance()->installEventFilter(this); }
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == QCoreApplication::instance() && event->type() == QEvent::LanguageChange)
            ++m_count;
        return false;
    }
    int take() { return std::exchange(m_count, 0); }

private:
    int m_count = 0;
};

} // namespace

class TranslationsTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_addIn = std::make_unique<test::LoadedAddIn>(); }
    void cleanup();

    void everyFileTranslatesEveryMessage_data();
    void everyFileTranslatesEveryMessage();
    void fixedTranslations_data();
    void fixedTranslations();
    void englishIsTheSource();
    void theHostsLanguage_data();
    void theHostsLanguage();

private:
    std::unique_ptr<test::LoadedAddIn> m_addIn;
};

void TranslationsTest::cleanup()
{
    QCOMPARE(m_addIn->leave(), QStringList());
    m_addIn.reset();
    QLocale::setDefault(QLocale::C);
}

void TranslationsTest::everyFileTranslatesEveryMessage_data()
{
    QTest::addColumn<QString>("language");
    const QStringList files = QDir(RESOURCES_FOLDER "/translations").entryList(QDir::Files);
    QCOMPARE(files.size(), 14);
    for (const QString& file : files) {
        const QString language = file.section('_', 1).section('.', 0, 0);
        if (language != "en")
            QTest::newRow(qPrintable(language)) << language;
    }
}

void TranslationsTest::everyFileTranslatesEveryMessage()
{
    QFETCH(QString, language);
    QFile file(RESOURCES_FOLDER "/translations/3DPH_" + language + ".ts");
    QVERIFY(file.open(QIODevice::ReadOnly));
    QDomDocument document;
    QVERIFY(document.setContent(file.readAll()));
    const QDomElement root = document.documentElement();
    QCOMPARE(root.attributes().count(), 1); // a language would add a block to the compiled file
    QVERIFY(root.hasAttribute("version"));
    QCOMPARE(elementNames(root), QStringList("context"));

    QTranslator translator;
    QVERIFY(translator.load(compiled(language)));
    QFile compiledFile(compiled(language));
    QVERIFY(compiledFile.open(QIODevice::ReadOnly));
    QCOMPARE(blockTags(compiledFile.readAll()), QList<int>({0x42, 0x69})); // hashes and messages

    QStringList expected;
    for (const Message& message : messages)
        expected.append(QString("%1/%2").arg(message.context, message.source));
    QStringList found;
    const QDomNodeList elements = document.elementsByTagName("message");
    for (int i = 0; i < elements.count(); ++i) {
        const QDomElement message = elements.item(i).toElement();
        QCOMPARE(elementNames(message), QStringList({"source", "translation"})); // no comments
        const QString context = message.parentNode().firstChildElement("name").text();
        const QString source = message.firstChildElement("source").text();
        const QDomElement translation = message.firstChildElement("translation");
        found.append(context + '/' + source);

        const QByteArray what = ("<" + source + "> is <" + translation.text() + ">").toUtf8();
        QVERIFY2(!translation.text().trimmed().isEmpty(), what);
        QVERIFY2(!translation.hasAttributes(), what); // neither unfinished nor with plural forms
        QVERIFY2(blanksAround(translation.text()) == blanksAround(source), what);
        for (const char* part : untranslated)
            QVERIFY2(translation.text().count(part) == source.count(part), what);
        QCOMPARE(translator.translate(context.toUtf8(), source.toUtf8()), translation.text());
    }
    found.sort();
    expected.sort();
    QCOMPARE(found, expected);
}

void TranslationsTest::fixedTranslations_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QByteArray>("context");
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QString>("translation");
    const auto row = [](const char* language, const char* context, const char* source,
                        const char* translation) {
        QTest::addRow("%s, %s", language, source) << QString(language) << QByteArray(context)
                                                  << QByteArray(source) << QString::fromUtf8(translation);
    };
    row("german", "PartHarbor_2D", " Mulit View", " Mehrfachansicht");
    row("french", "PartHarbor_2D", " Mulit View", " Multi-vues");
    row("german", "QObject", "Configure", "Konfigurieren");
    row("french", "QObject", "Preview", "Aperçu");
    row("french", "QObject", "Please Login to 3DPH to Download.",
        "Veuillez vous connecter à 3DPH pour procéder au téléchargement.");
}

void TranslationsTest::fixedTranslations()
{
    QFETCH(QString, language);
    QFETCH(QByteArray, context);
    QFETCH(QByteArray, source);
    QTranslator translator;
    QVERIFY(translator.load(compiled(language)));
    QTEST(translator.translate(context, source), "translation");
}

void TranslationsTest::englishIsTheSource()
{
    QTranslator translator;
    QVERIFY(translator.load(compiled("en")));
    for (const Message& message : messages)
        QVERIFY(translator.translate(message.context, message.source).isEmpty());
}

void TranslationsTest::theHostsLanguage_data()
{
    QTest::addColumn<int>("hostValue");
    QTest::addColumn<QLocale>("locale"); // of the host before, where the add-in leaves it
    QTest::addColumn<QString>("file");   // null for none
    for (const Language& language : languages)
        QTest::newRow(language.file) << language.hostValue << QLocale(language.locale, QLocale::AnyCountry)
                                     << QString(language.file);
    for (const int unknown : {20, 14, 0, -1})
        QTest::addRow("unknown %d", unknown) << unknown << QLocale(QLocale::Dutch) << QString();
}

void TranslationsTest::theHostsLanguage()
{
    QFETCH(int, hostValue);
    QFETCH(QLocale, locale);
    QFETCH(QString, file);
    QLocale::setDefault(QLocale::Dutch);
    QTranslator expected;
    expected.load(compiled(file));
    LanguageChanges changes;

    m_addIn->host().settings().language = hostValue;
    m_addIn->connect();
    QCOMPARE(QLocale(), locale);
    for (const Message& message : messages) {
        const QString translation = expected.translate(message.context, message.source);
        QCOMPARE(QCoreApplication::translate(message.context, message.source),
                 translation.isEmpty() ? message.source : translation);
    }
    // The toolkit announces a translator that has texts, and at its removal any that was installed.
    QCOMPARE(changes.take(), expected.isEmpty() ? 0 : 1);
    m_addIn->disconnect();
    QCOMPARE(changes.take(), 1);
    QCOMPARE(QLocale(), locale);
    QCOMPARE(QCoreApplication::translate("QObject", "Configure"), QString("Configure"));
}

QTEST_MAIN(TranslationsTest)
#include "TranslationsTest.moc"
