#include <ovoui/images/core/StripRules.h>

namespace ovoui::images
{

int wholeImages(int size, int stripWidth, int stripHeight)
{
    return size > 0 && stripHeight >= size ? stripWidth / size : 0;
}

ImageRange imagesAsked(long index, int inStrip)
{
    if (index < 0)
        return {0, inStrip};
    return {static_cast<int>(index), 1};
}

bool isSharpened(const ImageSize& source, const ImageSize& target)
{
    constexpr int kTooSmall = 3;
    return source != target && target.width > kTooSmall && target.height > kTooSmall;
}

bool liesInStrip(int index, int imageWidth, int stripWidth)
{
    return (std::int64_t{index} + 1) * imageWidth <= stripWidth;
}

} // namespace ovoui::images
