#include "dev/host/window/ReconnectBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace devhost
{

ReconnectBar::ReconnectBar(QWidget* parent) : QFrame(parent), m_text(new QLabel)
{
    setObjectName("reconnectBar");
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::AlternateBase);
    m_text->setObjectName("reconnectText");
    m_text->setWordWrap(true);
    auto* now = new QPushButton("&Reconnect Now");
    now->setObjectName("reconnectNow");
    now->setToolTip("The pane starts anew, without the search and the part that it shows");
    auto* later = new QPushButton("&Later");
    later->setObjectName("reconnectLater");
    connect(now, &QPushButton::clicked, this, &ReconnectBar::reconnectChosen);
    connect(later, &QPushButton::clicked, this, &QWidget::hide);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 4, 8, 4);
    layout->addWidget(m_text, 1);
    layout->addWidget(now);
    layout->addWidget(later);
    hide();
}

void ReconnectBar::offer(const QString& consequence)
{
    m_text->setText(consequence);
    show();
}

} // namespace devhost
