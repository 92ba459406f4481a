/// Sharpens small pictures that scaling has blurred. Plain values, no windows.
#pragma once

#include <cstddef>
#include <cstdint>

namespace ovoui::images
{

/// A rectangle of pixels in memory, four channels of 8 bits each. The stride is the distance from one row to
/// the next, in pixels, at least the width.
struct PixelBlock
{
    std::uint32_t* pixels;
    int width;
    int height;
    std::ptrdiff_t stride;
};

/// The machine forms of the filter. All give the same result, bit by bit. A row that is too narrow for one
/// step of a form is made in the next smaller form.
enum class SharpenCode
{
    OnePixel, ///< pixel by pixel
    Sse2,     ///< four pixels a step, on every x86-64 processor
    Avx2      ///< eight pixels a step
};

/// The fastest that this processor has: Sse2 or Avx2.
SharpenCode fastestSharpenCode();

/// Replaces each channel of each pixel, alpha included, by c + 0.075 (8 c - n), limited to 0 to 255 and
/// rounded half up in single precision, where c is its value and n the sum of its eight neighbours before the
/// call: a Laplacian sharpening with the weights 1.6 and -0.075.
///
/// The first and the last row are their own neighbours outside, and so is the first column. In the last
/// column the right neighbours are the pixels themselves too, but the left one and the one below it are both
/// the one above left. A block of one column has that column on either side.
void sharpen(const PixelBlock& block);

/// The same in a form of the caller's choice, which the processor must have.
void sharpen(const PixelBlock& block, SharpenCode code);

} // namespace ovoui::images
