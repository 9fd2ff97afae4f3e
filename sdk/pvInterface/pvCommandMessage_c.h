#pragma once

#include <pvInterface/pvEnumerations.h>
#include <pvLibrary/pvObject.h>
#include <pvLibrary/pvString.h>

/// The prompts of the host's command line.
class pvCommandMessage_c : public pvObject
{
public:
    /// Lets the user place a drawing file as a block; returns once the user has answered.
    /// @param file path of the drawing file.
    /// @param askScale with the preset scaleX, scaleY, scaleZ, and @param askRotation with the preset
    /// rotation (radians).
    /// @param x, y, z, outScaleX, outScaleY, outScaleZ, outRotation receive the placement.
    /// @param result receives 1 when the user placed the block, another value otherwise.
    virtual pvResult PromptForBlockInsertion(const pvString& file, bool askScale, double scaleX,
                                             double scaleY, double scaleZ, bool askRotation, double rotation,
                                             double* x, double* y, double* z, double* outScaleX,
                                             double* outScaleY, double* outScaleZ, double* outRotation,
                                             pvPromptResultType_e* result) = 0;
};
