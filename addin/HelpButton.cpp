#include "addin/HelpButton.h"

#include "addin/Languages.h"
#include "common/HostString.h"

#include <pvInterface/pvApplication_c.h>
#include <pvInterface/pvSystemFiles_c.h>

namespace
{

constexpr long HelpTopic = 15050;

/// @return the language's name in help addresses; empty for a language without help.
QString helpLanguageName(pvLanguage_e hostValue)
{
    const Language* language = findLanguage(hostValue);
    return language != nullptr ? QLatin1String(language->helpName) : QString();
}

} // namespace

HelpButton::HelpButton(pvApplication_c* application) : m_application(application)
{
    setIcon(QIcon(QLatin1String(":/3DPH/Resource/Help.PNG")));
    setMaximumWidth(24);
    setAccessibleName(QLatin1String("Help"));
    connect(this, SIGNAL(clicked()), this, SLOT(OnHelpButtonClicked()));
}

void HelpButton::OnHelpButtonClicked()
{
    if (m_application == nullptr)
        return;
    bool webHelp = false;
    m_application->IsWebHelpEnabled(&webHelp);
    if (webHelp)
        openWebHelp();
    else
        openCompiledHelp();
}

void HelpButton::openWebHelp()
{
    pvString base;
    m_application->GetWebLink(&base);
    pvLanguage_e language{};
    m_application->GetLanguage(&language);
    // Put together as it stands: the host's base address is made for it.
    const QString address = toQString(base) + QLatin1String("?P=16&L=") + helpLanguageName(language) +
                            QLatin1String("&V=2019&C=PlotvaneKT&I=0");
    bool opened = false;
    m_application->OpenWebHelp(toPVString(address), &opened);
}

void HelpButton::openCompiledHelp()
{
    pvSystemFiles_c* files = nullptr;
    m_application->GetSystemFiles(&files);
    pvString file;
    if (files != nullptr)
        files->get_HelpFile(&file);
    const QString path =
        toQString(file).replace(QLatin1String("Plotvane.chm"), QLatin1String("PlotvaneKT.chm"));
    bool opened = false;
    m_application->OpenChmHelp(HelpTopic, toPVString(path), &opened);
}
