#include "common/DarkTitleBar.h"

#include <windows.h>

namespace
{

using DwmSetWindowAttributeFunction = HRESULT(WINAPI*)(HWND, DWORD, LPCVOID, DWORD);

/// Resolved by name: a system without the desktop window manager must still load the add-in. The module is
/// never given back; it belongs to the system and stays mapped in any process with windows.
DwmSetWindowAttributeFunction resolveDwmSetWindowAttribute()
{
    const HMODULE module = LoadLibraryExW(L"dwmapi.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    if (module == nullptr)
        return nullptr;
    return reinterpret_cast<DwmSetWindowAttributeFunction>(
        reinterpret_cast<void*>(GetProcAddress(module, "DwmSetWindowAttribute")));
}

long setWindowAttribute(std::uintptr_t window, unsigned long attribute, std::int32_t value)
{
    // At the first call, not at load: no library may be loaded while the loader is at work on this one.
    static const DwmSetWindowAttributeFunction function = resolveDwmSetWindowAttribute();
    if (function == nullptr)
        return E_NOTIMPL;
    return function(reinterpret_cast<HWND>(window), attribute, &value, sizeof value);
}

} // namespace

WindowAttributeSetter platformWindowAttributeSetter()
{
    return setWindowAttribute;
}
