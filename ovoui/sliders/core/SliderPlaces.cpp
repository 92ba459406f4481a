#include <ovoui/sliders/core/SliderPlaces.h>

#include <ovoui/frame/core/BoxParts.h>
#include <ovoui/sliders/core/DialTurn.h>

#include <algorithm>

namespace ovoui::sliders
{

using frame::Box;

TickRoom roomForTicks(int sliderHeight)
{
    return {.added = sliderHeight / 2, .thumb = sliderHeight * 4 / 5};
}

Box bubblePlace(const Box& thumb, int width, int height)
{
    constexpr int kGap = 2; // between bubble and thumb
    const int left = (thumb.left + thumb.right) / 2 - width / 2;
    const int bottom = thumb.top - kGap;
    return {left, bottom - height, left + width, bottom};
}

Box popupPlace(int pointer, int thumb, int buttonsBottom, int width, int height)
{
    const int left = pointer - thumb;
    return {left, buttonsBottom, left + width, buttonsBottom + height};
}

Box cylinderPlace(const Box& slider)
{
    constexpr int kEdge = 2; // the etched edge and the gap outside it
    return frame::inset(slider, kEdge);
}

Box stripPlace(const Box& cylinder, bool sideways, int from, int to)
{
    return sideways ? Box{from, cylinder.top, to, cylinder.bottom}
                    : Box{cylinder.left, from, cylinder.right, to};
}

NumberPlace numberPlace(const Box& cylinder, int textWidth, int textHeight)
{
    constexpr int kSide = 1; // of the background, beside the text
    const int left = (cylinder.width() - textWidth) / 2 + cylinder.left;
    const int top = (cylinder.height() - textHeight) / 2 + cylinder.top;
    const Box background{left - kSide, top, left + textWidth + kSide, top + textHeight};
    return {.text = {left, top}, .background = frame::intersection(background, cylinder)};
}

Box editPlace(const Box& slider, int characters, int digitWidth, int digitHeight)
{
    constexpr int kEdges = 4; // above and below, together
    return frame::centredIn(slider, std::min(digitWidth * characters, slider.width()),
                            std::min(digitHeight + kEdges, slider.height()));
}

Box dialPlace(const Box& client)
{
    const int size = std::min(client.width(), client.height());
    return frame::centredIn(client, size, size);
}

double dialDirection(const Box& client, int x, int y, bool mirrored)
{
    const double across = x + 0.5 - client.width() / 2.0;
    return directionOf(mirrored ? -across : across, y + 0.5 - client.height() / 2.0);
}

std::optional<std::array<Corner, 3>> arrowCorners(int width, int height)
{
    constexpr int kRight = 3; // from the edge to the tip
    const int middle = height / 2;
    const int size = std::min(width - 5, middle - 2);
    if (size <= 0)
        return std::nullopt;
    const int tip = width - kRight;
    return std::array<Corner, 3>{{{tip, middle}, {tip - size, middle - size}, {tip - size, middle + size}}};
}

} // namespace ovoui::sliders
