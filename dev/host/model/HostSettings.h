#pragma once

#include <QString>

namespace devhost
{

/// What the host reports about its user interface and its help.
struct HostSettings {
    int language = 2; ///< pvLanguage_e value; 2 is English.
    bool darkTheme = false;
    quint32 darkThemeValue = 1; ///< how the host's option tells a dark theme; 0 is the light one
    bool webHelp = false;
    QString webLink = "https://help.plotvane.example/"; ///< Base address of the web help.
    QString helpFile = "Help/Plotvane.chm";             ///< Path of the compiled help file.

    friend bool operator==(const HostSettings& one, const HostSettings& other)
    {
        return one.language == other.language && one.darkTheme == other.darkTheme &&
               one.darkThemeValue == other.darkThemeValue && one.webHelp == other.webHelp &&
               one.webLink == other.webLink && one.helpFile == other.helpFile;
    }
};

} // namespace devhost
