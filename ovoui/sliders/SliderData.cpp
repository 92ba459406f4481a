#include <ovoui/sliders/SliderData.h>

#include <ovoui/frame/Module.h>
#include <ovoui/sliders/SliderButtonParts.h>
#include <ovoui/sliders/core/NumberText.h>
#include <ovoui/sliders/core/SliderNumbers.h>
#include <ovouires/resource.h>

#include <ovocor/Text.h>

#include <cmath>
#include <exception>
#include <string>

using namespace ovoui::sliders;

/// What data exchange asks of a button beyond what hosts may. The host's conversions may delete the button.
struct ovoui::sliders::ExchangedButton
{
    explicit ExchangedButton(const CSliderButton& asked)
        : button(asked)
        , watch(asked.m_lifeline)
        , buddy(asked.Buddy())
        , decimals(asked.m_parts->numbers.whole ? 0 : asked.m_parts->numbers.decimals)
    {
    }

    bool alive() const { return watch.alive(); }

    /// An end of the range as the buddy would show it.
    std::wstring limitText(double limit) const
    {
        return alive() ? button.displayed(formatShort(limit)).value_or(std::wstring()) : std::wstring();
    }

    const CSliderButton& button;
    const Lifeline::Watch watch;
    const HWND buddy;
    const int decimals;
};

namespace
{

/// Says what is wrong, gives the focus to the buddy, and ends the exchange.
[[noreturn]] void refuse(CDataExchange& exchange, const ExchangedButton& asked,
                         const std::pair<double, double>& limits)
{
    const std::wstring low = asked.limitText(limits.first);
    const std::wstring high = asked.limitText(limits.second);
    if (asked.alive()) {
        exchange.PrepareEditCtrl(::GetDlgCtrlID(asked.buddy));
        const std::wstring format = ovoui::resourceString(IDS_SLIDER_RANGE);
        AfxMessageBox(stringPrintf(format.c_str(), low.c_str(), high.c_str()).c_str(), MB_ICONEXCLAMATION);
    }
    exchange.Fail();
    std::terminate(); // Fail throws
}

double numberOf(CDataExchange& exchange, const CSliderButton& button, const std::pair<double, double>& limits)
{
    const ExchangedButton asked(button);
    const auto number = takenNumber(button.Number(), limits.first, limits.second, asked.decimals);
    if (!number)
        refuse(exchange, asked, limits);
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
