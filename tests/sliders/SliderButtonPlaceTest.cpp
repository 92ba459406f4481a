// Where a slider button's popup opens, and what it looks like.
#include "SliderButtonScene.h"

#include <testkit/ImportPatch.h>

#include <ovoui/frame/Geometry.h>

#include <commctrl.h>

#include <algorithm>

using namespace ovo::testkit;

TEST_F(SliderButton, ThePopupOpensBelowWithTheThumbUnderThePointer)
{
    setBuddyText(L"50");
    show();
    CPoint pointer;
    user.click(Spot{*button}).waitFor("the popup", &isOpen).then([&] { ::GetCursorPos(&pointer); });
    CRect place;
    ::GetWindowRect(popup(), &place);
    CRect under;
    button->GetWindowRect(&under);
    EXPECT_EQ(place.top, under.bottom);
    EXPECT_NEAR(thumbX(), pointer.x, 4);
    EXPECT_EQ(::GetAncestor(::WindowFromPoint(place.CenterPoint()), GA_ROOT), popup()) << "in front";
}

TEST_F(SliderButton, ThePopupStaysOnTheScreen)
{
    const CRect work(GetWorkArea(CRect(0, 0, 10, 10)));
    const int right = work.right - 115; // with the button at the edge, or half beyond it
    const int left = work.left - 105;
    const int bottom = work.bottom - 25;
    const int top = work.top - 120;
    for (const wchar_t* number : {L"0", L"50", L"100"}) // where the thumb is decides which way it reaches
        for (const CPoint at :
             {CPoint(right, 100), CPoint(left, 100), CPoint(300, bottom), CPoint(300, top),
              CPoint(right, bottom), CPoint(left, bottom), CPoint(right, top), CPoint(left, top)}) {
            setBuddyText(number);
            show(at);
            button->SetFocus();
            button->SendMessage(WM_KEYDOWN, VK_SPACE);
            ASSERT_TRUE(isOpen());
            CRect place;
            ::GetWindowRect(popup(), &place);
            EXPECT_EQ(CRect(place & work), place) << at.x << ", " << at.y;
            button->SendMessage(WM_KEYDOWN, VK_SPACE);
            ASSERT_TRUE(isClosed());
        }
}

namespace
{

RECT g_workArea; // that the system tells of when it is asked

BOOL WINAPI tellWorkArea(HMONITOR, MONITORINFO* info)
{
    info->rcWork = g_workArea;
    return TRUE;
}

} // namespace

TEST_F(SliderButton, ThePopupGoesByTheWorkAreaOfToday)
{
    show();
    button->SetFocus();
    const auto placeOfPopup = [&] {
        button->SendMessage(WM_KEYDOWN, VK_SPACE);
        CRect place;
        ::GetWindowRect(popup(), &place);
        button->SendMessage(WM_KEYDOWN, VK_SPACE);
        return place;
    };
    const CRect before = placeOfPopup();
    const HWND hidden = ::FindWindowExW(nullptr, nullptr, L"#32770", nullptr);
    ASSERT_EQ(::GetWindow(hidden, GW_OWNER), parent.m_hWnd);
    const ImportPatch patch(L"ovoui.dll", "GetMonitorInfoW", reinterpret_cast<void*>(&tellWorkArea));
    for (const UINT message : {WM_DISPLAYCHANGE, WM_SETTINGCHANGE}) {
        for (const int left : {before.left + 40, before.left - 300}) {
            g_workArea = CRect(left, 0, left + 600, 600);
            ::SendMessageW(hidden, message, 0, 0); // as the system tells all windows
            EXPECT_EQ(placeOfPopup().left, std::max<int>(before.left, left));
        }
    }
}

TEST_F(SliderButton, ThePopupIsASmallWindowWithoutACaption)
{
    show();
    open();
    const LONG_PTR style = ::GetWindowLongPtrW(popup(), GWL_STYLE);
    EXPECT_TRUE(style & WS_POPUP);
    EXPECT_NE(style & WS_CAPTION, WS_CAPTION);
    EXPECT_EQ(::GetWindow(popup(), GW_OWNER), parent.m_hWnd) << "so it is not in the task bar";
    EXPECT_FALSE(::GetWindowLongPtrW(popup(), GWL_EXSTYLE) & WS_EX_APPWINDOW);
    EXPECT_EQ(::GetDlgCtrlID(slider()), 20505);
    CRect outside;
    ::GetWindowRect(popup(), &outside);
    CRect inside;
    ::GetClientRect(popup(), &inside);
    EXPECT_EQ(outside.Size(), inside.Size() + CSize(2, 2)) << "a thin border";
    CRect channel;
    ::SendMessageW(slider(), TBM_GETCHANNELRECT, 0, reinterpret_cast<LPARAM>(static_cast<RECT*>(&channel)));
    EXPECT_GT(channel.Width(), 100) << "a pixel for each of a hundred steps at least";
}
