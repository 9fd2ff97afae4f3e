#pragma once

#include <QList>
#include <QString>

class QButtonGroup;
class QFrame;
class QGridLayout;
class QRect;
class QtCategoryButton;
class QTreeWidget;
class QTreeWidgetItem;

// The collapsible sections that the main panel and the detail page are made of: a tree whose top-level items
// are headed by buttons and whose only child each shows a framed content.

/// A section's top-level item and the button that heads it; both belong to the tree.
struct Section {
    QTreeWidgetItem* item;
    QtCategoryButton* header;
};

/// Gives the tree the look of sections.
void prepareSectionTree(QTreeWidget* tree);

/// Appends an expanded section.
/// @param geometry the header button's initial geometry.
Section addSection(QTreeWidget* tree, const QString& title, const QRect& geometry);

/// Makes the frame for a section's content, owned by the tree.
QFrame* createSectionFrame(QTreeWidget* tree);

/// Puts a frame under a section's header.
void setSectionContent(QTreeWidget* tree, QTreeWidgetItem* section, QFrame* frame);

/// Expands a collapsed section and collapses an expanded one, and gives its header the icon of the new state.
/// @param items the top-level items, indexed by button id.
/// @param headers the header buttons.
/// @param id of the section; an unknown one is ignored.
void toggleSection(const QList<QTreeWidgetItem*>& items, const QButtonGroup& headers, int id);
