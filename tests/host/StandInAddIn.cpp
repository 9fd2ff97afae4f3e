// The smallest add-in: asks the host for its language at connect, and does what disconnecting asks for.

#include <pvInterface/pvApplication_c.h>

#if defined(_WIN32)
#define STANDIN_EXPORT extern "C" __declspec(dllexport)
#else
#define STANDIN_EXPORT extern "C" __attribute__((visibility("default")))
#endif

namespace
{
pvApplication_c* connected = nullptr;
}

STANDIN_EXPORT bool connectToPlotvane(int, pvApplication_c* application)
{
    if (connected != nullptr)
        return false;
    connected = application;
    pvLanguage_e language{};
    application->GetLanguage(&language);
    return true;
}

STANDIN_EXPORT bool disconnectFromPlotvane()
{
    if (connected != nullptr)
        connected->RemoveUserInterface(L"STAND-IN");
    connected = nullptr;
    return true;
}

STANDIN_EXPORT bool HasSignedByPlotvane(pvString* identifier, void*, void*, void*)
{
    *identifier = L"STAND-IN";
    return true;
}
