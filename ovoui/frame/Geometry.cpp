#include <ovoui/frame/Geometry.h>

#include <ovoui/frame/BoxRect.h>

RECT GetWorkArea(const RECT& rect)
{
    RECT area = rect;
    const HMONITOR monitor = ::MonitorFromRect(&rect, MONITOR_DEFAULTTONEAREST);
    MONITORINFO info{};
    info.cbSize = sizeof info;
    if (::GetMonitorInfoW(monitor, &info))
        return info.rcWork;
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    return area;
}

void EnsureRectVisible(RECT& rect)
{
    using namespace ovoui::frame;
    rect = toRect(movedInto(toBox(rect), toBox(GetWorkArea(rect))));
}
