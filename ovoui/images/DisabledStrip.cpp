#include <ovoui/images/DisabledStrip.h>

#include <ovoui/images/StripReader.h>

using namespace ovoui::images;

namespace
{

HBITMAP disabledFrom(const std::optional<Strip>& strip, int imageSize)
{
    std::optional<StripPixels> pixels = strip ? pixelsOf(*strip, imageSize) : std::nullopt;
    if (!pixels)
        return nullptr;
    disable(*pixels);
    return bitmapOf(*pixels).release();
}

} // namespace

HBITMAP disabledStrip(HBITMAP strip, int imageSize)
{
    return disabledFrom(Strip::passed(strip), imageSize);
}

HBITMAP disabledStrip(UINT id, int imageSize)
{
    return disabledFrom(Strip::resource(id), imageSize);
}
