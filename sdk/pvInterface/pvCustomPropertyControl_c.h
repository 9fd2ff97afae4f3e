#pragma once

#include <pvInterface/pvEnumerations.h>
#include <pvLibrary/pvObject.h>

/// A dockable pane.
class pvCustomPropertyControl_c : public pvObject
{
public:
    /// @param handle receives the native window handle as a 32-bit value; where long has 64 bits, set it to 0
    /// first and take its low 32 bits, sign-extended.
    virtual pvResult GetHWND(long* handle) = 0;

    /// @param visible receives whether the pane is shown.
    virtual pvResult get_Visible(bool* visible) = 0;

    /// Shows or hides the pane.
    virtual pvResult put_Visible(bool visible) = 0;

    /// Destroys the pane: all widgets in it are deleted before the call returns. The object itself stays
    /// while it is referenced.
    virtual pvResult Destroy() = 0;
};
