// Numbers as a slider button shows them: in the convention that the user has chosen, with a tip.
#pragma once

#include <ovoui/sliders/SliderButtonUtils.h>

#include <functional>
#include <string>

class DisplayedNumbers : public SliderButtonUtils
{
public:
    /// Decimal sign and list separator from now on.
    void use(wchar_t decimal, std::wstring separator);

    /// Called with the text of a tip that is to be shown, and with an empty one when it goes.
    std::function<void(const std::wstring& text)> tip;

    void fromDisplay(std::wstring& out, const std::wstring& displayed) override;
    void toDisplay(std::wstring& out, const std::wstring& machine) override;
    void hideTip() override;
    void showTip(const std::wstring& text) override;

private:
    wchar_t m_decimal = L'.';
    std::wstring m_separator = L",";
};
