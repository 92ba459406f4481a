/// Where the parts of an item in a combo box's list lie.
#pragma once

#include <ovoui/frame/core/Placement.h>

namespace ovoui::lists
{

using frame::Box;

struct ComboItemLayout
{
    Box swatch; ///< empty without colours
    Box image;  ///< of the image's own size; empty without images
    Box text;

    friend bool operator==(const ComboItemLayout&, const ComboItemLayout&) = default;
};

/// From left to right: the swatch, half as wide again as it is high, the image, the text. The image is
/// centred vertically. An `imageWidth` of 0 stands for no images. In pixels; the gaps between the parts grow
/// with the resolution.
ComboItemLayout layOutComboItem(const Box& item, bool hasColours, int imageWidth, int imageHeight,
                                int dotsPerInch);

/// An item's height for a text of this height, 0 for no images.
int comboItemHeight(int textHeight, int imageHeight, int dotsPerInch);

/// Where a list goes that belongs to a field: below it, or above it when there is more room, cut to the room.
/// All on the screen; `height` is the one wanted.
Box placeBeside(const Box& field, const Box& workArea, int height);

} // namespace ovoui::lists
