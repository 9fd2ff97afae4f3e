#include "addin/AddInSlot.h"

AddInSlot& GetAddInSlot()
{
    static AddInSlot slot;
    return slot;
}
