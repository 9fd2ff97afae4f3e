#include "common/DarkTitleBar.h"

#include <windows.h>

namespace
{

using DwmSetWindowAttributeFunction = HRESULT(WINAPI*)(HWND, DWORD, LPCVOID, DWORD);

DwmSetWindowAttributeFunction dwmSetWindowAttribute()
{
    // Resolved by name: a system without the desktop window manager must still load the add-in. The module is
    // never given back; it belongs to the system and stays mapped in any process with windows.
    static const auto function = []() -> DwmSetWindowAttributeFunction {
        const HMODULE module = LoadLibraryW(L"dwmapi.dll");
        if (module == nullptr)
            return nullptr;
        return reinterpret_cast<DwmSetWindowAttributeFunction>(
            reinterpret_cast<void*>(GetProcAddress(module, "DwmSetWindowAttribute")));
    }();
    return function;
}

long setWindowAttribute(std::uintptr_t window, unsigned long attribute, std::int32_t value)
{
    return dwmSetWindowAttribute()(reinterpret_cast<HWND>(window), attribute, &value, sizeof value);
}

} // namespace

WindowAttributeSetter platformWindowAttributeSetter()
{
    return dwmSetWindowAttribute() != nullptr ? setWindowAttribute : nullptr;
}
