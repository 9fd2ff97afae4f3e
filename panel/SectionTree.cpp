#include "panel/SectionTree.h"

#include "panel/PromptView.h"
#include "panel/QtCategoryButton.h"
#include "panel/SectionFrame.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QIcon>
#include <QTreeWidget>

namespace
{

QIcon sectionIcon(bool expanded)
{
    return QIcon(expanded ? QLatin1String(":/3DPH/Resource/expanded.png")
                          : QLatin1String(":/3DPH/Resource/collapsed.png"));
}

} // namespace

void prepareSectionTree(QTreeWidget* tree)
{
    tree->setRootIsDecorated(false);
    tree->setIndentation(0);
    tree->setAutoFillBackground(true);
    // A section that the focus passes through must not turn the selection's colour under its header.
    tree->setSelectionMode(QAbstractItemView::NoSelection);
    new PromptView(tree);
    // Contents may be higher than the tree.
    tree->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
}

Section addSection(QTreeWidget* tree, const QString& title, const QRect& geometry)
{
    auto* item = new QTreeWidgetItem;
    auto* header = new QtCategoryButton(title, tree, item);
    header->setLayoutDirection(Qt::RightToLeft); // puts the icon on the right
    header->setContentsMargins(0, 50, 0, 0);
    QFont font = header->font();
    font.setBold(true);
    header->setFont(font);
    header->setGeometry(geometry);
    header->setIcon(sectionIcon(true));
    header->setMaximumHeight(24);

    tree->addTopLevelItem(item);
    tree->setItemWidget(item, 0, header);
    item->setExpanded(true);
    return {item, header};
}

void setSectionContent(QTreeWidgetItem* section, SectionFrame* frame)
{
    auto* content = new QTreeWidgetItem;
    content->setDisabled(true);
    section->addChild(content);
    frame->showIn(content);
}

void toggleSection(const QList<QTreeWidgetItem*>& items, const QButtonGroup& headers, int id)
{
    QTreeWidgetItem* item = items.value(id);
    if (item == nullptr)
        return;
    item->setExpanded(!item->isExpanded());
    if (QAbstractButton* header = headers.button(id))
        header->setIcon(sectionIcon(item->isExpanded()));
}
