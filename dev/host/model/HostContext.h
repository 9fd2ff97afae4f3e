#pragma once

#include "dev/host/model/HostChanges.h"
#include "dev/host/model/Journal.h"
#include "dev/host/model/ReferenceLedger.h"
#include "dev/host/model/StubbedAnswers.h"

namespace devhost
{

/// What all objects of one host share. Each holds a part in it, as objects that a caller keeps outlive the
/// host.
struct HostContext {
    Journal journal;
    StubbedAnswers answers;
    ReferenceLedger references;
    HostChanges changes;
};

} // namespace devhost
