#include "dev/host/window/RibbonPage.h"

#include <QScrollBar>
#include <QToolButton>
#include <QWheelEvent>

namespace devhost
{

namespace
{

constexpr int ArrowWidth = 18; // Pixels.
constexpr int StepWidth = 160;

} // namespace

RibbonPage::RibbonPage(QWidget* content)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWidget(content);
    m_left = createArrow(Qt::LeftArrow, -StepWidth);
    m_right = createArrow(Qt::RightArrow, StepWidth);
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, this, &RibbonPage::showArrows);
    connect(horizontalScrollBar(), &QScrollBar::rangeChanged, this, &RibbonPage::showArrows);
}

QToolButton* RibbonPage::createArrow(Qt::ArrowType direction, int step)
{
    auto* arrow = new QToolButton(this);
    arrow->setObjectName(step < 0 ? "ribbonLeft" : "ribbonRight");
    arrow->setArrowType(direction);
    arrow->setAutoRepeat(true);
    arrow->setFocusPolicy(Qt::NoFocus); // Tab brings what it leads to into view.
    arrow->hide();
    connect(arrow, &QToolButton::clicked, this, [this, step] { scroll(step); });
    return arrow;
}

void RibbonPage::scroll(int step)
{
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + step);
}

void RibbonPage::showArrows()
{
    const QScrollBar& bar = *horizontalScrollBar();
    m_left->setVisible(bar.value() > bar.minimum());
    m_right->setVisible(bar.value() < bar.maximum());
}

void RibbonPage::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    m_left->setGeometry(0, 0, ArrowWidth, height());
    m_right->setGeometry(width() - ArrowWidth, 0, ArrowWidth, height());
}

void RibbonPage::wheelEvent(QWheelEvent* event)
{
    scroll(event->angleDelta().y() > 0 ? -StepWidth : StepWidth);
    event->accept();
}

} // namespace devhost
