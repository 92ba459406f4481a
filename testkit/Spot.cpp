#include "Spot.h"

#include <stdexcept>

namespace ovo::testkit
{

CPoint Spot::middleOf(HWND window)
{
    CRect rect;
    if (!::GetWindowRect(window, &rect))
        throw std::runtime_error("the window to point at does not exist");
    return rect.CenterPoint();
}

CPoint Spot::screenPoint(HWND window, CPoint client)
{
    if (!::ClientToScreen(window, &client))
        throw std::runtime_error("the window to point into does not exist");
    return client;
}

} // namespace ovo::testkit
