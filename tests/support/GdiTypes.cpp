#include "support/GdiTypes.h"

#include <testkit/GdiHandles.h>

#include <cstdio>

namespace
{

std::string bitmapText(HGDIOBJ object)
{
    BITMAP bitmap{};
    ::GetObjectW(object, sizeof bitmap, &bitmap);
    return "bitmap " + std::to_string(bitmap.bmWidth) + " x " + std::to_string(bitmap.bmHeight) + " x " +
           std::to_string(bitmap.bmBitsPixel);
}

std::string brushText(HGDIOBJ object)
{
    LOGBRUSH brush{};
    ::GetObjectW(object, sizeof brush, &brush);
    char text[40];
    std::snprintf(text, sizeof text, "brush of style %u, %06lx", brush.lbStyle, brush.lbColor);
    return text;
}

std::string fontText(HGDIOBJ object)
{
    LOGFONTW font{};
    ::GetObjectW(object, sizeof font, &font);
    std::string name;
    for (const wchar_t* c = font.lfFaceName; *c; ++c)
        name += static_cast<char>(*c);
    return "font " + name + " of height " + std::to_string(font.lfHeight);
}

} // namespace

std::string gdiDescription(HGDIOBJ object)
{
    switch (::GetObjectType(object)) {
    case OBJ_BITMAP:
        return bitmapText(object);
    case OBJ_BRUSH:
        return brushText(object);
    case OBJ_FONT:
        return fontText(object);
    case OBJ_PEN:
    case OBJ_EXTPEN:
        return "pen";
    case OBJ_REGION:
        return "region";
    case OBJ_PAL:
        return "palette";
    case OBJ_DC:
        return "device context";
    case OBJ_MEMDC:
        return "device context of memory";
    default:
        return "object of another type";
    }
}

std::map<std::string, int> gdiObjects()
{
    std::map<std::string, int> found;
    for (const HGDIOBJ object : ovo::testkit::gdiHandles())
        ++found[gdiDescription(object)];
    return found;
}

std::string gdiGrowth(const std::map<std::string, int>& before, const std::map<std::string, int>& now)
{
    std::string text;
    for (const auto& [what, count] : now) {
        const auto known = before.find(what);
        const int grown = count - (known == before.end() ? 0 : known->second);
        if (grown > 0)
            text += "  " + std::to_string(grown) + " " + what + "\n";
    }
    return text;
}
