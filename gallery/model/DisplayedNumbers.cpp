#include "DisplayedNumbers.h"

#include <ovoui/sliders/Separators.h>

#include <utility>

void DisplayedNumbers::use(wchar_t decimal, std::wstring separator)
{
    m_decimal = decimal;
    m_separator = std::move(separator);
}

void DisplayedNumbers::fromDisplay(std::wstring& out, const std::wstring& displayed)
{
    out = change_from_intl_seps(displayed, m_separator.c_str(), m_decimal);
}

void DisplayedNumbers::toDisplay(std::wstring& out, const std::wstring& machine)
{
    out = change_to_intl_seps(machine, m_separator.c_str(), m_decimal);
}

void DisplayedNumbers::hideTip()
{
    if (tip)
        tip({});
}

void DisplayedNumbers::showTip(const std::wstring& text)
{
    if (tip)
        tip(text);
}
