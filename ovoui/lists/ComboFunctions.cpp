#include <ovoui/lists/ComboFunctions.h>

#include <ovocor/Text.h>
#include <ovoui/lists/core/TextRoom.h>

#include <cwctype>
#include <string>
#include <string_view>

namespace
{

constexpr int kUsualLineHeight = 12;

void lowerByLocale(wchar_t* text, std::size_t length)
{
    for (std::size_t i = 0; i < length; ++i)
        text[i] = static_cast<wchar_t>(std::towlower(text[i]));
}

} // namespace

int selectString(CComboBox& combo, const wchar_t* text, bool ignoreCase)
{
    const std::wstring key = ignoreCase ? lowercase(text) : std::wstring(text);
    const int length = static_cast<int>(key.size());
    ovoui::lists::TextRoom item(key.size());
    const int count = combo.GetCount();
    for (int i = 0; i < count; ++i) {
        if (combo.GetLBTextLen(i) != length || combo.GetLBText(i, item.data()) != length)
            continue;
        if (ignoreCase)
            lowerByLocale(item.data(), key.size());
        if (std::wstring_view(item.data(), key.size()) == key)
            return combo.SetCurSel(i);
    }
    return -1;
}

void resizeCombo(CComboBox& combo, DWORD lines)
{
    CRect window;
    combo.GetWindowRect(&window);
    int lineHeight = combo.GetItemHeight(-1);
    if (lineHeight == CB_ERR)
        lineHeight = kUsualLineHeight;
    const int height =
        window.Height() + lineHeight * static_cast<int>(lines) + 2 * ::GetSystemMetrics(SM_CYBORDER);
    combo.SetWindowPos(nullptr, 0, 0, window.Width(), height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}
