// Whatever the strip and the sizes: AddBitmap adds the images that are in it, or none and says so, and keeps
// nothing of the strip.
#include "Bytes.h"
#include "Check.h"

#include <ovoui/images/AlphaImageList.h>

#include <algorithm>
#include <array>
#include <memory>
#include <vector>

namespace
{

struct DeleteBitmap
{
    void operator()(HBITMAP bitmap) const { ::DeleteObject(bitmap); }
};
using UniqueBitmap = std::unique_ptr<std::remove_pointer_t<HBITMAP>, DeleteBitmap>;

struct Info
{
    BITMAPINFOHEADER header;
    std::array<RGBQUAD, 256> colours;
};

UniqueBitmap anyStrip(Bytes& bytes, CSize size)
{
    constexpr WORD kDepths[] = {1, 4, 8, 16, 24, 32};
    Info info{};
    info.header.biSize = sizeof info.header;
    info.header.biWidth = size.cx;
    info.header.biHeight = bytes.next() % 2 ? size.cy : -size.cy;
    info.header.biPlanes = 1;
    info.header.biBitCount = kDepths[bytes.next() % std::size(kDepths)];
    for (RGBQUAD& colour : info.colours)
        colour = {bytes.next(), bytes.next(), bytes.next(), 0};
    void* bits = nullptr;
    UniqueBitmap strip(::CreateDIBSection(nullptr, reinterpret_cast<const BITMAPINFO*>(&info), DIB_RGB_COLORS,
                                          &bits, nullptr, 0));
    DIBSECTION facts{};
    demand(strip && ::GetObjectW(strip.get(), sizeof facts, &facts) != 0, "there is a strip");
    auto* const pixels = static_cast<std::uint8_t*>(bits);
    std::generate_n(pixels, facts.dsBm.bmWidthBytes * size.cy, [&] { return bytes.next(); });
    return strip;
}

int countOf(CAlphaImageList& images)
{
    return images.ImageList()->GetImageCount();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Bytes bytes(data, size);
    const CSize list(bytes.between(1, 40), bytes.between(1, 40));
    const CSize wanted(bytes.next() % 4 ? list : CSize(bytes.between(-2, 40), bytes.between(-2, 40)));
    const CSize images(bytes.between(-2, 40), bytes.between(-2, 40));
    const CSize whole(bytes.between(1, 120), bytes.between(1, 40));
    const long index = bytes.next() % 2 ? -1 : bytes.between(0, 4);
    const DWORD colour = bytes.value<DWORD>();

    CAlphaImageList added;
    demand(added.Create(list.cx, list.cy, 2), "there is a list");
    added.SetSharpenMode(bytes.next() % 2 != 0);
    added.SetInterpolationMode(static_cast<Gdiplus::InterpolationMode>(bytes.between(0, 7)));
    const bool remaps = bytes.next() % 2 != 0;
    const bool hot = bytes.next() % 4 == 0;
    UniqueBitmap strip = anyStrip(bytes, whole);

    const bool possible = images.cx > 0 && images.cy > 0 && wanted.cx > 0 && wanted.cy > 0;
    const int parts = !possible ? 0 : index >= 0 ? 1 : whole.cx / images.cx;
    const int result =
        added.AddBitmap(0, hot, index, images, wanted, strip.get(), remaps ? &colour : nullptr);
    BITMAP facts{};
    demand(::GetObjectW(strip.get(), sizeof facts, &facts) != 0, "the strip stays the caller's");
    strip.reset();

    const int count = hot ? ::ImageList_GetImageCount(added.GetHotImageList()) : countOf(added);
    demand(result == -1 || result == 0, "the index of the first image, or -1");
    demand(parts > 0 || result == -1, "-1 where there is nothing to add");
    demand(result == 0 || count == 0, "nothing is added without an index");
    if (wanted == list && parts > 0) {
        demand(result == 0, "images of the list's size can be added");
        demand(count == parts, "as many images as are in the strip");
    }
    demand((hot ? countOf(added) : ::ImageList_GetImageCount(added.GetHotImageList())) == 0,
           "the other list is left alone");
    return 0;
}
