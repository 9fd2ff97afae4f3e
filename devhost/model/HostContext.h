#pragma once

#include "devhost/model/ArrangedAnswers.h"
#include "devhost/model/HostChanges.h"
#include "devhost/model/Journal.h"
#include "devhost/model/ReferenceLedger.h"

namespace devhost
{

/// What all objects of one host share. Each holds a part in it, as objects that a caller keeps outlive the
/// host.
struct HostContext {
    Journal journal;
    ArrangedAnswers answers;
    ReferenceLedger references;
    HostChanges changes;
};

} // namespace devhost
