#pragma once

#include <pvInterface/pvEnumerations.h>
#include <pvLibrary/pvObject.h>
#include <pvLibrary/pvString.h>

class pvBlockInstance_c;

/// Creates entities in a model space.
class pvSketchManager_c : public pvObject
{
public:
    /// Inserts a drawing file as a block.
    /// @param file path of the drawing file.
    /// @param x, y, z insertion point in drawing units; scaleX, scaleY, scaleZ factors; rotation in radians.
    /// @param block receives the block instance, borrowed.
    virtual pvResult InsertBlock2(const pvString& file, double x, double y, double z, double scaleX,
                                  double scaleY, double scaleZ, double rotation,
                                  pvBlockInstance_c** block) = 0;
};
