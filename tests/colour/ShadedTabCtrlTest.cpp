// A tab control whose page shows through the controls on it. The paint of the tab control is the test's own:
// each pixel of the window has a colour that tells where it is.
#include <testkit/Desktop.h>
#include <testkit/GdiCounter.h>
#include <testkit/ImportPatch.h>
#include <testkit/Picture.h>

#include <ovoui/colour/ShadedTabCtrl.h>
#include <ovoui/frame/ThemeData.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <utility>

using namespace ovo::testkit;

namespace
{

COLORREF pixelOf(int x, int y)
{
    return RGB(x & 0xFF, y & 0xFF, 77);
}

class PatternTabs : public CShadedTabCtrl
{
public:
    int pictures = 0;
    LPARAM printFlags = 0;
    std::function<void()> whilePainting = [] {};

    using CShadedTabCtrl::captureBackground;

protected:
    afx_msg LRESULT OnPrintClient(WPARAM dc, LPARAM flags)
    {
        ++pictures;
        printFlags = flags;
        CRect window;
        GetWindowRect(&window);
        for (int y = 0; y < window.Height(); ++y)
            for (int x = 0; x < window.Width(); ++x)
                ::SetPixelV(reinterpret_cast<HDC>(dc), x, y, pixelOf(x, y));
        const auto act = whilePainting; // this object may go
        act();
        return 0;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(PatternTabs, CShadedTabCtrl)
    ON_MESSAGE(WM_PRINTCLIENT, &PatternTabs::OnPrintClient)
END_MESSAGE_MAP()

/// A system without UxTheme, as the library sees it while this object lives.
class NoThemes
{
public:
    NoThemes()
        : m_real(CThemeData::getThemeData())
    {
        ::LoadLibraryW(L"uxtheme.dll"); // the copy releases it once more
        CThemeData::getThemeData() = CThemeData([](const wchar_t*) -> HMODULE { return nullptr; });
    }
    ~NoThemes() { CThemeData::getThemeData() = m_real; }

private:
    CThemeData m_real;
};

class ShadedTabCtrl : public ::testing::Test
{
protected:
    ShadedTabCtrl()
    {
        frame.CreateEx(0, AfxRegisterWndClass(0), L"frame", WS_POPUP, 100, 100, 260, 220, nullptr, nullptr);
        tabs->Create(WS_CHILD | WS_VISIBLE, CRect(20, 10, 220, 170), &frame, 1);
        child.CreateEx(0, L"STATIC", L"text", WS_CHILD | WS_VISIBLE, CRect(30, 40, 90, 60), tabs.get(), 2);
        outside.CreateEx(0, L"STATIC", L"text", WS_CHILD | WS_VISIBLE, CRect(0, 180, 60, 200), &frame, 3);
        tabs->pictures = 0;
    }
    ~ShadedTabCtrl() override { frame.DestroyWindow(); }

    static bool themed() { return CThemeData::getThemeData().IsAppThemed(); }
    static HBRUSH white() { return static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH)); }

    /// A control of the given class on the tab control.
    std::unique_ptr<CWnd> control(const wchar_t* windowClass, DWORD style, CRect place)
    {
        auto wnd = std::make_unique<CWnd>();
        wnd->CreateEx(0, windowClass, L"x", WS_CHILD | style, place, tabs.get(), 9);
        return wnd;
    }

    HBRUSH amend(CWnd& wnd, UINT type)
    {
        CClientDC dc(&wnd);
        return CShadedTabCtrl::AmendCtlColor(&dc, &wnd, type, white());
    }

    HBRUSH amendAsMember(CWnd& wnd, UINT type)
    {
        CClientDC dc(&wnd);
        return tabs->AmendCtlColor(&dc, type, white(), &wnd);
    }

    CWnd frame;
    std::unique_ptr<PatternTabs> tabs = std::make_unique<PatternTabs>();
    CWnd child;
    CWnd outside;
};

/// The themed cases have nothing to say without visual styles, which have cases of their own.
#define NEEDS_THEMES()                                                                                       \
    if (!themed())                                                                                           \
    GTEST_SKIP() << "visual styles are off"

} // namespace

// The picture

TEST_F(ShadedTabCtrl, ThePictureIsTakenOnceWhenItIsNeeded)
{
    NEEDS_THEMES();
    PatternTabs fresh;
    fresh.Create(WS_CHILD, CRect(0, 0, 50, 40), &frame, 5);
    const int atCreation = fresh.pictures; // a window that is created gets its size
    HBRUSH brush = nullptr;
    CPoint origin;
    EXPECT_TRUE(fresh.GetBackgroundBrush(brush, origin, nullptr));
    EXPECT_TRUE(fresh.GetBackgroundBrush(brush, origin, nullptr));
    EXPECT_EQ(fresh.pictures, std::max(1, atCreation));
    EXPECT_EQ(fresh.printFlags, 14) << "frame, client area and background";
    fresh.DestroyWindow();
}

TEST_F(ShadedTabCtrl, WhateverNeedsItFirstTakesThePicture)
{
    NEEDS_THEMES();
    HBRUSH brush = nullptr;
    CPoint origin;
    const std::function<void(PatternTabs&, CWnd&)> uses[] = {
        [&](PatternTabs& fresh, CWnd&) { EXPECT_TRUE(fresh.GetBackgroundBrush(brush, origin, nullptr)); },
        [&](PatternTabs&, CWnd& text) {
            EXPECT_TRUE(CShadedTabCtrl::GetBackgroundBrush(&text, brush, origin));
        },
        [&](PatternTabs&, CWnd& text) { EXPECT_NE(amend(text, CTLCOLOR_STATIC), white()); },
        [&](PatternTabs& fresh, CWnd& text) {
            CClientDC dc(&text);
            EXPECT_NE(fresh.AmendCtlColor(&dc, CTLCOLOR_STATIC, white(), &text), white());
        },
    };
    for (const auto& use : uses) {
        // One of a dialog is taken over when it has its size.
        const HWND wnd = ::CreateWindowExW(0, WC_TABCONTROLW, L"", WS_CHILD, 0, 0, 50, 40, frame.m_hWnd,
                                           nullptr, nullptr, nullptr);
        PatternTabs fresh;
        fresh.SubclassWindow(wnd);
        CWnd text;
        text.CreateEx(0, L"STATIC", L"", WS_CHILD, CRect(3, 4, 20, 20), &fresh, 6);
        EXPECT_EQ(fresh.pictures, 0);
        use(fresh, text);
        EXPECT_EQ(fresh.pictures, 1);
        use(fresh, text);
        EXPECT_EQ(fresh.pictures, 1);
        fresh.DestroyWindow();
    }
}

TEST_F(ShadedTabCtrl, AChangeOfTheSizeTakesANewPictureOfThatSize)
{
    NEEDS_THEMES();
    tabs->SetWindowPos(nullptr, 0, 0, 120, 90, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(tabs->pictures, 1);
    HBRUSH brush = nullptr;
    CPoint origin;
    ASSERT_TRUE(tabs->GetBackgroundBrush(brush, origin, tabs.get()));
    EXPECT_EQ(tabs->pictures, 1);
    const Picture picture(250, 190);
    const RECT all{0, 0, 250, 190};
    ::SetBrushOrgEx(picture.dc(), 0, 0, nullptr);
    ::FillRect(picture.dc(), &all, brush);
    EXPECT_EQ(picture.at(119, 89), pixelOf(119, 89));
    EXPECT_EQ(picture.at(120, 5), pixelOf(0, 5)) << "the pattern begins again";
    EXPECT_EQ(picture.at(5, 90), pixelOf(5, 0));
}

TEST_F(ShadedTabCtrl, AChangeOfTheThemeTakesANewPictureAtTheNextUse)
{
    NEEDS_THEMES();
    HBRUSH brush = nullptr;
    CPoint origin;
    ASSERT_TRUE(tabs->GetBackgroundBrush(brush, origin, nullptr));
    tabs->pictures = 0;
    tabs->SendMessage(WM_THEMECHANGED);
    EXPECT_EQ(tabs->pictures, 0);
    ASSERT_TRUE(tabs->GetBackgroundBrush(brush, origin, nullptr));
    ASSERT_TRUE(tabs->GetBackgroundBrush(brush, origin, nullptr));
    EXPECT_EQ(tabs->pictures, 1);
}

TEST_F(ShadedTabCtrl, AMoveTakesNoPicture)
{
    NEEDS_THEMES();
    tabs->SetWindowPos(nullptr, 3, 4, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    EXPECT_EQ(tabs->pictures, 0);
}

TEST_F(ShadedTabCtrl, WithoutVisualStylesThereIsNone)
{
    if (themed())
        GTEST_SKIP() << "visual styles are on";
    HBRUSH brush = white();
    CPoint origin(7, 8);
    EXPECT_FALSE(tabs->GetBackgroundBrush(brush, origin, &child));
    EXPECT_FALSE(CShadedTabCtrl::GetBackgroundBrush(&child, brush, origin));
    EXPECT_EQ(brush, white());
    EXPECT_EQ(origin, CPoint(7, 8));
    EXPECT_EQ(amend(child, CTLCOLOR_STATIC), white());
    EXPECT_EQ(amendAsMember(child, CTLCOLOR_STATIC), white());
    EXPECT_EQ(tabs->pictures, 0);
}

TEST_F(ShadedTabCtrl, WithoutUxThemeThereIsNone)
{
    const NoThemes missing;
    PatternTabs fresh;
    fresh.Create(WS_CHILD, CRect(0, 0, 50, 40), &frame, 5);
    CWnd text;
    text.CreateEx(0, L"STATIC", L"text", WS_CHILD, CRect(3, 4, 20, 20), &fresh, 6);
    HBRUSH brush = white();
    CPoint origin(7, 8);
    EXPECT_FALSE(fresh.GetBackgroundBrush(brush, origin, &text));
    EXPECT_FALSE(CShadedTabCtrl::GetBackgroundBrush(&text, brush, origin));
    EXPECT_EQ(brush, white());
    EXPECT_EQ(origin, CPoint(7, 8));
    EXPECT_EQ(amend(text, CTLCOLOR_STATIC), white());
    EXPECT_EQ(fresh.pictures, 0);
    fresh.DestroyWindow();
}

TEST_F(ShadedTabCtrl, ThemesMayGoAndComeWhileItIsShown)
{
    NEEDS_THEMES();
    child.SetWindowText(L"");
    present(frame);
    EXPECT_EQ(Picture::ofClient(child.m_hWnd).at(2, 3), pixelOf(32, 43));
    const auto changed = [this] {
        tabs->SendMessage(WM_THEMECHANGED);
        frame.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    };
    {
        const NoThemes off;
        changed();
        HBRUSH brush = white();
        CPoint origin;
        EXPECT_FALSE(CShadedTabCtrl::GetBackgroundBrush(&child, brush, origin));
        EXPECT_EQ(amend(child, CTLCOLOR_STATIC), white());
        EXPECT_EQ(Picture::ofClient(child.m_hWnd).at(2, 3), ::GetSysColor(COLOR_BTNFACE));
        tabs->SetWindowPos(nullptr, 0, 0, 190, 150, SWP_NOMOVE | SWP_NOZORDER);
        EXPECT_FALSE(CShadedTabCtrl::GetBackgroundBrush(&child, brush, origin))
            << "nor after a change of the size";
    }
    changed();
    EXPECT_EQ(Picture::ofClient(child.m_hWnd).at(2, 3), pixelOf(32, 43));
}

TEST_F(ShadedTabCtrl, ThemesThatGoWithoutAWordLeaveThePictureUntilTheNextChange)
{
    NEEDS_THEMES();
    HBRUSH brush = nullptr;
    CPoint origin;
    ASSERT_TRUE(CShadedTabCtrl::GetBackgroundBrush(&child, brush, origin));
    const NoThemes off;
    EXPECT_TRUE(CShadedTabCtrl::GetBackgroundBrush(&child, brush, origin)) << "taken once";
    tabs->SetWindowPos(nullptr, 0, 0, 190, 150, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_FALSE(CShadedTabCtrl::GetBackgroundBrush(&child, brush, origin)) << "taken anew with the size";
}

TEST_F(ShadedTabCtrl, WithoutAWindowThereIsNone)
{
    CShadedTabCtrl none;
    HBRUSH brush = white();
    CPoint origin;
    EXPECT_FALSE(none.GetBackgroundBrush(brush, origin, nullptr));
    EXPECT_EQ(brush, white());
}

TEST_F(ShadedTabCtrl, EachWindowOfTheObjectHasAPictureOfItsOwn)
{
    NEEDS_THEMES();
    PatternTabs again;
    HBRUSH brush = nullptr;
    CPoint origin;
    EXPECT_FALSE(again.GetBackgroundBrush(brush, origin, nullptr)) << "there is no window yet";
    for (const int size : {50, 80}) { // as in a dialog that is opened again and has another font then
        again.SubclassWindow(::CreateWindowExW(0, WC_TABCONTROLW, L"", WS_CHILD, 0, 0, size, size,
                                               frame.m_hWnd, nullptr, nullptr, nullptr));
        ASSERT_TRUE(again.GetBackgroundBrush(brush, origin, &again)) << size;
        const Picture picture(100, 10);
        const RECT all{0, 0, 100, 10};
        ::SetBrushOrgEx(picture.dc(), 0, 0, nullptr);
        ::FillRect(picture.dc(), &all, brush);
        EXPECT_EQ(picture.at(size - 1, 5), pixelOf(size - 1, 5));
        EXPECT_EQ(picture.at(size, 5), pixelOf(0, 5)) << "the pattern begins again";
        again.DestroyWindow();
    }
}

TEST_F(ShadedTabCtrl, NothingIsLostHoweverOftenItIsTaken)
{
    const auto cycle = [this] {
        PatternTabs fresh;
        fresh.Create(WS_CHILD, CRect(0, 0, 20, 20), &frame, 5);
        for (int size = 20; size < 30; ++size)
            fresh.SetWindowPos(nullptr, 0, 0, size, size, SWP_NOMOVE | SWP_NOZORDER);
        fresh.captureBackground();
        fresh.DestroyWindow();
    };
    cycle(); // what the platform keeps for itself
    const GdiCounter gdi;
    for (int i = 0; i < 20; ++i)
        cycle();
    EXPECT_EQ(gdi.grown(), 0);
}

// The brush

TEST_F(ShadedTabCtrl, TheBrushIsAlignedWithTheTabControl)
{
    NEEDS_THEMES();
    HBRUSH brush = nullptr;
    CPoint origin;
    ASSERT_TRUE(CShadedTabCtrl::GetBackgroundBrush(&child, brush, origin));
    EXPECT_EQ(origin, CPoint(-30, -40));
    const Picture picture(60, 20); // the child's client area
    const RECT all{0, 0, 60, 20};
    ::SetBrushOrgEx(picture.dc(), origin.x, origin.y, nullptr);
    ::FillRect(picture.dc(), &all, brush);
    EXPECT_EQ(picture.at(0, 0), pixelOf(30, 40));
    EXPECT_EQ(picture.at(59, 19), pixelOf(89, 59));
}

TEST_F(ShadedTabCtrl, RelativeToNothingMeansTheScreen)
{
    NEEDS_THEMES();
    HBRUSH brush = nullptr;
    CPoint origin;
    ASSERT_TRUE(tabs->GetBackgroundBrush(brush, origin, nullptr));
    EXPECT_EQ(origin, CPoint(120, 110));
    ASSERT_TRUE(tabs->GetBackgroundBrush(brush, origin, &frame));
    EXPECT_EQ(origin, CPoint(20, 10));
}

TEST_F(ShadedTabCtrl, WindowsWithinWindowsOnThePageFindIt)
{
    NEEDS_THEMES();
    const auto page = control(L"STATIC", WS_VISIBLE, CRect(5, 25, 195, 155));
    CWnd inner;
    inner.CreateEx(0, L"STATIC", L"x", WS_CHILD, CRect(7, 9, 40, 20), page.get(), 4);
    HBRUSH brush = nullptr;
    CPoint origin;
    ASSERT_TRUE(CShadedTabCtrl::GetBackgroundBrush(&inner, brush, origin));
    EXPECT_EQ(origin, CPoint(-12, -34));
    EXPECT_EQ(amend(*page, CTLCOLOR_DLG), brush) << "a dialog on the page";
}

TEST_F(ShadedTabCtrl, TemporaryObjectsFindItToo)
{
    NEEDS_THEMES();
    const HWND page = ::CreateWindowExW(0, L"STATIC", L"", WS_CHILD | WS_VISIBLE, 5, 25, 190, 130,
                                        tabs->m_hWnd, nullptr, nullptr, nullptr);
    const HWND inner =
        ::CreateWindowExW(0, L"STATIC", L"", WS_CHILD, 7, 9, 33, 11, page, nullptr, nullptr, nullptr);
    ASSERT_FALSE(CWnd::FromHandlePermanent(inner));
    HBRUSH brush = nullptr;
    CPoint origin;
    ASSERT_TRUE(CShadedTabCtrl::GetBackgroundBrush(CWnd::FromHandle(inner), brush, origin));
    EXPECT_EQ(origin, CPoint(-12, -34));
    EXPECT_EQ(amend(*CWnd::FromHandle(inner), CTLCOLOR_STATIC), brush);
    const HWND box = ::CreateWindowExW(0, L"BUTTON", L"", WS_CHILD | BS_GROUPBOX, 7, 9, 33, 11, page, nullptr,
                                       nullptr, nullptr);
    const HBRUSH solid = amend(*CWnd::FromHandle(box), CTLCOLOR_STATIC);
    EXPECT_EQ(solid, CShadedTabCtrl::ms_brushes.at(pixelOf(12, 34)));
    // A tab control without an object of the class is none.
    const HWND plain = ::CreateWindowExW(0, WC_TABCONTROLW, L"", WS_CHILD, 0, 0, 50, 50, frame.m_hWnd,
                                         nullptr, nullptr, nullptr);
    const HWND onPlain =
        ::CreateWindowExW(0, L"STATIC", L"", WS_CHILD, 7, 9, 33, 11, plain, nullptr, nullptr, nullptr);
    EXPECT_FALSE(CShadedTabCtrl::GetBackgroundBrush(CWnd::FromHandle(onPlain), brush, origin));
}

TEST_F(ShadedTabCtrl, OfSeveralTheNearestCounts)
{
    NEEDS_THEMES();
    PatternTabs inner;
    inner.Create(WS_CHILD, CRect(10, 30, 100, 100), tabs.get(), 6);
    CWnd wnd;
    wnd.CreateEx(0, L"STATIC", L"x", WS_CHILD, CRect(1, 2, 9, 9), &inner, 7);
    HBRUSH brush = nullptr;
    CPoint origin;
    ASSERT_TRUE(CShadedTabCtrl::GetBackgroundBrush(&wnd, brush, origin));
    EXPECT_EQ(origin, CPoint(-1, -2));
    ASSERT_TRUE(CShadedTabCtrl::GetBackgroundBrush(&inner, brush, origin))
        << "a tab control is not its own page";
    EXPECT_EQ(origin, CPoint(-10, -30));
    inner.DestroyWindow();
}

TEST_F(ShadedTabCtrl, AControlElsewhereKeepsItsBrush)
{
    HBRUSH brush = white();
    CPoint origin(1, 2);
    EXPECT_FALSE(CShadedTabCtrl::GetBackgroundBrush(&outside, brush, origin));
    EXPECT_FALSE(CShadedTabCtrl::GetBackgroundBrush(nullptr, brush, origin));
    EXPECT_EQ(brush, white());
    EXPECT_EQ(amend(outside, CTLCOLOR_STATIC), white());
    EXPECT_EQ(tabs->pictures, 0);
}

// Colours of controls

TEST_F(ShadedTabCtrl, ControlsGetThePatternAlignedAndTransparentTexts)
{
    NEEDS_THEMES();
    HBRUSH brush = nullptr;
    CPoint origin;
    ASSERT_TRUE(CShadedTabCtrl::GetBackgroundBrush(&child, brush, origin));
    for (const UINT type :
         {CTLCOLOR_STATIC, CTLCOLOR_BTN, CTLCOLOR_DLG, CTLCOLOR_SCROLLBAR, CTLCOLOR_MSGBOX}) {
        CClientDC dc(&child);
        dc.SetBkMode(OPAQUE);
        EXPECT_EQ(CShadedTabCtrl::AmendCtlColor(&dc, &child, type, white()), brush) << type;
        EXPECT_EQ(dc.GetBkMode(), TRANSPARENT);
        CPoint used;
        ::GetBrushOrgEx(dc, &used);
        EXPECT_EQ(used, origin);
    }
    EXPECT_EQ(amendAsMember(child, CTLCOLOR_STATIC), brush);
}

TEST_F(ShadedTabCtrl, TheBrushIsAlignedHoweverTheCoordinatesAreMoved)
{
    NEEDS_THEMES();
    const std::pair<std::function<void(HDC)>, CPoint> moves[] = {
        {[](HDC dc) { ::SetWindowOrgEx(dc, 5, 7, nullptr); }, CPoint(-35, -47)},
        {[](HDC dc) { ::SetViewportOrgEx(dc, 5, 7, nullptr); }, CPoint(-25, -33)},
        {[](HDC dc) {
             ::SetMapMode(dc, MM_ANISOTROPIC);
             ::SetWindowExtEx(dc, 1, 1, nullptr);
             ::SetViewportExtEx(dc, 2, 3, nullptr);
         },
         CPoint(-60, -120)},
        {[](HDC dc) {
             const XFORM moved{1, 0, 0, 1, 10, 20};
             ::SetGraphicsMode(dc, GM_ADVANCED);
             ::SetWorldTransform(dc, &moved);
         },
         CPoint(-20, -20)},
    };
    for (const auto& [move, origin] : moves) {
        CClientDC dc(&child); // which is at 30, 40
        move(dc.m_hDC);
        EXPECT_NE(CShadedTabCtrl::AmendCtlColor(&dc, &child, CTLCOLOR_STATIC, white()), white());
        CPoint used;
        ::GetBrushOrgEx(dc.m_hDC, &used);
        EXPECT_EQ(used, origin);
    }
}

TEST_F(ShadedTabCtrl, AControlThatOnlyLiesOnItIsServedWhereTheTabControlIsKnown)
{
    NEEDS_THEMES();
    outside.SetWindowPos(&CWnd::wndTop, 35, 45, 0, 0, SWP_NOSIZE); // a sibling of the tab control
    EXPECT_EQ(amend(outside, CTLCOLOR_STATIC), white());
    HBRUSH brush = nullptr;
    CPoint origin;
    ASSERT_TRUE(tabs->GetBackgroundBrush(brush, origin, &outside));
    EXPECT_EQ(origin, CPoint(20 - 35, 10 - 45));
    CClientDC dc(&outside);
    EXPECT_EQ(tabs->AmendCtlColor(&dc, CTLCOLOR_STATIC, white(), &outside), brush);
    CPoint used;
    ::GetBrushOrgEx(dc, &used);
    EXPECT_EQ(used, origin);
}

TEST_F(ShadedTabCtrl, EditsKeepTheirColours)
{
    const auto edit = control(L"EDIT", 0, CRect(30, 70, 90, 90));
    EXPECT_EQ(amend(*edit, CTLCOLOR_EDIT), white());
    EXPECT_EQ(amendAsMember(*edit, CTLCOLOR_EDIT), white());
}

TEST_F(ShadedTabCtrl, ListBoxesKeepTheirColoursWhereTheTabControlIsKnown)
{
    NEEDS_THEMES();
    const auto list = control(L"LISTBOX", 0, CRect(30, 70, 90, 120));
    HBRUSH brush = nullptr;
    CPoint origin;
    ASSERT_TRUE(CShadedTabCtrl::GetBackgroundBrush(list.get(), brush, origin));
    EXPECT_EQ(amendAsMember(*list, CTLCOLOR_LISTBOX), white());
    EXPECT_EQ(amend(*list, CTLCOLOR_LISTBOX), brush);
}

TEST_F(ShadedTabCtrl, AGroupBoxGetsTheColourUnderItsCorner)
{
    NEEDS_THEMES();
    const auto box = control(L"BUTTON", BS_GROUPBOX, CRect(33, 44, 90, 90));
    CClientDC dc(box.get());
    dc.SetBkMode(OPAQUE);
    dc.SetBrushOrg(CPoint(3, 5));
    const HBRUSH brush = CShadedTabCtrl::AmendCtlColor(&dc, box.get(), CTLCOLOR_STATIC, white());
    LOGBRUSH facts{};
    ASSERT_TRUE(::GetObjectW(brush, sizeof facts, &facts));
    EXPECT_EQ(facts.lbStyle, static_cast<UINT>(BS_SOLID));
    EXPECT_EQ(facts.lbColor, pixelOf(33, 44));
    EXPECT_EQ(dc.GetBkMode(), OPAQUE) << "left as it was";
    CPoint origin;
    ::GetBrushOrgEx(dc, &origin);
    EXPECT_EQ(origin, CPoint(3, 5));
    EXPECT_EQ(amendAsMember(*box, CTLCOLOR_STATIC), brush);
}

TEST_F(ShadedTabCtrl, GroupBoxesOverTheSameColourShareTheirBrush)
{
    NEEDS_THEMES();
    const auto one = control(L"BUTTON", BS_GROUPBOX, CRect(50, 60, 90, 90));
    const auto same = control(L"BUTTON", BS_GROUPBOX, CRect(50, 60, 120, 130));
    const auto other = control(L"BUTTON", BS_GROUPBOX, CRect(51, 60, 90, 90));
    const HBRUSH brush = amend(*one, CTLCOLOR_STATIC);
    const std::size_t known = CShadedTabCtrl::ms_brushes.size();
    EXPECT_EQ(amend(*same, CTLCOLOR_STATIC), brush);
    EXPECT_EQ(CShadedTabCtrl::ms_brushes.size(), known);
    EXPECT_EQ(CShadedTabCtrl::ms_brushes.at(pixelOf(50, 60)), brush);
    EXPECT_NE(amend(*other, CTLCOLOR_STATIC), brush);
    EXPECT_EQ(CShadedTabCtrl::ms_brushes.size(), known + 1);
}

TEST_F(ShadedTabCtrl, ManyGroupBoxesCostOneBrushAColour)
{
    NEEDS_THEMES();
    const auto box = control(L"BUTTON", BS_GROUPBOX, CRect(60, 70, 90, 90));
    amend(*box, CTLCOLOR_STATIC); // what the platform keeps for itself
    const GdiCounter gdi;
    const std::size_t known = CShadedTabCtrl::ms_brushes.size();
    for (int i = 0; i < 300; ++i) {
        box->SetWindowPos(nullptr, 61 + i % 3, 72, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        amend(*box, CTLCOLOR_STATIC);
    }
    EXPECT_EQ(CShadedTabCtrl::ms_brushes.size(), known + 3);
    EXPECT_EQ(gdi.grown(), 3);
}

TEST_F(ShadedTabCtrl, WithoutRoomForThePictureEveryControlKeepsItsBrush)
{
    NEEDS_THEMES();
    const auto failing = [](HDC, int, int) -> HBITMAP { return nullptr; };
    const auto noBrush = [](HBITMAP) -> HBRUSH { return nullptr; };
    const auto expectNothing = [this] {
        tabs->captureBackground();
        HBRUSH brush = white();
        CPoint origin(7, 8);
        EXPECT_FALSE(CShadedTabCtrl::GetBackgroundBrush(&child, brush, origin));
        EXPECT_EQ(brush, white());
        EXPECT_EQ(amend(child, CTLCOLOR_STATIC), white());
    };
    {
        const ImportPatch patch(L"ovomfc.dll", "CreateCompatibleBitmap",
                                reinterpret_cast<void*>(static_cast<HBITMAP (*)(HDC, int, int)>(failing)));
        expectNothing();
    }
    {
        const ImportPatch patch(L"ovomfc.dll", "CreatePatternBrush",
                                reinterpret_cast<void*>(static_cast<HBRUSH (*)(HBITMAP)>(noBrush)));
        expectNothing();
    }
    tabs->captureBackground();
    EXPECT_NE(amend(child, CTLCOLOR_STATIC), white());
}

TEST_F(ShadedTabCtrl, OnlyAGroupBoxIsOne)
{
    NEEDS_THEMES();
    HBRUSH pattern = nullptr;
    CPoint origin;
    const auto checkBox = control(L"BUTTON", BS_AUTOCHECKBOX, CRect(50, 60, 90, 90));
    const auto frameOnly = control(L"STATIC", SS_BLACKFRAME, CRect(50, 60, 90, 90)); // 7, as BS_GROUPBOX
    ASSERT_EQ(SS_BLACKFRAME, BS_GROUPBOX);
    ASSERT_TRUE(CShadedTabCtrl::GetBackgroundBrush(checkBox.get(), pattern, origin));
    EXPECT_EQ(amend(*checkBox, CTLCOLOR_STATIC), pattern);
    EXPECT_EQ(amend(*frameOnly, CTLCOLOR_STATIC), pattern);
    const auto groupBox = control(L"BUTTON", BS_GROUPBOX, CRect(50, 60, 90, 90));
    EXPECT_EQ(amend(*groupBox, CTLCOLOR_BTN), pattern);
}

TEST_F(ShadedTabCtrl, OfTheStyleOnlyTheKindOfButtonCounts)
{
    NEEDS_THEMES();
    HBRUSH pattern = nullptr;
    CPoint origin;
    ASSERT_TRUE(CShadedTabCtrl::GetBackgroundBrush(&child, pattern, origin));
    for (DWORD kind = 0; kind < 16; ++kind) {
        const auto button = control(L"BUTTON", 0, CRect(50, 60, 90, 90));
        ::SetWindowLongPtrW(button->m_hWnd, GWL_STYLE, WS_CHILD | BS_LEFTTEXT | BS_CENTER | kind);
        const HBRUSH brush = amend(*button, CTLCOLOR_STATIC);
        EXPECT_EQ(brush, kind == BS_GROUPBOX ? CShadedTabCtrl::ms_brushes.at(pixelOf(50, 60)) : pattern)
            << kind;
        EXPECT_EQ(amendAsMember(*button, CTLCOLOR_STATIC), brush) << kind;
    }
    // A class of another name is no group box, whatever it is derived from.
    WNDCLASS derived{};
    ::GetClassInfoW(nullptr, L"BUTTON", &derived);
    derived.lpszClassName = L"DerivedButton";
    derived.hInstance = ::GetModuleHandleW(nullptr);
    ::RegisterClassW(&derived);
    const auto other = control(L"DerivedButton", BS_GROUPBOX, CRect(50, 60, 90, 90));
    EXPECT_EQ(amend(*other, CTLCOLOR_STATIC), pattern);
    other->DestroyWindow();
    ::UnregisterClassW(L"DerivedButton", derived.hInstance);
}

TEST_F(ShadedTabCtrl, TheCaptionOfAGroupBoxHasTheColourUnderItsCorner)
{
    NEEDS_THEMES();
    const auto box = control(L"BUTTON", WS_VISIBLE | BS_GROUPBOX, CRect(33, 44, 150, 110));
    present(frame);
    EXPECT_GT(Picture::ofClient(box->m_hWnd).count(pixelOf(33, 44)), 20);
}

TEST_F(ShadedTabCtrl, MirroredThePictureIsInItsOwnCoordinates)
{
    NEEDS_THEMES();
    PatternTabs mirrored;
    mirrored.CreateEx(WS_EX_LAYOUTRTL, WS_CHILD, CRect(0, 0, 150, 90), &frame, 5);
    HBRUSH brush = nullptr;
    CPoint origin;
    ASSERT_TRUE(mirrored.GetBackgroundBrush(brush, origin, &mirrored));
    const Picture picture(150, 90);
    const RECT all{0, 0, 150, 90};
    ::SetBrushOrgEx(picture.dc(), 0, 0, nullptr);
    ::FillRect(picture.dc(), &all, brush);
    EXPECT_EQ(picture.at(0, 5), pixelOf(0, 5));
    EXPECT_EQ(picture.at(149, 5), pixelOf(149, 5));
    CWnd box;
    box.CreateEx(0, L"BUTTON", L"x", WS_CHILD | BS_GROUPBOX, CRect(33, 44, 90, 80), &mirrored, 6);
    const HBRUSH solid = amend(box, CTLCOLOR_STATIC);
    EXPECT_EQ(solid, CShadedTabCtrl::ms_brushes.at(pixelOf(33, 44)));
    mirrored.DestroyWindow();
}

TEST_F(ShadedTabCtrl, AGroupBoxBesideThePictureKeepsItsBrush)
{
    NEEDS_THEMES();
    const auto box = control(L"BUTTON", BS_GROUPBOX, CRect(400, 300, 450, 350));
    EXPECT_EQ(amend(*box, CTLCOLOR_STATIC), white());
}

TEST_F(ShadedTabCtrl, ItsOwnChildrenAreAmended)
{
    NEEDS_THEMES();
    HBRUSH brush = nullptr;
    CPoint origin;
    ASSERT_TRUE(CShadedTabCtrl::GetBackgroundBrush(&child, brush, origin));
    CClientDC dc(&child);
    const LRESULT result = tabs->SendMessage(WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc.m_hDC),
                                             reinterpret_cast<LPARAM>(child.m_hWnd));
    EXPECT_EQ(reinterpret_cast<HBRUSH>(result), brush);
}

TEST_F(ShadedTabCtrl, WhatLiesUnderAControlShowsThroughIt)
{
    NEEDS_THEMES();
    child.SetWindowText(L"");
    present(frame);
    const Picture shown = Picture::ofClient(child.m_hWnd);
    EXPECT_EQ(shown.at(2, 3), pixelOf(32, 43));
    EXPECT_EQ(shown.at(55, 17), pixelOf(85, 57));
}

// Painting that changes things

TEST_F(ShadedTabCtrl, PaintingMayDestroyTheWindow)
{
    NEEDS_THEMES();
    tabs->whilePainting = [this] { tabs->DestroyWindow(); };
    tabs->captureBackground();
    HBRUSH brush = white();
    CPoint origin;
    EXPECT_FALSE(tabs->GetBackgroundBrush(brush, origin, nullptr));
}

TEST_F(ShadedTabCtrl, PaintingMayDeleteTheObject)
{
    NEEDS_THEMES();
    const auto cycle = [this] {
        auto* const doomed = new PatternTabs;
        doomed->Create(WS_CHILD, CRect(0, 0, 60, 50), &frame, 5);
        doomed->whilePainting = [doomed] {
            doomed->DestroyWindow();
            delete doomed;
        };
        doomed->SetWindowPos(nullptr, 0, 0, 70, 60, SWP_NOMOVE | SWP_NOZORDER);
    };
    cycle(); // what the platform keeps for itself
    const GdiCounter gdi;
    for (int i = 0; i < 3; ++i)
        cycle();
    EXPECT_EQ(gdi.grown(), 0);
}

TEST_F(ShadedTabCtrl, PaintingMayChangeTheSize)
{
    NEEDS_THEMES();
    const GdiCounter gdi;
    tabs->whilePainting = [this] {
        tabs->whilePainting = [] {};
        tabs->SetWindowPos(nullptr, 0, 0, 90, 80, SWP_NOMOVE | SWP_NOZORDER);
    };
    tabs->captureBackground();
    HBRUSH brush = nullptr;
    CPoint origin;
    EXPECT_TRUE(tabs->GetBackgroundBrush(brush, origin, nullptr));
    EXPECT_EQ(gdi.grown(), 0);
}

TEST_F(ShadedTabCtrl, AnErrorWhilePaintingLeavesNoBrushAndLosesNothing)
{
    NEEDS_THEMES();
    tabs->whilePainting = [] { throw 5; };
    const GdiCounter gdi;
    EXPECT_THROW(tabs->captureBackground(), int);
    HBRUSH brush = white();
    CPoint origin;
    EXPECT_FALSE(tabs->GetBackgroundBrush(brush, origin, nullptr));
    tabs->whilePainting = [] {};
    tabs->captureBackground();
    EXPECT_TRUE(tabs->GetBackgroundBrush(brush, origin, nullptr));
    EXPECT_LE(gdi.grown(), 0);
}
