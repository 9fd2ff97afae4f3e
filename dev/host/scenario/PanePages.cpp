#include "dev/host/scenario/PanePages.h"

#include <QComboBox>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QTabWidget>
#include <QTextEdit>

#include <algorithm>

namespace devhost
{

bool ResultRow::hasPicture() const
{
    return thumbnail != nullptr && !thumbnail->icon().isNull();
}

QDockWidget* PanePages::dock() const
{
    return m_window.findChild<QDockWidget*>("pane");
}

QTabWidget* PanePages::tabs() const
{
    return shown<QTabWidget>();
}

QVector<ResultRow> PanePages::resultRows() const
{
    const QWidget* page = shown<>("PartHarbor_2D");
    if (page == nullptr)
        return {};
    QVector<QWidget*> widgets;
    for (QWidget* row : page->findChildren<QWidget*>("TableItem"))
        if (row->isVisible())
            widgets.append(row);
    const auto top = [](const QWidget* row) { return row->mapToGlobal(QPoint()).y(); };
    std::sort(widgets.begin(), widgets.end(),
              [&](const QWidget* one, const QWidget* other) { return top(one) < top(other); });

    QVector<ResultRow> rows;
    for (const QWidget* row : widgets) {
        rows.append({row->findChild<QLabel*>("namevaluelabel")->text(),
                     row->findChild<QLabel*>("label")->text(),
                     row->findChild<QTextEdit*>("descvaluelabel")->toPlainText(),
                     row->findChild<QPushButton*>("iconpushButton")});
    }
    return rows;
}

QStringList PanePages::resultNames() const
{
    QStringList names;
    for (const ResultRow& row : resultRows())
        names.append(row.name);
    return names;
}

QComboBox* PanePages::viewList() const
{
    return shownIn<QComboBox>(detailPage());
}

QLabel* PanePages::configurationName() const
{
    const QWidget* page = detailPage();
    if (page == nullptr)
        return nullptr;
    for (QLabel* label : page->findChildren<QLabel*>())
        if (label->isVisible() && label->frameShape() == QFrame::Box) // The only framed text of the page.
            return label;
    return nullptr;
}

QLabel* PanePages::preview() const
{
    const QWidget* page = detailPage();
    if (page == nullptr)
        return nullptr;
    for (QLabel* label : page->findChildren<QLabel*>())
        if (label->isVisible() && label->inherits("ClickableLabel"))
            return label;
    return nullptr;
}

} // namespace devhost
