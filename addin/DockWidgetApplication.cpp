#include "addin/DockWidgetApplication.h"

#include <QTabWidget>

const pvString DockWidgetApplication::appID(L"5B1C0F4E-27D3-4A96-8E21-0C7DA4E39F52");
LogInPage* DockWidgetApplication::m_LogInPage = nullptr;

DockWidgetApplication::DockWidgetApplication(pvApplication_c* application) : m_app(application)
{
}

DockWidgetApplication::DockWidgetApplication(const DockWidgetApplication& other) = default;

DockWidgetApplication::~DockWidgetApplication()
{
    if (m_customPropertyControl)
        m_customPropertyControl->Destroy();
    delete m_tabWidget; // null unless the host kept its pane: no widget may outlive the library's code
}

DockWidgetApplication& DockWidgetApplication::operator=(const DockWidgetApplication& other) = default;

bool DockWidgetApplication::ExecuteNotify()
{
    if (!m_customPropertyControl)
        return true;
    m_customPropertyControl->get_Visible(&m_visible);
    m_customPropertyControl->put_Visible(!m_visible);
    return true;
}

bool DockWidgetApplication::ExecuteNotifyHook(void* context)
{
    return static_cast<pvCommandEvents_c*>(context)->ExecuteNotify();
}

pvInterfacePtr<pvApplication_c> DockWidgetApplication::GetPVApp()
{
    return m_app;
}

LogInPage* DockWidgetApplication::GetLogInPage()
{
    return m_LogInPage;
}
