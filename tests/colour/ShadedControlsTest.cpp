// What lies under the controls on a shaded tab control shows through them. The page has another colour at
// each point, and is compared pixel by pixel with itself without the control.
#include "PickerScene.h"
#include "ShadedKinds.h"

#include <ovoui/colour/ShadedTabCtrl.h>
#include <ovoui/frame/ThemeData.h>

#include <gtest/gtest.h>

#include <memory>
#include <string_view>
#include <vector>

using namespace ovo::testkit;

namespace
{

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kGreen = RGB(0, 255, 0);

/// Another colour at each point.
const Picture& gradient()
{
    static const Picture picture = [] {
        Picture drawn(512, 512);
        for (int y = 0; y < drawn.height(); ++y)
            for (int x = 0; x < drawn.width(); ++x)
                ::SetPixelV(drawn.dc(), x, y, RGB(x & 0xFF, y & 0xFF, (x >> 8 << 6) | (y >> 8 << 7) | 8));
        return drawn;
    }();
    return picture;
}

/// A tab control in a theme of the test's own.
class GradientTabs : public CShadedTabCtrl
{
public:
    /// Paints the page in one colour, or in the gradient again, as after a change of the theme.
    void paintIn(COLORREF colour)
    {
        m_colour = colour;
        SendMessage(WM_THEMECHANGED);
        GetTopLevelParent()->RedrawWindow(nullptr, nullptr,
                                          RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    }

protected:
    afx_msg LRESULT OnPrintClient(WPARAM dc, LPARAM)
    {
        drawPage(reinterpret_cast<HDC>(dc));
        return 0;
    }
    afx_msg BOOL OnEraseBkgnd(CDC*) { return TRUE; }
    afx_msg void OnPaint()
    {
        CPaintDC dc(this);
        drawPage(dc.m_hDC);
    }
    DECLARE_MESSAGE_MAP()

private:
    void drawPage(HDC dc) const
    {
        CRect client;
        GetClientRect(&client);
        if (m_colour == CLR_NONE)
            ::BitBlt(dc, 0, 0, client.right, client.bottom, gradient().dc(), 0, 0, SRCCOPY);
        else
            ::FillRect(dc, &client, CBrush(m_colour));
    }

    COLORREF m_colour = CLR_NONE;
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

/// Tab control and dialog do not clip their children: group boxes and frames paint nothing but their lines.
class ShadedControls : public ::testing::TestWithParam<ControlKind>
{
protected:
    ShadedControls()
    {
        frame.CreateEx(0, AfxRegisterWndClass(0), L"frame", WS_POPUP | WS_CLIPCHILDREN, 100, 100, 420, 330,
                       nullptr, nullptr);
    }
    ~ShadedControls() override { frame.DestroyWindow(); }

    void createTabs(DWORD exStyle = 0)
    {
        tabs.CreateEx(exStyle, WS_CHILD | WS_VISIBLE, CRect(10, 10, 400, 310), &frame, 1);
    }

    std::unique_ptr<CWnd> control(CWnd& parent, CPoint at) const
    {
        auto wnd = std::make_unique<CWnd>();
        createControl(*wnd, GetParam(), parent, at);
        return wnd;
    }

    /// A dialog on the page that shows the page itself.
    static std::unique_ptr<PageDialog> page(CWnd& parent, CRect place = CRect(30, 30, 370, 290))
    {
        auto dialog = std::make_unique<PageDialog>();
        dialog->Create(kEmptyPageTemplate, &parent);
        dialog->SetWindowPos(nullptr, place.left, place.top, place.Width(), place.Height(), SWP_NOZORDER);
        dialog->ShowWindow(SW_SHOW);
        return dialog;
    }

    Picture shown(COLORREF pageColour)
    {
        tabs.paintIn(pageColour);
        return Picture::ofWindow(frame.m_hWnd);
    }

    /// Of every pixel that shows the page whichever colour that has: it shows what lies behind it.
    void expectPageShows(CWnd& wnd)
    {
        present(frame);
        CRect place;
        CRect origin;
        wnd.GetWindowRect(&place);
        frame.GetWindowRect(&origin);
        place.OffsetRect(-origin.left, -origin.top);
        const Picture red = shown(kRed);
        const Picture green = shown(kGreen);
        const Picture with = shown(CLR_NONE);
        wnd.ShowWindow(SW_HIDE);
        const Picture behind = shown(CLR_NONE);
        wnd.ShowWindow(SW_SHOWNA);

        int left = 0;
        int wrong = 0;
        CPoint first;
        for (int y = place.top; y < place.bottom; ++y)
            for (int x = place.left; x < place.right; ++x) {
                if (red.at(x, y) != kRed || green.at(x, y) != kGreen)
                    continue;
                ++left;
                if (with.at(x, y) != behind.at(x, y) && wrong++ == 0)
                    first = CPoint(x - place.left, y - place.top);
            }
        EXPECT_GE(left, GetParam().leaves);
        EXPECT_EQ(wrong, 0) << "of " << left << ", the first at " << first.x << ", " << first.y;
    }

    CWnd frame;
    GradientTabs tabs;
};

#define NEEDS_THEMES()                                                                                       \
    if (!CThemeData::getThemeData().IsAppThemed())                                                           \
    GTEST_SKIP() << "visual styles are off"

/// The layouts in which a kind is tried. Wine's toolbar moves the origin the wrong way when it lets its
/// parent paint from right to left, whatever the parent paints.
std::vector<DWORD> layoutsOf(const ControlKind& kind)
{
    constexpr DWORD kLeftToRight = 0;
    const bool leftToRightOnly = kind.windowClass == std::wstring_view(TOOLBARCLASSNAMEW);
    return leftToRightOnly ? std::vector{kLeftToRight} : std::vector<DWORD>{kLeftToRight, WS_EX_LAYOUTRTL};
}

} // namespace

TEST_P(ShadedControls, OnTheTabControlItself)
{
    NEEDS_THEMES();
    for (const DWORD layout : layoutsOf(GetParam())) {
        createTabs(layout);
        const auto wnd = control(tabs, {57, 61});
        expectPageShows(*wnd);
        tabs.DestroyWindow();
    }
}

TEST_P(ShadedControls, OnADialogOnThePage)
{
    NEEDS_THEMES();
    for (const DWORD layout : layoutsOf(GetParam())) {
        createTabs(layout);
        const auto dialog = page(tabs);
        const auto wnd = control(*dialog, {23, 41});
        expectPageShows(*wnd);
        tabs.DestroyWindow();
    }
}

TEST_P(ShadedControls, OnAChildDialogOfADialogOnThePage)
{
    NEEDS_THEMES();
    for (const DWORD layout : layoutsOf(GetParam())) {
        createTabs(layout);
        const auto dialog = page(tabs);
        const auto child = page(*dialog, CRect(20, 15, 300, 220));
        const auto wnd = control(*child, {23, 41});
        expectPageShows(*wnd);
        tabs.DestroyWindow();
    }
}

TEST_P(ShadedControls, InAGroupBox)
{
    NEEDS_THEMES();
    createTabs();
    const auto dialog = page(tabs);
    for (CWnd* const parent : {static_cast<CWnd*>(&tabs), static_cast<CWnd*>(dialog.get())}) {
        dialog->ShowWindow(parent == &tabs ? SW_HIDE : SW_SHOW);
        CButton box;
        box.Create(L"", WS_CHILD | WS_VISIBLE | BS_GROUPBOX, CRect(10, 10, 200, 150), parent, 3);
        const auto wnd = control(*parent, {31, 37});
        wnd->SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
        expectPageShows(*wnd);
    }
    tabs.DestroyWindow();
}

TEST_P(ShadedControls, ScrolledWithTheDialog)
{
    NEEDS_THEMES();
    createTabs();
    const auto dialog = page(tabs);
    const auto wnd = control(*dialog, {23, 141});
    present(frame);
    for (const CSize by : {CSize(0, -37), CSize(13, -24), CSize(-7, 5)}) {
        dialog->ScrollWindow(by.cx, by.cy);
        // What lies behind stays where it is, so all is painted anew.
        expectPageShows(*wnd);
    }
    tabs.DestroyWindow();
}

TEST_P(ShadedControls, AfterTheTabControlHasGrown)
{
    NEEDS_THEMES();
    createTabs();
    const auto wnd = control(tabs, {57, 61});
    present(frame);
    tabs.SetWindowPos(nullptr, 0, 0, 395, 305, SWP_NOMOVE | SWP_NOZORDER);
    wnd->SetWindowPos(nullptr, 290, 230, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    expectPageShows(*wnd);
    tabs.DestroyWindow();
}

INSTANTIATE_TEST_SUITE_P(Kinds, ShadedControls, ::testing::ValuesIn(controlKinds()),
                         [](const auto& info) { return std::string(info.param.name); });
