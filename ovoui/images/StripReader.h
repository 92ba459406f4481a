/// Not exported: pixels of strips, and strips of pixels.
#pragma once

#include <ovoui/images/StripPainter.h>
#include <ovoui/images/core/StripPixels.h>

#include <optional>

namespace ovoui::images
{

/// All whole images of a strip that holds images of `size` by `size` pixels. None when there is none, when
/// the strip is lower than that, or, for a strip without alpha, without GDI+. What stands for transparency in
/// such a strip has alpha 0.
std::optional<StripPixels> pixelsOf(const Strip& strip, int size);

/// A new top-down DIB section with the pixels; null when it cannot be made.
UniqueBitmap bitmapOf(const StripPixels& pixels);

/// Makes all images look disabled, under the system's scheme of now.
void disable(StripPixels& pixels);

} // namespace ovoui::images
