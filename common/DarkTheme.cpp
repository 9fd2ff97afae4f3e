#include "common/DarkTheme.h"

#include "common/DarkTitleBar.h"

#include <QFile>
#include <QWidget>

#include <pvInterface/pvApplicationOptions_c.h>
#include <pvInterface/pvApplication_c.h>

quint32 g_darkMode = DarkModeUnread;

std::optional<quint32> readColourThemeOption(pvApplication_c* application)
{
    constexpr auto colourTheme = static_cast<pvApplicationOptionInt16_e>(48);

    pvApplicationOptions_c* options = nullptr;
    if (application != nullptr)
        application->GetApplicationOptions(&options);
    if (options == nullptr)
        return std::nullopt;

    long value = 0;
    pvGetApplicationOptionResult_e result{};
    options->GetApplicationOptionInt16(colourTheme, &value, &result);
    return static_cast<quint32>(value);
}

bool isDarkTheme(pvApplication_c* application)
{
    if (g_darkMode == DarkModeUnread)
        g_darkMode = readColourThemeOption(application).value_or(DarkModeUnread);
    return g_darkMode != 0;
}

void applyDarkStyle(QWidget* widget)
{
    QFile file(QLatin1String(":/3DPH/Resource/PV3DPartHarborDarkMode.qss"));
    QByteArray sheet;
    if (file.open(QIODevice::ReadOnly))
        sheet = file.readAll();
    widget->setStyleSheet(QString::fromUtf8(sheet));

    // winId() makes a native window, which is wanted only where its title bar is ours to ask for.
    if (g_windowAttributeSetter != nullptr)
        requestDarkTitleBar(widget->winId());
}
