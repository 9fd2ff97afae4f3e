#pragma once

#include "dev/catalog/proxy/ConnectProxy.h"
#include "tests/support/ScriptedService.h"
#include "tests/support/TestCertificates.h"

#include <QString>

namespace test
{

/// A scripted service in the place of the catalog: while it lives, whatever asks for the service host that
/// the tests are built for comes to it, over trusted TLS through the application's proxy.
class ScriptedCatalog
{
public:
    ScriptedCatalog();

    /// The service host that the tests are built for, with its port.
    static QString host();

    ScriptedService& service() { return m_service; }
    devcatalog::ConnectProxy& proxy() { return m_proxy; }

private:
    TestCertificates m_certificates;
    ScriptedService m_service;
    devcatalog::ConnectProxy m_proxy;
};

} // namespace test
