// DockWidgetApplication: the docked pane and the assembly of its tabs.

#include "addin/DockWidgetApplication.h"
#include "addin/HelpButton.h"
#include "addin/SteadyTabs.h"
#include "panel/LogInPage.h"
#include "panel/PV3DPartHarbor_2D.h"
#include "panel/ParentWidget.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QTabWidget>
#include <QVBoxLayout>

namespace
{

constexpr auto PaneArea = static_cast<pvCustomPropertyControlArea_e>(2);
constexpr long PaneValue = 3;
constexpr int MinimumPaneWidth = 350;

/// The host's widget behind a pane: host and add-in share Qt.
QWidget* widgetOf(pvCustomPropertyControl_c* control)
{
    long handle = 0;
    control->GetHWND(&handle);
    return QWidget::find(static_cast<WId>(static_cast<qint32>(handle)));
}

QFrame* createCorner(pvApplication_c* application)
{
    // 129 is the value of Qt::AlignLeft | Qt::AlignVCenter, passed as the stretch factor. A layout with one
    // item takes no notice of it.
    constexpr int stretch = 129;

    auto* corner = new QFrame;
    corner->setFrameShape(QFrame::StyledPanel);
    corner->setFrameShadow(QFrame::Plain);
    auto* layout = new QHBoxLayout(corner);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    auto* help = new HelpButton(application);
    help->setToolTip(QLatin1String("Help"));
    layout->insertWidget(0, help, stretch);
    return corner;
}

/// A host may hand out a pane that has a layout, such as the one it got here at an earlier connect.
void fillPane(QWidget* pane, QWidget* content)
{
    if (QLayout* layout = pane->layout()) {
        layout->addWidget(content);
        return;
    }
    auto* layout = new QVBoxLayout;
    layout->addWidget(content);
    pane->setLayout(layout);
}

} // namespace

bool DockWidgetApplication::createDockWidget()
{
    if (!m_app)
        return false;
    pvCustomPropertyControl_c* control = nullptr;
    const pvResult result =
        m_app->CreateCustomPropertyControl2(L"3D PARTHARBOR", PaneArea, PaneValue, &control);
    m_customPropertyControl = control;
    if (result != PVRESULT_True || !m_customPropertyControl)
        return false;
    QWidget* const pane = widgetOf(control);
    if (pane == nullptr)
        return false;
    pane->setMinimumWidth(MinimumPaneWidth);

    m_tabWidget = new QTabWidget(pane);
    new SteadyTabs(m_tabWidget);
    auto* container = new ParentWidget(nullptr);
    auto* mainPanel = new PV3DPartHarbor_2D(m_app.get(), container);
    qobject_cast<QGridLayout*>(container->layout())->addWidget(mainPanel);
    auto* logInPage = new LogInPage(m_app.get(), m_tabWidget);
    m_tabWidget->addTab(logInPage, QObject::tr("Log In"));
    const int browsing = m_tabWidget->addTab(container, QObject::tr("2D"));
    m_tabWidget->setTabToolTip(browsing, QLatin1String("Creates a 2D representation of the model"));
    m_tabWidget->setCornerWidget(createCorner(m_app.get()), Qt::TopRightCorner);

    fillPane(pane, m_tabWidget);
    pane->show();
    m_customPropertyControl->put_Visible(true);
    return true;
}
