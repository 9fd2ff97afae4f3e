#include "dev/host/window/WindowTheme.h"

#include "dev/host/window/HostStyle.h"

#include <QApplication>
#include <QToolTip>

namespace devhost
{

namespace
{

struct Colors {
    const char* window;
    const char* text;
    const char* base;
    const char* alternate;
    const char* button;
    const char* mid;
    const char* highlight;
    const char* highlightedText;
    const char* link;
    const char* disabledText;
    const char* placeholder;
};

constexpr Colors LightColors{"#f0f2f5", "#1f2429", "#ffffff", "#f5f7f9", "#f0f2f5", "#c3c9d0",
                             "#1f6fb2", "#ffffff", "#1f6fb2", "#9aa2ab", "#7b848e"};
constexpr Colors DarkColors{"#2d343d", "#e3e7eb", "#22282f", "#272e36", "#38414b", "#1e242b",
                            "#3d8fd1", "#ffffff", "#6db3ec", "#7d8791", "#8d97a2"};

} // namespace

QPalette windowPalette(bool dark)
{
    const Colors& colors = dark ? DarkColors : LightColors;
    QPalette palette(QColor(colors.button), QColor(colors.window)); // Derives the shades.
    const QColor text(colors.text);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::Base, QColor(colors.base));
    palette.setColor(QPalette::AlternateBase, QColor(colors.alternate));
    palette.setColor(QPalette::Mid, QColor(colors.mid));
    palette.setColor(QPalette::Highlight, QColor(colors.highlight));
    palette.setColor(QPalette::HighlightedText, QColor(colors.highlightedText));
    palette.setColor(QPalette::Link, QColor(colors.link));
    palette.setColor(QPalette::ToolTipBase, QColor(colors.base));
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::PlaceholderText, QColor(colors.placeholder));
    const QColor disabled(colors.disabledText);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, disabled);
    return palette;
}

void applyWindowTheme(bool dark)
{
    QApplication::setStyle(new HostStyle);
    const QPalette palette = windowPalette(dark);
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);
}

} // namespace devhost
