/// Not exported. What a slider button does beyond its type when its host asks for it.
#pragma once

#include <ovoui/sliders/BuddyWheel.h>
#include <ovoui/sliders/SliderBubble.h>
#include <ovoui/sliders/SliderButton.h>
#include <ovoui/sliders/core/SliderNumbers.h>

#include <memory>
#include <vector>

struct CSliderButton::Options
{
    ovoui::sliders::HostMapping mapping;
    std::vector<double> ticks;
    bool showsBubble = false;
    ovoui::sliders::SliderBubble bubble;
    bool stepsByWheel = false;
    std::unique_ptr<ovoui::sliders::BuddyWheel> buddyWheel;
    int wheelRest = 0; ///< of the wheel's delta, less than a notch
    bool finelyByShift = false;
};
