#include <ovoui/sliders/Separators.h>

#include <ovoui/sliders/core/SeparatorText.h>

namespace
{

ovoui::sliders::Convention convention(const wchar_t* sep, wchar_t decimal)
{
    return {sep ? std::wstring_view(sep) : std::wstring_view(), decimal};
}

} // namespace

std::wstring change_from_intl_seps(const std::wstring& text, const wchar_t* sep, wchar_t decimal)
{
    return ovoui::sliders::toMachine(text, convention(sep, decimal));
}

std::wstring change_to_intl_seps(const std::wstring& text, const wchar_t* sep, wchar_t decimal)
{
    return ovoui::sliders::fromMachine(text, convention(sep, decimal));
}
