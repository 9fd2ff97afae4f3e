#pragma once

#include <QPushButton>

class QTreeWidget;
class QTreeWidgetItem;

/// Header of a collapsible section: the item widget of a top-level tree item. Its clicks reach the page
/// through a button group.
class QtCategoryButton : public QPushButton
{
    Q_OBJECT

public:
    /// @param text the section's heading.
    /// @param parent the tree, which owns the button.
    /// @param item the tree item that the button heads; not owned.
    QtCategoryButton(const QString& text, QTreeWidget* parent, QTreeWidgetItem* item);

private:
    QTreeWidgetItem* m_item;
};
