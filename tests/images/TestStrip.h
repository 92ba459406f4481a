/// Bitmaps made for a test.
#pragma once

#include <windows.h>

#include <cstdint>
#include <functional>

/// A strip as a DIB section, owned by this object.
class TestStrip
{
public:
    enum class Rows
    {
        BottomUp,
        TopDown
    };

    /// The colour of a pixel counted from the top left, as 0xAARRGGBB.
    using Paint = std::function<std::uint32_t(int x, int y)>;

    /// `bits` is 1, 4, 8, 24 or 32. With up to 8 bits the palette holds black, white, and `third`.
    TestStrip(int width, int height, int bits, const Paint& paint, Rows rows = Rows::BottomUp,
              std::uint32_t third = 0xFF0000);
    ~TestStrip();
    TestStrip(const TestStrip&) = delete;
    TestStrip& operator=(const TestStrip&) = delete;

    HBITMAP handle() const { return m_bitmap; }

    /// Frees the bitmap now; the handle stays what it was.
    void destroy();

private:
    HBITMAP m_bitmap = nullptr;
    bool m_alive = true;
};
