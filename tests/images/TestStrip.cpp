#include "TestStrip.h"

#include <cstddef>
#include <vector>

namespace
{

struct Header
{
    BITMAPINFOHEADER info{};
    RGBQUAD palette[256]{};
};

RGBQUAD quad(std::uint32_t colour)
{
    return {static_cast<BYTE>(colour), static_cast<BYTE>(colour >> 8), static_cast<BYTE>(colour >> 16), 0};
}

unsigned indexOf(std::uint32_t colour, std::uint32_t third)
{
    colour &= 0xFFFFFF;
    return colour == 0 ? 0 : colour == third ? 2 : 1;
}

void put(std::uint8_t* row, int x, int bits, std::uint32_t colour, std::uint32_t third)
{
    switch (bits) {
    case 32:
        reinterpret_cast<std::uint32_t*>(row)[x] = colour;
        break;
    case 24:
        for (int i = 0; i < 3; ++i)
            row[3 * x + i] = static_cast<std::uint8_t>(colour >> (8 * i));
        break;
    default: {
        const int perByte = 8 / bits;
        const int shift = 8 - bits * (x % perByte + 1);
        row[x / perByte] = static_cast<std::uint8_t>(row[x / perByte] | indexOf(colour, third) << shift);
        break;
    }
    }
}

} // namespace

TestStrip::TestStrip(int width, int height, int bits, const Paint& paint, Rows rows, std::uint32_t third)
{
    Header header;
    header.info.biSize = sizeof header.info;
    header.info.biWidth = width;
    header.info.biHeight = rows == Rows::TopDown ? -height : height;
    header.info.biPlanes = 1;
    header.info.biBitCount = static_cast<WORD>(bits);
    header.palette[0] = quad(0);
    header.palette[1] = quad(0xFFFFFF);
    header.palette[2] = quad(third);
    void* memory = nullptr;
    m_bitmap = ::CreateDIBSection(nullptr, reinterpret_cast<BITMAPINFO*>(&header), DIB_RGB_COLORS, &memory,
                                  nullptr, 0);
    const std::size_t stride = static_cast<std::size_t>((width * bits + 31) / 32) * 4;
    for (int y = 0; y < height; ++y) {
        const int stored = rows == Rows::TopDown ? y : height - 1 - y;
        auto* const row = static_cast<std::uint8_t*>(memory) + static_cast<std::size_t>(stored) * stride;
        for (int x = 0; x < width; ++x)
            put(row, x, bits, paint(x, y), third);
    }
}

TestStrip::~TestStrip()
{
    if (m_alive)
        destroy();
}

void TestStrip::destroy()
{
    m_alive = false;
    ::DeleteObject(m_bitmap);
}
