#include <ovoui/frame/core/LabelText.h>

namespace ovoui::frame
{

std::wstring withoutMnemonic(std::wstring_view label)
{
    std::wstring text;
    for (std::size_t i = 0; i < label.size(); ++i) {
        const bool marks = label[i] == L'&';
        if (marks && (i + 1 == label.size() || label[i + 1] != L'&'))
            continue;
        i += marks ? 1 : 0;
        text += label[i];
    }
    return text;
}

std::wstring asLabel(std::wstring_view text)
{
    std::wstring label;
    for (const wchar_t character : text)
        label.append(character == L'&' ? 2 : 1, character);
    return label;
}

std::wstring nameFromLabel(std::wstring_view label)
{
    std::wstring name = withoutMnemonic(label);
    if (name.ends_with(L':') || name.ends_with(L'\uFF1A')) {
        name.pop_back();
        name.resize(name.find_last_not_of(L" \u00A0\u202F") + 1); // as French has before it
    }
    return name;
}

} // namespace ovoui::frame
