#pragma once

#include <pvInterface/pvRibbonRowItem_c.h>

/// A ribbon item that runs a user command.
class pvRibbonCommandButton_c : public pvRibbonRowItem_c
{
};
