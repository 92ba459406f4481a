#include <ovoui/lists/core/ComboItemLayout.h>

#include <algorithm>

namespace ovoui::lists
{

namespace
{

constexpr int kGap = 2;
constexpr int kTextGap = 3;

} // namespace

ComboItemLayout layOutComboItem(const Box& item, bool hasColours, int imageWidth, int imageHeight)
{
    ComboItemLayout layout;
    int left = item.left + kGap;
    if (hasColours) {
        const int height = std::max(0, item.height() - 2 * kGap);
        layout.swatch = {left, item.top + kGap, left + height * 3 / 2, item.top + kGap + height};
        left = layout.swatch.right + kGap;
    }
    if (imageWidth > 0) {
        const int top = item.top + (item.height() - imageHeight) / 2;
        layout.image = {left, top, left + imageWidth, top + imageHeight};
        left = layout.image.right + kGap;
    }
    layout.text = {left + kTextGap - kGap, item.top, item.right - kGap, item.bottom};
    return layout;
}

int comboItemHeight(int textHeight, int imageHeight)
{
    return std::max(textHeight, imageHeight) + kGap;
}

Box placeBeside(const Box& field, const Box& workArea, int height)
{
    const int below = workArea.bottom - field.bottom;
    const int above = field.top - workArea.top;
    if (frame::opensUpwards(field, height, workArea))
        return {field.left, field.top - std::min(height, above), field.right, field.top};
    return {field.left, field.bottom, field.right,
            field.bottom + std::clamp(height, 0, std::max(below, 0))};
}

} // namespace ovoui::lists
