// The tool window of the gallery's own frame.
#pragma once

#include <ovoui/toolbar/VantorToolWnd.h>

/// A slider for the colour of the band above the pages, edits for the sizes of what lies around them. The
/// frame gets what they notify.
class FramePalette : public CVantorToolWnd
{
public:
    struct Values
    {
        int hue = 215;       ///< in degrees, below 360
        int listWidth = 170; ///< in pixels at 96 dots per inch, as the next one
        int logHeight = 104;
    };

    bool create(CFrameWnd& frame, Values values);

    void show(Values values);
    /// What the controls show, within sensible limits.
    Values values() const;
};
