// DockWidgetApplication: the language of the add-in's texts.

#include "addin/DockWidgetApplication.h"
#include "addin/Languages.h"

#include <QCoreApplication>
#include <QDir>
#include <QTranslator>

void DockWidgetApplication::LoadTranslator()
{
    QString path;
    m_translator = new QTranslator;
    pvLanguage_e hostLanguage{};
    if (m_app)
        m_app->GetLanguage(&hostLanguage);
    const Language* language = findLanguage(hostLanguage);
    if (language != nullptr && language->translation != nullptr) {
        QLocale::setDefault(QLocale(language->locale, QLocale::AnyCountry));
        path = QLatin1String(language->translation);
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
