#include "dev/host/window/SheetsSetAside.h"

#include <QLabel>
#include <QTextDocument>

namespace devhost
{

namespace
{

/// Has the label read its text anew, for the same text is none to it.
void readAgain(QLabel& label)
{
    const QString text = label.text();
    if (!Qt::mightBeRichText(text))
        return;
    label.setText(QString());
    label.setText(text);
}

} // namespace

SheetsSetAside::SheetsSetAside(QWidget& root) : m_root(root)
{
    for (QWidget* widget : QList<QWidget*>{&root} + root.findChildren<QWidget*>()) {
        if (widget->styleSheet().isEmpty())
            continue;
        m_sheets.append({widget, widget->styleSheet()});
        widget->setStyleSheet(QString());
    }
}

SheetsSetAside::~SheetsSetAside()
{
    for (const auto& [widget, sheet] : qAsConst(m_sheets))
        if (widget)
            widget->setStyleSheet(sheet);
    for (QLabel* label : m_root.findChildren<QLabel*>())
        readAgain(*label);
}

} // namespace devhost
