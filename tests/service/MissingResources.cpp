#include "tests/service/MissingResources.h"

#include <QtGlobal>

// The resource macros declare functions of the global namespace.

static void removeBundle()
{
    Q_CLEANUP_RESOURCE(DockWidget_3DPH);
}

static void restoreBundle()
{
    Q_INIT_RESOURCE(DockWidget_3DPH);
}

static void removeOwnGate()
{
    Q_CLEANUP_RESOURCE(OwnGate);
}

static void restoreOwnGate()
{
    Q_INIT_RESOURCE(OwnGate);
}

namespace test
{

MissingResources::MissingResources(Gate gate) : m_gate(gate)
{
    removeBundle();
    if (m_gate == GateMissing) {
        removeOwnGate();
    }
}

MissingResources::~MissingResources()
{
    if (m_gate == GateMissing) {
        restoreOwnGate();
    }
    restoreBundle();
}

} // namespace test
