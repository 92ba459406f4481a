/// Arithmetic of the message box's layout, in pixels. Plain values, no windows.
#pragma once

#include <ovoui/frame/core/Placement.h>
#include <ovoui/frame/core/SavedPosition.h>

#include <optional>
#include <string>
#include <vector>

namespace ovoui::frame
{

struct Extent
{
    int width = 0;
    int height = 0;

    friend bool operator==(const Extent&, const Extent&) = default;
};

/// What the layout needs to know of the system. Sizes are in pixels.
struct BoxMetrics
{
    int dotsPerInch = 96;    ///< the distances between the parts are made for 96 and scale with it
    int edgeWidth = 0;       ///< of a three-dimensional edge
    int borderWidth = 0;     ///< of a thin border, left or right
    int borderHeight = 0;    ///< of a thin border, top or bottom
    int frameWidth = 0;      ///< of a dialog frame, left or right
    int frameHeight = 0;     ///< of a dialog frame, top or bottom
    int captionHeight = 0;   ///< of a title bar
    int scrollBarWidth = 0;  ///< of a vertical scroll bar
    int scrollBarHeight = 0; ///< of a horizontal scroll bar
};

/// `pixels` at 96 dots per inch, at the system's resolution.
int scaled(int pixels, const BoxMetrics& metrics);

/// Room that a box takes beside text and buttons.
struct BoxExtras
{
    int width = 0; ///< at least, of the client area
    int above = 0; ///< between text and buttons
    int below = 0; ///< below the buttons
};

/// Size common to all buttons, for a font of the given height and average character width, wide enough for
/// the widest label.
Extent buttonSize(int fontHeight, int averageCharWidth, const std::vector<int>& labelWidths,
                  const BoxMetrics& metrics);

/// The client area that the text control needs, and the scroll bars that it gets.
struct TextArea
{
    Extent client;
    bool vertical = false;
    bool horizontal = false;
};

/// `text` is the measured size of the message, `margins` the sum of the control's left and right margin,
/// `widthLimit` the width at which a scrolled text also gets a horizontal bar.
TextArea textArea(const Extent& text, int lineHeight, int margins, int widthLimit, const BoxMetrics& metrics);

/// `window`, whose client area measures `from` beside the scroll bars, grown to the size that `to` asks for.
/// The dialog has no room for a horizontal bar of its own: the bar takes it from the lines shown.
Box grownTextControl(const Box& window, const Extent& from, const TextArea& to, const BoxMetrics& metrics);

/// What to ask an edit control for that takes margins and edge off its formatting rectangle: it has `got`
/// where `wanted` was asked for. None where nothing is missing.
std::optional<Box> formatToAsk(const Box& wanted, const Box& got);

/// Outer size of the dialog. `textControlWidth` is that of the grown control, `textHeight` the height of the
/// text area's client.
Extent dialogSize(int textControlWidth, int textHeight, const Extent& button, int buttonCount,
                  const BoxMetrics& metrics);

/// What a box without a remembered position is centred in: the client rectangle of its parent as it stands,
/// with its corner at the screen's origin. Where that is empty the work area, which may not be known.
Box areaToCentreIn(const Box& parentClient, const std::optional<Box>& workArea);

/// Where the dialog opens: at the remembered position, or in the middle of an area.
Box startPlace(const SavedPosition& saved, const Extent& dialog, const Box& area);

/// The dialog's size with room for more.
Extent withExtras(const Extent& dialog, const BoxExtras& extras, const BoxMetrics& metrics);

/// Where the icon's top left corner lies in the dialog's client area.
Point iconPlace(const BoxMetrics& metrics);

/// Where the text control's top left corner lies in the dialog's client area.
Point textPlace(const BoxMetrics& metrics);

/// Where the button at `position` of `count` lies in the dialog's client area, or in what is above the
/// extras.
Box buttonBox(int position, int count, const Extent& button, const Extent& client, const BoxMetrics& metrics);

/// The lines joined by CR LF.
std::wstring joinLines(const std::vector<std::wstring>& lines);

} // namespace ovoui::frame
