#pragma once

#include <pvLibrary/pvObject.h>

/// A block placed in a drawing.
class pvBlockInstance_c : public pvObject
{
};
