#include <ovoui/sliders/SliderData.h>

#include <ovoui/frame/Module.h>
#include <ovoui/sliders/core/SliderNumbers.h>
#include <ovouires/resource.h>

#include <ovocor/Text.h>

#include <cmath>

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

} // namespace

void DDX_SliderNumber(CDataExchange* exchange, CSliderButton& button, double& value)
{
    if (!exchange->m_bSaveAndValidate) {
        button.ShowNumber(value);
        return;
    }
    const std::optional<double> number = button.Number();
    const auto [low, high] = button.Limits();
    if (!ovoui::sliders::isTaken(number, low, high))
        refuse(*exchange, button.Buddy(), low, high);
    value = *number;
}

void DDX_SliderNumber(CDataExchange* exchange, CSliderButton& button, int& value)
{
    double number = value;
    DDX_SliderNumber(exchange, button, number);
    if (exchange->m_bSaveAndValidate)
        value = static_cast<int>(std::lround(number));
}

void DDX_Angle(CDataExchange* exchange, CAngleSlider& slider, double& degrees)
{
    if (exchange->m_bSaveAndValidate)
        degrees = slider.GetPos();
    else
        slider.SetPos(degrees);
}
