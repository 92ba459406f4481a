/// Not exported. What an angle slider does when its host asks for it.
#pragma once

#include <ovoui/sliders/AngleEdit.h>
#include <ovoui/sliders/AngleSlider.h>

struct CAngleSlider::Options
{
    bool keyboard = false;
    double snap = 0; ///< degrees; while Shift is held
    int wheelRest = 0;
    ovoui::sliders::AngleEdit edit;
};
