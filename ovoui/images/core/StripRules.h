/// Which images of a strip are drawn, and whether they are sharpened. Plain values, no windows.
#pragma once

#include <cstdint>

namespace ovoui::images
{

struct ImageSize
{
    int width;
    int height;

    bool empty() const { return width <= 0 || height <= 0; }
    friend bool operator==(const ImageSize&, const ImageSize&) = default;
};

struct ImageRange
{
    int first; ///< index of the first image
    int count;

    friend bool operator==(const ImageRange&, const ImageRange&) = default;
};

/// How many whole images of `size` by `size` pixels stand side by side in a strip of this size; 0 when the
/// strip is lower than an image, and for a size that is none.
int wholeImages(int size, int stripWidth, int stripHeight);

/// The images that an index asks for: one, which may lie beyond the strip's end, or all for a negative index.
ImageRange imagesAsked(long index, int inStrip);

/// Whether an image drawn at another size is sharpened. Those of 3 pixels or less in a direction are not.
bool isSharpened(const ImageSize& source, const ImageSize& target);

/// Whether an image lies within a strip of this width, as a whole.
bool liesInStrip(int index, int imageWidth, int stripWidth);

} // namespace ovoui::images
