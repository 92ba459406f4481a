/// How a bar is laid out when its frame asks for it. Plain values, no windows. Lengths in pixels.
#pragma once

#include <ovoui/toolbar/core/ButtonRows.h>

namespace ovoui::toolbar
{

inline constexpr int kLong = 32767;  ///< of a stretched bar: as long as the frame's edge
inline constexpr int kNoLength = -1; ///< the frame names none

/// What the frame asks for: its LM_ bits, and a length.
struct LayoutAsked
{
    bool stretched = false;
    bool horizontal = false;
    bool asLast = false;     ///< as wide as it was last
    bool atTop = false;      ///< the size when docked at the top or bottom
    bool atSide = false;     ///< when docked at a side
    bool byHeight = false;   ///< the length is a height
    bool forCertain = false; ///< the bar takes the layout on
    int length = kNoLength;
};

/// How the bar is set.
struct BarSettings
{
    bool fixed = false;   ///< its rows stay as they are
    bool dynamic = false; ///< it can be resized while it floats
    int lastWidth = 0;
    int height = 0; ///< that the host has set; 0 follows the buttons
};

/// What borders and gripper take.
struct Around
{
    int width = 0;
    int height = 0;
};

/// Whether the frame asks for neither a floating nor a docked size: the bar then stays as its style says,
/// `atTop` or `atSide`.
bool asksForUsualSize(const LayoutAsked& asked);

enum class RowLimit
{
    AsTheyAre,
    Width, ///< rows are no wider than the length
    Height ///< all rows together are no higher than the length
};

struct RowsAsked
{
    RowLimit limit = RowLimit::AsTheyAre;
    int length = 0;

    friend bool operator==(const RowsAsked&, const RowsAsked&) = default;
};

/// How the rows are to be broken.
RowsAsked rowsFor(const LayoutAsked& asked, const BarSettings& settings, const Around& around);

/// Whether the bar takes the layout on, or only tells its size.
bool takesLayout(const LayoutAsked& asked);

/// The bar's size when its rows have this one.
RowsSize barSize(const RowsSize& rows, const LayoutAsked& asked, const BarSettings& settings,
                 const Around& around);

/// What becomes of an embedded control with the layout.
enum class ControlChange
{
    PutAway,  ///< hidden, and it comes back with a horizontal layout
    Hide,     ///< the host had hidden it already: it does not come back
    Place,    ///< goes to the middle of its place
    PlaceShow ///< the same, and shows again
};

/// `visible`: the control shows now. `putAway`: a layout before has hidden it.
ControlChange controlChange(bool horizontal, bool visible, bool putAway);

} // namespace ovoui::toolbar
