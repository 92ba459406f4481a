// What lies under the controls on a shaded tab control shows through them: every pixel that a control does
// not draw itself must be that of the page, which has another colour at each point.
#include "PickerScene.h"

#include <ovoui/colour/ShadedTabCtrl.h>
#include <ovoui/frame/ThemeData.h>

#include <gtest/gtest.h>

#include <memory>
#include <ostream>

using namespace ovotest;

namespace
{

constexpr int kPagePlace = 30; // of the child dialog on the tab control

COLORREF pageColour(int x, int y)
{
    return RGB(x & 0xFF, y & 0xFF, (x ^ y) & 0x7F);
}

void drawPage(HDC dc, CSize size)
{
    for (int y = 0; y < size.cy; ++y)
        for (int x = 0; x < size.cx; ++x)
            ::SetPixelV(dc, x, y, pageColour(x, y));
}

class GradientTabs : public CShadedTabCtrl
{
protected:
    afx_msg LRESULT OnPrintClient(WPARAM dc, LPARAM)
    {
        drawPage(reinterpret_cast<HDC>(dc), size());
        return 0;
    }
    afx_msg BOOL OnEraseBkgnd(CDC*) { return TRUE; }
    afx_msg void OnPaint()
    {
        CPaintDC dc(this);
        drawPage(dc.m_hDC, size());
    }
    DECLARE_MESSAGE_MAP()

private:
    CSize size() const
    {
        CRect client;
        GetClientRect(&client);
        return client.Size();
    }
};

BEGIN_MESSAGE_MAP(GradientTabs, CShadedTabCtrl)
    ON_MESSAGE(WM_PRINTCLIENT, &GradientTabs::OnPrintClient)
    ON_WM_ERASEBKGND()
    ON_WM_PAINT()
END_MESSAGE_MAP()

/// A dialog on a page, as hosts write it.
class PageDialog : public CDialog
{
protected:
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT type)
    {
        return CShadedTabCtrl::AmendCtlColor(dc, control, type, CDialog::OnCtlColor(dc, control, type));
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(PageDialog, CDialog)
    ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

/// A kind of control, and the part of its 90 by 30 pixels that it leaves to the page.
struct Kind
{
    const char* name;
    const wchar_t* windowClass;
    DWORD style;
    CRect empty;
};

void PrintTo(const Kind& kind, std::ostream* out)
{
    *out << kind.name;
}

const Kind kKinds[] = {
    {"Text", L"STATIC", SS_LEFT, {0, 0, 90, 30}},
    {"CentredText", L"STATIC", SS_CENTER, {0, 0, 90, 30}},
    {"PlainText", L"STATIC", SS_SIMPLE, {0, 0, 90, 30}},
    {"EtchedFrame", L"STATIC", SS_ETCHEDFRAME, {3, 3, 87, 27}},
    {"CheckBox", L"BUTTON", BS_AUTOCHECKBOX, {20, 0, 90, 30}},
    {"RadioButton", L"BUTTON", BS_AUTORADIOBUTTON, {20, 0, 90, 30}},
    {"ThreeStates", L"BUTTON", BS_AUTO3STATE, {20, 0, 90, 30}},
    {"GroupBox", L"BUTTON", BS_GROUPBOX, {4, 16, 86, 27}},
    {"Slider", TRACKBAR_CLASSW, TBS_HORZ | TBS_NOTICKS, {0, 24, 90, 30}},
    {"SliderWithTics", TRACKBAR_CLASSW, TBS_HORZ | TBS_AUTOTICKS, {0, 0, 90, 2}},
};

/// Tab control and dialog do not clip their children: group boxes and frames paint nothing but their lines.
class ShadedControls : public ::testing::TestWithParam<Kind>
{
protected:
    ShadedControls()
    {
        frame.CreateEx(0, AfxRegisterWndClass(0), L"frame", WS_POPUP | WS_CLIPCHILDREN, 100, 100, 420, 330,
                       nullptr, nullptr);
        tabs.Create(WS_CHILD | WS_VISIBLE, CRect(10, 10, 400, 310), &frame, 1);
    }
    ~ShadedControls() override { frame.DestroyWindow(); }

    std::unique_ptr<CWnd> control(CWnd& parent, CPoint at) const
    {
        const Kind& kind = GetParam();
        auto wnd = std::make_unique<CWnd>();
        wnd->CreateEx(0, kind.windowClass, L"", WS_CHILD | WS_VISIBLE | kind.style, CRect(at, CSize(90, 30)),
                      &parent, 9);
        return wnd;
    }

    /// A dialog on the page that shows the page itself.
    std::unique_ptr<PageDialog> page()
    {
        auto dialog = std::make_unique<PageDialog>();
        dialog->Create(kEmptyPageTemplate, &tabs);
        dialog->SetWindowPos(nullptr, kPagePlace, kPagePlace, 340, 260, SWP_NOZORDER);
        dialog->ShowWindow(SW_SHOW);
        return dialog;
    }

    /// Every pixel that the control leaves to the page is the page's.
    void expectPageShows(CWnd& wnd)
    {
        present(frame);
        const Picture picture = Picture::ofClient(tabs.m_hWnd);
        CPoint place(0, 0);
        ::MapWindowPoints(wnd.m_hWnd, tabs.m_hWnd, &place, 1);
        int wrong = 0;
        CPoint first;
        const CRect empty = GetParam().empty;
        for (int y = empty.top; y < empty.bottom; ++y)
            for (int x = empty.left; x < empty.right; ++x)
                if (picture.at(place.x + x, place.y + y) != pageColour(place.x + x, place.y + y) &&
                    wrong++ == 0)
                    first = CPoint(x, y);
        EXPECT_EQ(wrong, 0) << "the first at " << first.x << ", " << first.y;
    }

    CWnd frame;
    GradientTabs tabs;
};

#define NEEDS_THEMES()                                                                                       \
    if (!CThemeData::getThemeData().IsAppThemed())                                                           \
    GTEST_SKIP() << "visual styles are off"

} // namespace

TEST_P(ShadedControls, OnTheTabControlItself)
{
    NEEDS_THEMES();
    const auto wnd = control(tabs, {57, 61});
    expectPageShows(*wnd);
}

TEST_P(ShadedControls, OnADialogOnThePage)
{
    NEEDS_THEMES();
    const auto dialog = page();
    const auto wnd = control(*dialog, {23, 41});
    expectPageShows(*wnd);
    dialog->DestroyWindow();
}

TEST_P(ShadedControls, InAGroupBoxOnADialogOnThePage)
{
    NEEDS_THEMES();
    const auto dialog = page();
    CButton box;
    box.Create(L"", WS_CHILD | WS_VISIBLE | BS_GROUPBOX, CRect(10, 10, 200, 120), dialog.get(), 3);
    const auto wnd = control(*dialog, {31, 37});
    wnd->SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    expectPageShows(*wnd);
    dialog->DestroyWindow();
}

TEST_P(ShadedControls, ScrolledWithTheDialog)
{
    NEEDS_THEMES();
    const auto dialog = page();
    const auto wnd = control(*dialog, {23, 141});
    present(frame);
    for (const int by : {-37, -24, 5}) {
        dialog->ScrollWindow(0, by);
        // What lies behind stays where it is, so all is painted anew.
        dialog->RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
        expectPageShows(*wnd);
    }
    dialog->DestroyWindow();
}

TEST_P(ShadedControls, AfterTheTabControlHasGrown)
{
    NEEDS_THEMES();
    const auto wnd = control(tabs, {57, 61});
    present(frame);
    tabs.SetWindowPos(nullptr, 0, 0, 395, 305, SWP_NOMOVE | SWP_NOZORDER);
    wnd->SetWindowPos(nullptr, 290, 230, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    expectPageShows(*wnd);
}

INSTANTIATE_TEST_SUITE_P(Kinds, ShadedControls, ::testing::ValuesIn(kKinds),
                         [](const auto& info) { return std::string(info.param.name); });
