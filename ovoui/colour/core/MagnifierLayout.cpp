#include <ovoui/colour/core/MagnifierLayout.h>

#include <ovoui/frame/core/BoxParts.h>
#include <ovoui/frame/core/Scaling.h>

namespace ovoui::colour
{

namespace
{

constexpr int kZoom = 8; // of a pixel, at 96 dots per inch
constexpr int kBorder = 1;
constexpr int kTextMargin = 3;
constexpr int kMarkFrames = 2;

} // namespace

MagnifierLayout layOutMagnifier(int dotsPerInch, int fontHeight)
{
    const int zoom = frame::scaledTo(dotsPerInch, kZoom);
    const int side = kMagnified * zoom;
    const int textHeight = fontHeight + 2 * kTextMargin;
    const int middle = kBorder + kMagnified / 2 * zoom;

    MagnifierLayout layout;
    layout.window = {0, 0, side + 2 * kBorder, side + 2 * kBorder + textHeight};
    layout.pixels = {kBorder, kBorder, kBorder + side, kBorder + side};
    layout.mark = frame::inset({middle, middle, middle + zoom, middle + zoom}, -kMarkFrames);
    const int top = layout.pixels.bottom;
    const int bottom = layout.window.bottom;
    layout.swatch = {kTextMargin, top + kTextMargin, kTextMargin + textHeight, bottom - kTextMargin};
    layout.code = {layout.swatch.right + kTextMargin, top, layout.window.right - kTextMargin, bottom};
    return layout;
}

} // namespace ovoui::colour
