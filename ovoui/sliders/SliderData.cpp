#include <ovoui/sliders/SliderData.h>

#include <ovoui/frame/Module.h>
#include <ovoui/sliders/core/SliderNumbers.h>
#include <ovouires/resource.h>

#include <ovocor/Text.h>

#include <cmath>

using namespace ovoui::sliders;

namespace
{

/// Says what is wrong, gives the focus to the control, and ends the exchange.
[[noreturn]] void refuse(CDataExchange& exchange, HWND control, double low, double high)
{
    exchange.PrepareEditCtrl(::GetDlgCtrlID(control));
    AfxMessageBox(stringPrintf(ovoui::resourceString(IDS_SLIDER_RANGE).c_str(), low, high).c_str(),
                  MB_ICONEXCLAMATION);
    exchange.Fail();
    std::terminate(); // Fail throws
}

double takenNumber(CDataExchange& exchange, const CSliderButton& button,
                   const std::pair<double, double>& limits)
{
    const std::optional<double> number = button.Number();
    if (!isTaken(number, limits.first, limits.second))
        refuse(exchange, button.Buddy(), limits.first, limits.second);
    return *number;
}

} // namespace

void DDX_SliderNumber(CDataExchange* exchange, CSliderButton& button, double& value)
{
    if (exchange->m_bSaveAndValidate)
        value = takenNumber(*exchange, button, button.Limits());
    else
        button.ShowNumber(value);
}

void DDX_SliderNumber(CDataExchange* exchange, CSliderButton& button, int& value)
{
    if (exchange->m_bSaveAndValidate)
        value = static_cast<int>(std::lround(takenNumber(*exchange, button, limitsOfWhole(button.Limits()))));
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
