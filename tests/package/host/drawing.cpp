// A program that links the module of drawings, outside the source tree.
#include <ovosvg/ovosvg.h>
#include <ovoui/ovoui.h>

#include <cstdint>
#include <cstdio>

namespace
{

std::uint32_t firstPixel(HBITMAP bitmap)
{
    DIBSECTION dib{};
    ::GetObjectW(bitmap, sizeof dib, &dib);
    return dib.dsBm.bmBits ? *static_cast<const std::uint32_t*>(dib.dsBm.bmBits) : 0;
}

bool draws()
{
    const auto drawing =
        ovosvg::SvgDrawing::fromText("<svg viewBox='0 0 9 9'><path d='M0 0h9v9z' fill='#336699'/></svg>");
    CImageStrips images(ovosvg::SvgStrip({drawing}), 16);
    CBitmap bitmap;
    bitmap.Attach(ovosvg::svgStrip({drawing}, 9));
    return firstPixel(bitmap) >> 24 == 0x80 && drawing.notes().empty();
}

// Exceptions cross the modules.
bool raises()
{
    try {
        ovosvg::SvgDrawing::fromText("<html/>");
    } catch (const OvoError& error) {
        const auto* const own = dynamic_cast<const ovosvg::SvgError*>(&error);
        return own && own->note().issue == ovosvg::SvgIssue::NotSvg;
    }
    return false;
}

} // namespace

int main()
{
    if (draws() && raises())
        return 0;
    std::puts("the module of drawings does not work");
    return 1;
}
