#include "panel/RowHeights.h"

#include <QEvent>
#include <QHeaderView>
#include <QTableWidget>

namespace
{

int heightOf(const QWidget* cellWidget)
{
    return cellWidget->hasHeightForWidth() ? cellWidget->heightForWidth(cellWidget->width())
                                           : cellWidget->minimumSizeHint().height();
}

} // namespace

RowHeights::RowHeights(QTableWidget* table) : QObject(table), m_table(table)
{
}

void RowHeights::watch(QWidget* cellWidget)
{
    cellWidget->installEventFilter(this);
}

void RowHeights::forget(QWidget* cellWidget)
{
    cellWidget->removeEventFilter(this);
}

bool RowHeights::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest)
        adapt(Qt::QueuedConnection); // the table is being laid out
    return QObject::eventFilter(watched, event);
}

void RowHeights::fit()
{
    // The first round may bring up the scroll bar, the second gives the rows what it leaves of the width.
    for (int round = 0; round < 2; ++round) {
        adapt(Qt::DirectConnection);
        m_table->doItemsLayout();
    }
}

void RowHeights::adapt(Qt::ConnectionType connection)
{
    constexpr int gridLine = 1;
    int height = 0;
    for (int row = 0; row < m_table->rowCount(); ++row)
        if (const QWidget* cellWidget = m_table->cellWidget(row, 0))
            height = qMax(height, heightOf(cellWidget) + gridLine);
    QHeaderView* header = m_table->verticalHeader();
    if (height == header->minimumSectionSize())
        return;
    header->setMinimumSectionSize(height);
    if (m_table->verticalScrollBarPolicy() == Qt::ScrollBarAlwaysOff)
        m_table->setMinimumHeight(height * m_table->rowCount() + 2 * m_table->frameWidth());
    // A header looks at a smaller minimum only when it is resized.
    QMetaObject::invokeMethod(header, "resizeSections", connection);
}
