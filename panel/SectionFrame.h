#pragma once

#include <QFrame>

class QTreeWidget;
class QTreeWidgetItem;

/// The framed content of a section. Keeps its tree item as high as it needs: a tree neither asks the widget
/// of an item for a height that depends on its width nor hears of a change. The frame has a style sheet from
/// the start: a widget that is made its child takes that over, while one that becomes its child is polished
/// anew.
class SectionFrame : public QFrame
{
    Q_OBJECT

public:
    /// @param tree owns the frame.
    explicit SectionFrame(QTreeWidget* tree);

    /// Makes the frame the content of an item. @param item of the tree; not owned.
    void showIn(QTreeWidgetItem* item);
    /// Has the frame, the tree's last item, take the height that is left below it, and no less than a picture
    /// needs.
    void fillTree();

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fit();
    int heightLeft() const;

    QTreeWidget* m_tree;
    QTreeWidgetItem* m_item = nullptr;
    bool m_fills = false;
};
