// Dialog templates made in memory.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

class MemoryTemplate
{
public:
    explicit MemoryTemplate(const std::wstring& title, DWORD style = WS_POPUP | WS_CAPTION | WS_SYSMENU);

    /// A control of a class by name, 60 by 14 units.
    MemoryTemplate& control(const std::wstring& windowClass, WORD id, DWORD style,
                            const std::wstring& text = L"");

    const DLGTEMPLATE* get() const { return reinterpret_cast<const DLGTEMPLATE*>(m_words.data()); }

private:
    void number(DWORD value);
    void text(const std::wstring& value);

    std::vector<WORD> m_words;
    int m_count = 0;
};
