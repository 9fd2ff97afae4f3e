#include "dev/host/window/DockPane.h"

#include <QDockWidget>
#include <QMainWindow>

namespace devhost
{

namespace
{

constexpr int ComfortableWidth = 400; // Pixels.

} // namespace

DockPane::DockPane(const QString& title, QMainWindow& window) : m_dock(new QDockWidget(title, &window))
{
    m_dock->setObjectName("pane");
    auto* content = new QWidget(m_dock);
    content->setObjectName("paneContent");
    // The owner asks for the handle, but only this widget is to have one of its own.
    content->setAttribute(Qt::WA_DontCreateNativeAncestors);
    content->setAttribute(Qt::WA_NativeWindow);
    m_dock->setWidget(content);
    m_dock->hide();
    window.addDockWidget(Qt::RightDockWidgetArea, m_dock);
    window.resizeDocks({m_dock}, {ComfortableWidth}, Qt::Horizontal);
}

DockPane::~DockPane()
{
    delete m_dock;
}

quintptr DockPane::windowHandle() const
{
    return m_dock ? m_dock->widget()->winId() : 0;
}

bool DockPane::isVisible() const
{
    return m_dock && !m_dock->isHidden();
}

void DockPane::setVisible(bool visible)
{
    if (m_dock)
        m_dock->setVisible(visible);
}

} // namespace devhost
