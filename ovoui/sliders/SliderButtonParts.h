/// Not exported. What a slider button is made of.
#pragma once

#include <ovoui/frame/KeptTheme.h>
#include <ovoui/sliders/Buddy.h>
#include <ovoui/sliders/BuddyWheel.h>
#include <ovoui/sliders/PopupWatcher.h>
#include <ovoui/sliders/SliderBubble.h>
#include <ovoui/sliders/SliderButton.h>
#include <ovoui/sliders/core/SliderDrag.h>
#include <ovoui/sliders/core/SliderNumbers.h>
#include <ovoui/sliders/core/SliderTip.h>
#include <ovoui/sliders/core/WheelNotches.h>

#include <memory>
#include <string>
#include <vector>

struct CSliderButton::Parts
{
    explicit Parts(SliderButtonUtils& host)
        : utils(host)
    {
    }

    ovoui::sliders::Buddy buddy;
    bool pressed = false;
    bool focused = false; ///< kept, since some platforms ask another process for the focus
    ovoui::frame::KeptTheme theme{L"Button"};
    ovoui::sliders::PressDrag drag;
    ovoui::sliders::PopupPlace place;    ///< of the popup when it opened
    ovoui::sliders::Positions positions; ///< of the slider when the popup opened
    ovoui::sliders::SliderNumbers numbers;
    int pages = 10;
    ovoui::sliders::SliderTip tip;
    SliderButtonUtils& utils;

    std::wstring textBefore;               ///< what the buddy showed when the popup opened
    std::unique_ptr<PopupWatcher> watcher; ///< while the popup is open
    std::wstring known;                    ///< the buddy's text as it was read or written last

    // On request
    std::vector<double> ticks;
    bool wantsBubble = false;
    ovoui::sliders::SliderBubble bubble;
    bool stepsByWheel = false;
    std::unique_ptr<ovoui::sliders::BuddyWheel> buddyWheel;
    ovoui::sliders::WheelNotches wheel;
    bool finelyByShift = false;

    /// Whether Shift makes a step finer now.
    bool fine() const { return finelyByShift && ::GetKeyState(VK_SHIFT) < 0; }
};
