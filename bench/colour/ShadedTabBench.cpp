// The colour of a control on a shaded tab control against the calls that cannot be avoided.
#include <ovoui/colour/ShadedTabCtrl.h>

#include "support/InTurns.h"

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

    // One call is too short for the clock, and many are interrupted by what else the machine does.
    constexpr int kCalls = 50;
    volatile bool isGroupBox = false;
    volatile DWORD mirrored = 0;
    HBRUSH volatile taken = nullptr;
    InTurns turns;
    // What lies behind a control is found by where it lies, by the directions of both windows and of the DC,
    // and by how the DC is moved.
    turns.add("the parent, where it lies, styles, directions, mode and origin [baseline]", [&] {
        for (int i = 0; i < kCalls; ++i) {
            CPoint place;
            CWnd* const parent = text.GetParent();
            isGroupBox = (text.GetStyle() & 0x0F) == BS_GROUPBOX;
            mirrored = (dc.GetLayout() | parent->GetExStyle() | text.GetExStyle()) & WS_EX_LAYOUTRTL;
            ::MapWindowPoints(parent->m_hWnd, text.m_hWnd, &place, 1);
            dc.LPtoDP(&place);
            dc.SetBkMode(TRANSPARENT);
            dc.SetBrushOrg(place);
        }
    });
    turns.add("AmendCtlColor [at most 1.5]", [&] {
        for (int i = 0; i < kCalls; ++i)
            taken = CShadedTabCtrl::AmendCtlColor(&dc, &text, CTLCOLOR_STATIC, brush);
    });
    turns.run("the brush of a control on a shaded tab control, 50 times", 2001);
    frame.DestroyWindow();
}
