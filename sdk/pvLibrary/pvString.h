#pragma once

#include <cwchar>
#include <string>
#include <utility>

/// The host's wide-character string, used at every call into the host interface. A value type.
class pvString
{
public:
    pvString() = default;

    /// @param text zero-terminated wide text, copied; null counts as empty.
    pvString(const wchar_t* text) : m_text(text != nullptr ? text : L"") {}

    /// Replaces the text by a copy of zero-terminated wide @p text; null counts as empty.
    pvString& operator=(const wchar_t* text)
    {
        m_text = text != nullptr ? text : L"";
        return *this;
    }

    /// @return the zero-terminated wide text, valid until this string changes or ends.
    const wchar_t* GetBuffer() const { return m_text.c_str(); }

    /// @return 0 when both texts are equal, otherwise the sign of their order.
    int Compare(const pvString& other) const { return std::wcscmp(GetBuffer(), other.GetBuffer()); }

    bool operator==(const pvString& other) const { return Compare(other) == 0; }

private:
    std::wstring m_text;
};
