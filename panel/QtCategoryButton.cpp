#include "panel/QtCategoryButton.h"

#include <QTreeWidget>

QtCategoryButton::QtCategoryButton(const QString& text, QTreeWidget* parent, QTreeWidgetItem* item)
    : QPushButton(text, parent), m_item(item)
{
    setStyleSheet(QLatin1String("padding-left: 3px; padding-right: 3px;padding-top: 1px; padding-bottom: 1px;"
                                "border:1px solid #828790;text-align:left"));
    setFlat(true);
}
