// DockWidgetApplication: the language of the add-in's texts.

#include "addin/DockWidgetApplication.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>
#include <QTranslator>

namespace
{

struct Language {
    int hostValue;
    QLocale::Language locale;
    const char* translation;
};

// Both kinds of Chinese set the same locale; Brazilian Portuguese sets plain Portuguese.
constexpr Language Languages[] = {
    {2, QLocale::English, ":/3DPH/3DPH_en.qm"},
    {1, QLocale::German, ":/3DPH/3DPH_german.qm"},
    {9, QLocale::Chinese, ":/3DPH/3DPH_chinese-simple.qm"},
    {8, QLocale::Chinese, ":/3DPH/3DPH_chinese.qm"},
    {7, QLocale::French, ":/3DPH/3DPH_french.qm"},
    {10, QLocale::Italian, ":/3DPH/3DPH_italian.qm"},
    {6, QLocale::Japanese, ":/3DPH/3DPH_japanese.qm"},
    {13, QLocale::Korean, ":/3DPH/3DPH_korean.qm"},
    {5, QLocale::Polish, ":/3DPH/3DPH_polish.qm"},
    {19, QLocale::Portuguese, ":/3DPH/3DPH_portugese-brazil.qm"},
    {18, QLocale::Russian, ":/3DPH/3DPH_russian.qm"},
    {11, QLocale::Spanish, ":/3DPH/3DPH_spanish.qm"},
    {3, QLocale::Turkish, ":/3DPH/3DPH_turkish.qm"},
};

} // namespace

void DockWidgetApplication::LoadTranslator()
{
    QString path;
    m_translator = new QTranslator;
    pvLanguage_e hostLanguage{};
    if (m_app)
        m_app->GetLanguage(&hostLanguage);
    for (const Language& language : Languages) {
        if (language.hostValue == hostLanguage) {
            QLocale::setDefault(QLocale(language.locale, QLocale::AnyCountry));
            path = QLatin1String(language.translation);
        }
    }
    // A translator that loaded nothing is installed all the same.
    m_translator->load(QDir::toNativeSeparators(path));
    QCoreApplication::installTranslator(m_translator);
}

void DockWidgetApplication::unLoadTranslator()
{
    if (m_translator == nullptr)
        return;
    QCoreApplication::removeTranslator(m_translator);
    delete m_translator;
    m_translator = nullptr; // a second call must not delete it again
}
