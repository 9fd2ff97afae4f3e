#pragma once

#include <QList>
#include <QString>

class QButtonGroup;
class QRect;
class QtCategoryButton;
class QTreeWidget;
class QTreeWidgetItem;
class SectionFrame;

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

/// Puts a frame of the section's tree under the section's header.
void setSectionContent(QTreeWidgetItem* section, SectionFrame* frame);

/// Expands a collapsed section and collapses an expanded one, and gives its header the icon of the new state.
/// @param items the top-level items, indexed by button id.
/// @param headers the header buttons.
/// @param id of the section; an unknown one is ignored.
void toggleSection(const QList<QTreeWidgetItem*>& items, const QButtonGroup& headers, int id);
