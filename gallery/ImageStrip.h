// Strips of images that were drawn in several sizes.
#pragma once

#include <ovoui/images/AlphaImageList.h>

/// Bitmap resources of one strip, with images of 16, 24 and 32 pixels.
struct ImageStrip
{
    UINT at16;
    UINT at24;
    UINT at32;
};

/// Fills an empty list with a strip's images, as large as 16 pixels are at 96 dots per inch: from those that
/// were drawn in this size, else from the next larger ones.
void createImages(CAlphaImageList& images, const ImageStrip& strip, HWND window);
