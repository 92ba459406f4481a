#include <ovoui/sliders/UnitNumbers.h>

#include <ovoui/sliders/core/UnitText.h>

#include <windows.h>

#include <iterator>

using namespace ovoui::sliders;

namespace
{

std::wstring usersSign(LCTYPE which)
{
    wchar_t text[8]{};
    ::GetLocaleInfoW(LOCALE_USER_DEFAULT, which, text, static_cast<int>(std::size(text)));
    return text;
}

} // namespace

CUnitNumbers::CUnitNumbers(const std::wstring& unit, bool groups)
    : m_unit(unit)
    , m_decimal(usersSign(LOCALE_SDECIMAL))
    , m_group(groups ? usersSign(LOCALE_STHOUSAND) : std::wstring())
{
}

CUnitNumbers::CUnitNumbers(PercentTag)
    : CUnitNumbers(std::wstring(), true)
{
    m_percent = true;
}

CUnitNumbers::CUnitNumbers(const CUnitNumbers&) = default;
CUnitNumbers& CUnitNumbers::operator=(const CUnitNumbers&) = default;
CUnitNumbers::~CUnitNumbers() = default;

void CUnitNumbers::fromDisplay(std::wstring& out, const std::wstring& displayed)
{
    out = withoutUnit(displayed, {m_unit, m_decimal, m_group, m_percent});
}

void CUnitNumbers::toDisplay(std::wstring& out, const std::wstring& machine)
{
    out = withUnit(machine, {m_unit, m_decimal, m_group, m_percent});
}

void CUnitNumbers::hideTip() {}

void CUnitNumbers::showTip(const std::wstring&) {}
