#include "addin/HelpButton.h"

#include "common/HostString.h"

#include <pvInterface/pvApplication_c.h>
#include <pvInterface/pvSystemFiles_c.h>

namespace
{

constexpr long HelpTopic = 15050;

struct HelpLanguage {
    int hostValue;
    const char* name;
};

constexpr HelpLanguage HelpLanguages[] = {
    {2, "English"},
    {1, "German"},
    {9, "Chinese-simplified"},
    {8, "Chinese"},
    {7, "French"},
    {10, "Italian"},
    {6, "Japanese"},
    {13, "Korean"},
    {5, "Polish"},
    {19, "Portuguese-brazilian"},
    {18, "Russian"},
    {11, "Spanish"},
    {3, "Turkish"},
    {20, "Czech"},
};

/// @return the language's name in help addresses; empty for a language without help.
QString helpLanguageName(pvLanguage_e language)
{
    for (const HelpLanguage& row : HelpLanguages)
        if (row.hostValue == language)
            return QLatin1String(row.name);
    return QString();
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
