#include <ovoui/sliders/SliderData.h>

#include <ovoui/frame/Module.h>
#include <ovoui/sliders/SliderButtonParts.h>
#include <ovoui/sliders/core/NumberText.h>
#include <ovoui/sliders/core/SliderNumbers.h>
#include <ovouires/resource.h>

#include <ovocor/Text.h>

#include <cmath>
#include <exception>
#include <optional>
#include <string>

using namespace ovoui::sliders;

/// What data exchange asks of a button beyond what hosts may.
struct ovoui::sliders::ExchangedButton
{
    /// The end of a range as the buddy would show it; none when the host's conversion has deleted the button.
    static std::optional<std::wstring> limitText(const CSliderButton& button, double limit)
    {
        return button.displayed(formatShort(limit));
    }
    static int decimals(const CSliderButton& button)
    {
        const SliderNumbers& numbers = button.m_parts->numbers;
        return numbers.whole ? 0 : numbers.decimals;
    }
};

namespace
{

/// Says what is wrong, gives the focus to the buddy, and ends the exchange.
[[noreturn]] void refuse(CDataExchange& exchange, const CSliderButton& button,
                         const std::pair<double, double>& limits)
{
    const HWND buddy = button.Buddy();
    const auto low = ExchangedButton::limitText(button, limits.first);
    const auto high = low ? ExchangedButton::limitText(button, limits.second) : std::nullopt;
    if (high) {
        exchange.PrepareEditCtrl(::GetDlgCtrlID(buddy));
        const std::wstring format = ovoui::resourceString(IDS_SLIDER_RANGE);
        AfxMessageBox(stringPrintf(format.c_str(), low->c_str(), high->c_str()).c_str(), MB_ICONEXCLAMATION);
    }
    exchange.Fail();
    std::terminate(); // Fail throws
}

double numberOf(CDataExchange& exchange, const CSliderButton& button, const std::pair<double, double>& limits)
{
    const int decimals = ExchangedButton::decimals(button);
    const auto number = takenNumber(button.Number(), limits.first, limits.second, decimals);
    if (!number)
        refuse(exchange, button, limits);
    return *number;
}

} // namespace

void DDX_SliderNumber(CDataExchange* exchange, CSliderButton& button, double& value)
{
    if (exchange->m_bSaveAndValidate)
        value = numberOf(*exchange, button, button.Limits());
    else
        button.ShowNumber(value);
}

void DDX_SliderNumber(CDataExchange* exchange, CSliderButton& button, int& value)
{
    if (exchange->m_bSaveAndValidate)
        value = static_cast<int>(std::lround(numberOf(*exchange, button, limitsOfWhole(button.Limits()))));
    else
        button.ShowNumber(value);
}

void DDX_Angle(CDataExchange* exchange, CAngleSlider& slider, double& degrees)
{
    if (exchange->m_bSaveAndValidate)
        degrees = slider.GetPos();
    else
        slider.SetPos(degrees);
}
