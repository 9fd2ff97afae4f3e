#pragma once

#include <QPair>
#include <QPointer>
#include <QString>
#include <QVector>
#include <QWidget>

namespace devhost
{

/// Takes the style sheets that widgets have of their own off them, and gives them back at its end.
///
/// Qt makes a widget with a sheet a palette from the theme of that moment, and a link in a label gets its
/// colour when the text is read; neither follows a change of the theme. A theme that is changed in between is
/// followed.
class SheetsSetAside
{
public:
    /// @param root outlives this; it is its sheets that are meant, and those of all that is in it.
    explicit SheetsSetAside(QWidget& root);
    ~SheetsSetAside();
    SheetsSetAside(const SheetsSetAside&) = delete;
    SheetsSetAside& operator=(const SheetsSetAside&) = delete;

private:
    QWidget& m_root;
    QVector<QPair<QPointer<QWidget>, QString>> m_sheets; // Outer widgets first.
};

} // namespace devhost
