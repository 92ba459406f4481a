/// Images at another size. Plain values, no windows.
#pragma once

#include <ovoui/images/core/StripPixels.h>

namespace ovoui::images
{

/// Each image of the strip at another size, by itself, so that none gets pixels of its neighbours. Both
/// lengths of `target` are positive.
///
/// Where an image shrinks, a pixel is the mean of the area that it covers, parts of pixels counted by their
/// share. Where it grows, a pixel is interpolated between the centres of the two nearest ones, and the outer
/// halves of the outermost ones are plain. Width and height are treated one by one. Colours weigh by their
/// alpha, so what is transparent gives no colour to its neighbours. All is computed in whole numbers and
/// rounded once, half up: an image that keeps its size keeps its bits, but for the colour of what is wholly
/// transparent, which is 0.
StripPixels scaledStrip(const StripPixels& strip, const ImageSize& target);

} // namespace ovoui::images
