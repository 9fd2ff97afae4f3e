#include "addin/SteadyTabs.h"

#include <QEvent>
#include <QTabBar>
#include <QTabWidget>

#include <utility>

namespace
{

/// The bar and the corner may need another place in a widget that is large enough for either.
QVector<QSize> sizesOf(const QTabWidget& tabs)
{
    QVector<QSize> sizes{tabs.sizeHint(), tabs.minimumSizeHint(), tabs.tabBar()->sizeHint()};
    if (const QWidget* corner = tabs.cornerWidget())
        sizes.append(corner->sizeHint());
    return sizes;
}

} // namespace

SteadyTabs::SteadyTabs(QTabWidget* tabs) : QObject(tabs), m_tabs(tabs)
{
    tabs->installEventFilter(this);
}

bool SteadyTabs::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::LayoutRequest)
        return QObject::eventFilter(watched, event);
    QVector<QSize> sizes = sizesOf(*m_tabs);
    if (sizes == m_sizes)
        return true;
    m_sizes = std::move(sizes);
    return false;
}
