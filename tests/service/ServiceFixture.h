#pragma once

#include "tests/support/FatalWarnings.h"
#include "tests/support/MessageBoxAnswerer.h"
#include "tests/support/ScriptedCatalog.h"

namespace test
{

/**
 * A catalog that answers as the test says, with its message boxes answered; the process-wide values are as
 * they are at load, but for the theme, which is light.
 *
 * Made in init() and destroyed in cleanup() (see FatalWarnings).
 */
class ServiceFixture
{
public:
    ServiceFixture();

    FatalWarnings& warnings() { return m_warnings; }
    ScriptedService& service() { return m_catalog.service(); }
    devcatalog::ConnectProxy& proxy() { return m_catalog.proxy(); }
    const MessageBoxAnswerer& answerer() const { return m_boxes; }
    /// All boxes that opened, oldest first.
    const QVector<SeenMessageBox>& boxes() const { return m_boxes.boxes(); }

private:
    FatalWarnings m_warnings;
    ScriptedCatalog m_catalog;
    MessageBoxAnswerer m_boxes;
};

} // namespace test
