// The colour of a control on a shaded tab control against the calls that cannot be avoided.
#include <ovoui/colour/ShadedTabCtrl.h>

#include <catch2/catch.hpp>

TEST_CASE("the brush of a control on a shaded tab control")
{
    CWnd frame;
    frame.CreateEx(0, AfxRegisterWndClass(0), L"", WS_OVERLAPPEDWINDOW, CRect(0, 0, 400, 300), nullptr, 0);
    CShadedTabCtrl tabs;
    tabs.Create(WS_CHILD | WS_VISIBLE, CRect(10, 10, 300, 200), &frame, 1);
    CStatic text;
    text.Create(L"Leaves", WS_CHILD | WS_VISIBLE, CRect(20, 40, 90, 60), &tabs, 2);
    CClientDC dc(&text);
    HBRUSH brush = nullptr;
    CPoint origin;
    REQUIRE(tabs.GetBackgroundBrush(brush, origin, &text)); // themes are on, and the picture is taken

    BENCHMARK("the parent, where it lies, the mode and the origin")
    {
        CPoint place;
        CWnd* const parent = text.GetParent();
        ::MapWindowPoints(parent->m_hWnd, text.m_hWnd, &place, 1);
        const bool isStatic = (text.GetStyle() & 0x0F) == BS_GROUPBOX;
        dc.SetBkMode(TRANSPARENT);
        dc.SetBrushOrg(place);
        return isStatic ? nullptr : brush;
    };
    BENCHMARK("AmendCtlColor [at most 1.5]")
    {
        return CShadedTabCtrl::AmendCtlColor(&dc, &text, CTLCOLOR_STATIC, brush);
    };
    frame.DestroyWindow();
}
