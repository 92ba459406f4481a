#include "GdiTypes.h"

#include <windows.h>
#include <winternl.h>

#include <cstdint>
#include <cstdio>

namespace
{

// The process's table of GDI handles as Wine lays it out; the test kit's counter reads the same one.
struct HandleEntry
{
    std::uint64_t object;
    std::uint32_t owner;
    std::uint16_t unique;
    std::uint8_t type;
    std::uint8_t flags;
    std::uint64_t userPointer;
};

constexpr int kTableSize = 0x10000;
constexpr int kTableInPeb = 0xF8;

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

std::string describe(HGDIOBJ object)
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

} // namespace

std::map<std::string, int> gdiObjects()
{
    std::map<std::string, int> found;
    if (!::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "wine_get_version"))
        return found;
    ::GdiFlush();
    const auto* peb = reinterpret_cast<const char*>(NtCurrentTeb()->ProcessEnvironmentBlock);
    const auto* table = *reinterpret_cast<const HandleEntry* const*>(peb + kTableInPeb);
    for (int i = 0; table && i < kTableSize; ++i)
        if (table[i].type)
            ++found[describe(
                reinterpret_cast<HGDIOBJ>(static_cast<std::uintptr_t>(i | (table[i].unique << 16))))];
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
