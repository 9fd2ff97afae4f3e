#include "panel/SectionFrame.h"

#include <QEvent>
#include <QScrollBar>
#include <QTreeWidget>

namespace
{

/// Where little height is left, a picture still gets that much, or as much as makes it square.
constexpr int PictureHeight = 320;

} // namespace

SectionFrame::SectionFrame(QTreeWidget* tree) : QFrame(tree->viewport()), m_tree(tree)
{
    setFrameShape(QFrame::Box);
    setFrameShadow(QFrame::Sunken);
    setStyleSheet(QLatin1String("margin-bottom: 5px;"));
}

void SectionFrame::showIn(QTreeWidgetItem* item)
{
    m_item = item;
    m_tree->setItemWidget(item, 0, this);
}

void SectionFrame::fillTree()
{
    m_fills = true;
    m_tree->viewport()->installEventFilter(this);
}

bool SectionFrame::event(QEvent* event)
{
    const bool handled = QFrame::event(event);
    switch (event->type()) {
    case QEvent::LayoutRequest:
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
        fit();
        break;
    default:
        break;
    }
    return handled;
}

bool SectionFrame::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        fit();
    return QFrame::eventFilter(watched, event);
}

void SectionFrame::fit()
{
    if (m_item == nullptr || !isVisible())
        return;
    int height = hasHeightForWidth() ? heightForWidth(width()) : sizeHint().height();
    if (m_fills)
        height = qMax(height, qMax(heightLeft(), qMin(width(), PictureHeight)));
    if (height == m_item->sizeHint(0).height())
        return;
    m_item->setSizeHint(0, QSize(0, height));
    QMetaObject::invokeMethod(m_tree, "doItemsLayout", Qt::QueuedConnection);
}

int SectionFrame::heightLeft() const
{
    const int top = m_tree->visualItemRect(m_item).top() + m_tree->verticalScrollBar()->value();
    return m_tree->viewport()->height() - top;
}
