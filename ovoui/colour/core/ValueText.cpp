#include <ovoui/colour/core/ValueText.h>

#include <algorithm>

namespace ovoui::colour
{

int valueFromText(std::wstring_view text, int maximum)
{
    text.remove_prefix(std::min(text.find_first_not_of(L" \t\n\v\f\r"), text.size()));
    const bool negative = text.starts_with(L'-');
    if (negative || text.starts_with(L'+'))
        text.remove_prefix(1);
    int value = 0;
    for (const wchar_t digit : text) {
        if (digit < L'0' || digit > L'9')
            break;
        value = std::min(value * 10 + (digit - L'0'), maximum); // no more is needed to know what it becomes
    }
    return negative ? 0 : value;
}

} // namespace ovoui::colour
