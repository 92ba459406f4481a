/// What a slider button asks of its host.
#pragma once

#include <string>

/// Machine form is a number with a decimal point and without grouping; display form is what the user reads
/// and types. The host keeps the object as long as the button. An exception from any operation leaves the
/// button usable.
class SliderButtonUtils
{
public:
    SliderButtonUtils() = default;
    SliderButtonUtils(const SliderButtonUtils&) = default;
    SliderButtonUtils& operator=(const SliderButtonUtils&) = default;

    /// Turns `displayed`, the text of the buddy, into machine form in `out`.
    virtual void fromDisplay(std::wstring& out, const std::wstring& displayed) = 0;

    /// Turns a number in machine form, `machine`, into what the buddy shows, in `out`.
    virtual void toDisplay(std::wstring& out, const std::wstring& machine) = 0;

    /// The pointer has left the button.
    virtual void hideTip() = 0;

    /// The pointer has come to the button, whose tip is `text`.
    virtual void showTip(const std::wstring& text) = 0;

protected:
    ~SliderButtonUtils() = default;
};
