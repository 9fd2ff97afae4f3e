#include "tests/support/ScriptedCatalog.h"

#include <QUrl>

namespace test
{

ScriptedCatalog::ScriptedCatalog()
    : m_certificates(QUrl("https://" + host()).host()),
      m_service(m_certificates.good()),
      m_proxy(m_service.port())
{
    m_certificates.trust();
    m_proxy.use();
}

QString ScriptedCatalog::host()
{
    return TEST_SERVICE_HOST;
}

} // namespace test
