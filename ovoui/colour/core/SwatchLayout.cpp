#include <ovoui/colour/core/SwatchLayout.h>

namespace ovoui::colour
{

std::array<frame::Box, kSwatches> swatchRects(const SwatchPlaces& places)
{
    constexpr int kColumns = kSwatches / 2;
    constexpr int kGaps = kColumns - 1;
    const frame::Box& area = places.area;
    const int pitch = places.thirdEdit.top - places.secondEdit.top;
    const int height = places.thirdEdit.height() - places.borderHeight;
    int width = places.thirdEdit.width() - places.borderWidth;
    int gap = (area.width() - kColumns * width) / kGaps;
    if (gap < 1) {
        width = (area.width() - kGaps) / kColumns;
        gap = 1;
    }

    std::array<frame::Box, kSwatches> swatches;
    for (int i = 0; i < kSwatches; ++i) {
        const int top = area.top + i / kColumns * pitch;
        const int right = places.thirdEdit.right - (kColumns - 1 - i % kColumns) * (width + gap);
        swatches[static_cast<std::size_t>(i)] = {right - width, top, right, top + height};
    }
    return swatches;
}

} // namespace ovoui::colour
