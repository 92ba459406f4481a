#include <ovoui/lists/core/ComboItemLayout.h>

#include <ovoui/frame/core/Scaling.h>

#include <algorithm>

namespace ovoui::lists
{

namespace
{

// Pixels at 96 dots per inch.
constexpr int kGap = 2;
constexpr int kTextGap = 3;

} // namespace

ComboItemLayout layOutComboItem(const Box& item, bool hasColours, int imageWidth, int imageHeight,
                                int dotsPerInch)
{
    const int gap = frame::scaledTo(dotsPerInch, kGap);
    ComboItemLayout layout;
    int left = item.left + gap;
    if (hasColours) {
        const int height = std::max(0, item.height() - 2 * gap);
        layout.swatch = {left, item.top + gap, left + height * 3 / 2, item.top + gap + height};
        left = layout.swatch.right + gap;
    }
    if (imageWidth > 0) {
        const int top = item.top + (item.height() - imageHeight) / 2;
        layout.image = {left, top, left + imageWidth, top + imageHeight};
        left = layout.image.right + gap;
    }
    layout.text = {left + frame::scaledTo(dotsPerInch, kTextGap) - gap, item.top, item.right - gap,
                   item.bottom};
    return layout;
}

int comboItemHeight(int textHeight, int imageHeight, int dotsPerInch)
{
    return std::max(textHeight, imageHeight) + frame::scaledTo(dotsPerInch, kGap);
}

Box placeBeside(const Box& field, const Box& workArea, int height)
{
    const int below = workArea.bottom - field.bottom;
    const int above = field.top - workArea.top;
    if (frame::opensUpwards(field, height, workArea))
        return {field.left, field.top - std::min(height, above), field.right, field.top};
    return {field.left, field.bottom, field.right, field.bottom + std::clamp(height, 0, std::max(below, 0))};
}

} // namespace ovoui::lists
