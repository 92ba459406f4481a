#include "floatplace.h"

#include "bararea.h"
#include "core/floatrules.h"

#include <afxext.h>

namespace afxdetail
{

namespace
{

BOOL CALLBACK collectWorkArea(HMONITOR monitor, HDC, LPRECT, LPARAM found)
{
    MONITORINFO info{};
    info.cbSize = sizeof info;
    if (::GetMonitorInfoW(monitor, &info))
        reinterpret_cast<std::vector<Area>*>(found)->push_back(areaOf(info.rcWork));
    return TRUE;
}

std::vector<Area> workAreas()
{
    std::vector<Area> areas;
    ::EnumDisplayMonitors(nullptr, nullptr, &collectWorkArea, reinterpret_cast<LPARAM>(&areas));
    return areas;
}

} // namespace

CPoint placeToFloatAgain(CControlBar& bar, CPoint topLeft, bool horizontal)
{
    const DWORD style = bar.GetBarStyle();
    const CSize size = bar.CalcDynamicLayout(-1, horizontal ? LM_HORZ | LM_MRUWIDTH : LM_VERTDOCK);
    const Extent window = extentOf(CMiniDockFrameWnd::outerSize(size, style));
    const Place place = bringBack({topLeft.x, topLeft.y}, window, workAreas());
    return CPoint(place.x, place.y);
}

} // namespace afxdetail
