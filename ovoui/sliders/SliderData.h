/// Exchange of data between a dialog's members and the sliders on it, in DoDataExchange.
///
///     DDX_SliderNumber(exchange, m_sizeSlider, m_size);
///     DDX_Angle(exchange, m_heading, m_headingDegrees);
#pragma once

#include <ovoui/export.h>
#include <ovoui/sliders/AngleSlider.h>
#include <ovoui/sliders/SliderButton.h>

#include <afxwin.h>

/// The number in the buddy of a slider button, through the button's conversions, into `value` and back. When
/// the dialog is read, a text that is no number, or one beyond the button's range or what `value` can hold,
/// is reported with a message box, the buddy gets the focus, and the `exchange` ends as that of DDX_Text
/// does.
OVOUI_API void DDX_SliderNumber(CDataExchange* exchange, CSliderButton& button, double& value);
OVOUI_API void DDX_SliderNumber(CDataExchange* exchange, CSliderButton& button, int& value);

/// The angle of a round slider, a wheel slider or a dial, in degrees, for the `exchange` of a DoDataExchange.
OVOUI_API void DDX_Angle(CDataExchange* exchange, CAngleSlider& slider, double& degrees);
