// Numbers with a unit that show the tip of their slider button.
#pragma once

#include <ovoui/sliders/UnitNumbers.h>

#include <functional>
#include <string>

class UnitsWithTip : public CUnitNumbers
{
public:
    using CUnitNumbers::CUnitNumbers;

    /// Called with the text of a tip that is to be shown, and with an empty one when it goes.
    std::function<void(const std::wstring& text)> tip;

    void hideTip() override
    {
        if (tip)
            tip({});
    }
    void showTip(const std::wstring& text) override
    {
        if (tip)
            tip(text);
    }
};
