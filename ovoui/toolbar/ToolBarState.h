/// Not exported: what a toolbar keeps. It outlives the bar while a call into the host's code is under way.
#pragma once

#include <ovoui/frame/SharedState.h>
#include <ovoui/frame/Tip.h>
#include <ovoui/images/ImageStrips.h>
#include <ovoui/toolbar/VantorToolBar.h>
#include <ovoui/toolbar/core/FlyoutRecords.h>

#include <map>
#include <set>

struct CVantorToolBar::State : ovoui::frame::SharedState<CVantorToolBar>
{
    static constexpr UINT kHoldDelay = 200; // milliseconds

    using SharedState::SharedState;

    /// Where the images of a strip begin; 0 for one that was not noted.
    int offsetOf(int bitmapId) const
    {
        const auto found = bitmapOffsets.find(bitmapId);
        return found == bitmapOffsets.end() ? 0 : found->second;
    }

    ovoui::toolbar::FlyoutRecords records;
    std::map<int, int> bitmapOffsets; ///< where the images of a strip begin, by its resource
    ControlCallback callback = nullptr;
    bool marksFlyouts = false;
    int height = 0;                ///< SetHeight; 0 follows the buttons
    UINT holdDelay = kHoldDelay;   ///< in milliseconds, or kMenuDelay
    std::set<int> controlsPutAway; ///< hidden because the bar is vertical
    bool accessible = false;       ///< answers IAccessible itself

    /// FocusButtons
    struct Keyboard
    {
        bool on = false;
        int button = -1;       ///< where it is; -1 for none
        HWND before = nullptr; ///< had the focus before
        std::unique_ptr<ovoui::frame::Tip> tip;
    } keyboard;

    // Images by resolution (ToolBarStrips.cpp)
    CImageStrips images;       ///< what the control shows, once it is loaded
    CImageStrips imagesBefore; ///< what it showed before other strips were given to it
    bool makesDisabled = false;
};
