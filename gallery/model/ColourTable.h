// Two hundred colours with names.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

struct NamedColour
{
    std::wstring name;
    DWORD entry; ///< a COLORREF with the alpha in its highest byte
};

/// Twenty hues in ten shades each, some of them transparent.
std::vector<NamedColour> namedColours();

/// "#FF8000"
std::wstring hexOf(DWORD entry);
