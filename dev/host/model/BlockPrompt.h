#pragma once

#include <QString>

namespace devhost
{

/// Where and how a block is placed: point in drawing units, factors, rotation in radians.
struct BlockPlacement {
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
    double scaleX = 1.0;
    double scaleY = 1.0;
    double scaleZ = 1.0;
    double rotation = 0.0;
};

/// A request to have the user place a drawing file as a block.
struct BlockPrompt {
    QString file; ///< Path of the drawing file.
    bool askScale = false;
    bool askRotation = false;
    BlockPlacement preset;
};

/// The user's answer; the placement counts when accepted.
struct BlockPromptAnswer {
    enum Result { Accepted = 1, Cancelled = 2 };

    Result result = Cancelled;
    BlockPlacement placement;
};

} // namespace devhost
