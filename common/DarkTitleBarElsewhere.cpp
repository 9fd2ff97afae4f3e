#include "common/DarkTitleBar.h"

WindowAttributeSetter platformWindowAttributeSetter()
{
    return nullptr; // title bars follow the desktop's own theme
}
