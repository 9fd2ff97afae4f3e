#include "tests/addin/HostLanguages.h"
#include "tests/addin/LoadedAddIn.h"

#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QLocale>
#include <QTest>
#include <QTranslator>

namespace
{

QString compiled(const QString& language)
{
    return ":/3DPH/3DPH_" + language + ".qm";
}

QDomDocument source(const QString& language)
{
    QDomDocument document;
    QFile file(RESOURCES_FOLDER "/translations/3DPH_" + language + ".ts");
    if (!file.open(QIODevice::ReadOnly) || !document.setContent(file.readAll()))
        qCritical("No translation into %s", qPrintable(language));
    return document;
}

QString blanksAround(const QString& text)
{
    const QString trimmed = text.trimmed();
    return text.section(trimmed, 0, 0) + '|' + text.section(trimmed, 1);
}

/// At each announcement that the application's language has changed, notes the host's last call.
class LanguageChanges : public QObject
{
public:
    explicit LanguageChanges(devhost::HostApplication& host) : m_host(host)
    {
        QCoreApplication::instance()->installEventFilter(this);
    }
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == QCoreApplication::instance() && event->type() == QEvent::LanguageChange)
            m_calls.append(m_host.journal().lines().last());
        return false;
    }
    QStringList take() { return std::exchange(m_calls, {}); }

private:
    devhost::HostApplication& m_host;
    QStringList m_calls;
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
    void fixedTranslations();
    void theHostsLanguage_data();
    void theHostsLanguage();

private:
    QStringList m_keys; ///< what the first language translates
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
    for (const QString& file : files) {
        const QString language = file.section('_', 1).section('.', 0, 0);
        if (language != "en")
            QTest::newRow(qPrintable(language)) << language;
    }
}

void TranslationsTest::everyFileTranslatesEveryMessage()
{
    QFETCH(QString, language);
    const QDomDocument document = source(language);
    QTranslator translator;
    QVERIFY(translator.load(compiled(language)));

    const QDomNodeList elements = document.elementsByTagName("message");
    QCOMPARE(elements.count(), 31);
    QStringList keys;
    for (int i = 0; i < elements.count(); ++i) {
        const QDomElement message = elements.item(i).toElement();
        const QString context = message.parentNode().firstChildElement("name").text();
        const QString source = message.firstChildElement("source").text();
        const QDomElement translation = message.firstChildElement("translation");
        const QByteArray what = ("<" + source + "> is <" + translation.text() + ">").toUtf8();
        QVERIFY2(!translation.text().trimmed().isEmpty(), what);
        QVERIFY2(!translation.hasAttributes(), what); // neither unfinished nor with plural forms
        QVERIFY2(blanksAround(translation.text()) == blanksAround(source), what);
        for (const char* part : {"3D PARTHARBOR", "3DPH", "%1"})
            QVERIFY2(translation.text().count(part) == source.count(part), what);
        QCOMPARE(translator.translate(context.toUtf8(), source.toUtf8()), translation.text());
        keys.append(context + '|' + source);
    }
    keys.sort();
    if (m_keys.isEmpty())
        m_keys = keys;
    QCOMPARE(keys, m_keys); // in every language the same
}

void TranslationsTest::fixedTranslations()
{
    const QVector<QStringList> translations{
        {"german", "PartHarbor_2D", " Mulit View", " Mehrfachansicht"},
        {"french", "PartHarbor_2D", " Mulit View", " Multi-vues"},
        {"german", "QObject", "Configure", "Konfigurieren"},
        {"czech", "QObject", "Configure", "Konfigurovat"},
        {"french", "QObject", "Preview", "Aperçu"},
        {"french", "QObject", "Please Login to 3DPH to Download.",
         "Veuillez vous connecter à 3DPH pour procéder au téléchargement."},
    };
    for (const QStringList& fixed : translations) {
        QTranslator translator;
        QVERIFY(translator.load(compiled(fixed[0])));
        QCOMPARE(translator.translate(fixed[1].toUtf8(), fixed[2].toUtf8()), fixed[3]);
    }
}

void TranslationsTest::theHostsLanguage_data()
{
    QTest::addColumn<test::HostLanguage>("language");
    for (const test::HostLanguage& language : test::hostLanguages())
        QTest::addRow("%d %s", language.value, qPrintable(language.translation)) << language;
}

void TranslationsTest::theHostsLanguage()
{
    QFETCH(test::HostLanguage, language);
    const QLocale locale = language.locale.isEmpty() ? QLocale(QLocale::Dutch) : QLocale(language.locale);
    QLocale::setDefault(QLocale::Dutch);
    QTranslator expected;
    QCOMPARE(expected.load(compiled(language.translation)), !language.translation.isEmpty());
    LanguageChanges changes(m_addIn->host());

    m_addIn->host().settings().language = language.value;
    m_addIn->connect();
    QCOMPARE(QLocale(), locale);
    // In every language another.
    const QString translation = expected.translate("QObject", "Preview");
    QCOMPARE(QCoreApplication::translate("QObject", "Preview"),
             translation.isEmpty() ? "Preview" : translation);
    // Qt announces a translator that has texts, and at its removal any that was installed.
    QCOMPARE(changes.take(), expected.isEmpty() ? QStringList() : QStringList("GetLanguage()"));
    m_addIn->disconnect();
    // Behind the way through the ribbon, and before the host removes the rest.
    QCOMPARE(changes.take(), QStringList("RibbonTab[ID_ViewTab].GetApiID()"));
    QCOMPARE(QLocale(), locale);
    QCOMPARE(QCoreApplication::translate("QObject", "Preview"), QString("Preview"));
}

QTEST_MAIN(TranslationsTest)
#include "TranslationsTest.moc"
