// Adding a strip of 64 images, scaled from 16 to 24 pixels, against the GDI+ calls that it cannot do without.
#include <ovoui/images/AlphaImageList.h>

#include <catch2/catch.hpp>

#include <cstdint>
#include <cstring>

namespace
{

constexpr int kCount = 64;
constexpr int kFrom = 16;
constexpr int kTo = 24;

class GdiPlus
{
public:
    GdiPlus()
    {
        const Gdiplus::GdiplusStartupInput input;
        Gdiplus::GdiplusStartup(&m_token, &input, nullptr);
    }
    ~GdiPlus() { Gdiplus::GdiplusShutdown(m_token); }
    GdiPlus(const GdiPlus&) = delete;
    GdiPlus& operator=(const GdiPlus&) = delete;

private:
    ULONG_PTR m_token = 0;
};

/// A strip of 32 bits with something in it, and its memory.
struct Strip
{
    Strip()
    {
        BITMAPINFO info{};
        info.bmiHeader = {sizeof(BITMAPINFOHEADER), kCount * kFrom, kFrom, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        void* memory = nullptr;
        bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &memory, nullptr, 0);
        bits = static_cast<std::uint32_t*>(memory);
        for (int i = 0; i < kCount * kFrom * kFrom; ++i)
            bits[i] = static_cast<std::uint32_t>(i) * 2654435761u;
    }
    ~Strip() { ::DeleteObject(bitmap); }
    Strip(const Strip&) = delete;
    Strip& operator=(const Strip&) = delete;

    HBITMAP bitmap;
    std::uint32_t* bits; ///< from the bottom
};

/// By hand: the strip as a GDI+ bitmap, every image cloned and drawn into the target, that as a DIB into the
/// list.
int addByHand(const Strip& strip, HIMAGELIST list)
{
    constexpr INT kStride = kCount * kFrom * 4;
    BYTE* const lastRow = reinterpret_cast<BYTE*>(strip.bits) + (kFrom - 1) * kStride;
    Gdiplus::Bitmap source(kCount * kFrom, kFrom, -kStride, PixelFormat32bppARGB, lastRow);
    Gdiplus::Bitmap target(kCount * kTo, kTo, PixelFormat32bppARGB);
    {
        Gdiplus::Graphics graphics(&target);
        graphics.SetInterpolationMode(Gdiplus::InterpolationModeLowQuality);
        graphics.Clear(Gdiplus::Color(0x00FFFFFF));
        for (int i = 0; i < kCount; ++i) {
            const Gdiplus::Rect slot(i * kTo, 0, kTo, kTo);
            graphics.SetClip(slot, Gdiplus::CombineModeReplace);
            Gdiplus::Bitmap* const image = source.Clone(i * kFrom, 0, kFrom, kFrom, PixelFormat32bppARGB);
            graphics.DrawImage(image, slot, 0, 0, kFrom, kFrom, Gdiplus::UnitPixel);
            delete image;
        }
    }
    BITMAPINFO info{};
    info.bmiHeader = {sizeof(BITMAPINFOHEADER), kCount * kTo, -kTo, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    const HBITMAP dib = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    Gdiplus::BitmapData data{};
    const Gdiplus::Rect all(0, 0, kCount * kTo, kTo);
    if (target.LockBits(&all, Gdiplus::ImageLockModeRead, PixelFormat32bppARGB, &data) == Gdiplus::Ok) {
        std::memcpy(bits, data.Scan0, static_cast<std::size_t>(kCount * kTo * kTo) * 4);
        target.UnlockBits(&data);
    }
    const int first = ::ImageList_AddMasked(list, dib, ::GetSysColor(COLOR_BTNFACE));
    ::DeleteObject(dib);
    return first;
}

} // namespace

TEST_CASE("adding a strip of 64 images, scaled from 16 to 24 pixels")
{
    const GdiPlus gdiPlus;
    const Strip strip;
    BENCHMARK("the GDI+ calls by hand")
    {
        const HIMAGELIST list = ::ImageList_Create(kTo, kTo, ILC_COLOR32 | ILC_MASK, kCount, 1);
        const int first = addByHand(strip, list);
        ::ImageList_Destroy(list);
        return first;
    };
    BENCHMARK("AddBitmap [at most 1.2]")
    {
        CAlphaImageList images;
        images.Create(kTo, kTo, kCount);
        return images.AddBitmap(0, false, -1, CSize(kFrom, kFrom), CSize(kTo, kTo), strip.bitmap, nullptr);
    };
}
