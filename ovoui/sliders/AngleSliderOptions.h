/// Not exported. What an angle slider does when its host asks for it.
#pragma once

#include <ovoui/frame/HeldKeysNow.h>
#include <ovoui/sliders/AngleEdit.h>
#include <ovoui/sliders/AngleSlider.h>
#include <ovoui/sliders/core/AngleKeys.h>
#include <ovoui/sliders/core/CylinderDrag.h>
#include <ovoui/sliders/core/WheelNotches.h>

struct CAngleSlider::Options
{
    bool keyboard = false;
    double snap = 0; ///< degrees; while Shift is held
    ovoui::sliders::WheelNotches wheel;
    ovoui::sliders::AngleEdit edit;
    long announced = 0; ///< the angle that accessibility was told of last

    /// How the slider stands now.
    ovoui::sliders::AngleInput inputTo(const ovoui::sliders::CylinderDrag& drag) const
    {
        return {.keyboard = keyboard,
                .dragging = drag.dragging(),
                .ctrl = ovoui::frame::heldKeysNow().ctrl,
                .degrees = drag.position()};
    }
};
