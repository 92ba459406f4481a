// The picker's dialogs as hosts have them: in a message loop of their own, in a property sheet, by their
// message maps.
#include "PickerScene.h"
#include <testkit/WindowCounter.h>

#include <ovoui/colour/ShadedTabCtrl.h>
#include <ovoui/frame/ThemeData.h>

#include <afxdlgs.h>

using namespace ovo::testkit;

namespace
{

class PickerHost : public PickerScene
{
protected:
    /// A message loop as hosts write it who know of no framework: it ends with the dialog.
    static void runLoop(const HWND dialog)
    {
        MSG message;
        while (::IsWindow(dialog) && ::GetMessageW(&message, nullptr, 0, 0) > 0)
            if (!::IsDialogMessageW(dialog, &message)) {
                ::TranslateMessage(&message);
                ::DispatchMessageW(&message);
            }
    }

    HWND item(int id) const { return picker->GetDlgItem(id)->m_hWnd; }
};

/// One line of a message map.
struct Entry
{
    UINT message;
    UINT code;
    UINT id;
    bool operator==(const Entry&) const = default;
};

void PrintTo(const Entry& entry, std::ostream* out)
{
    *out << "message " << entry.message << ", code " << entry.code << ", id " << entry.id;
}

std::vector<Entry> entriesOf(const AFX_MSGMAP* map)
{
    std::vector<Entry> entries;
    for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries; entry->pfnThunk; ++entry)
        entries.push_back({entry->nMessage, entry->nCode, entry->nID});
    return entries;
}

/// Shows the maps of the two classes.
struct Maps : ColPickerDlg
{
    static const AFX_MSGMAP* ofDialog() { return ColPickerDlg::GetThisMessageMap(); }
    static const AFX_MSGMAP* ofBase() { return ColPickerDlgBase::GetThisMessageMap(); }
};

/// A picker on a page: Enter is the sheet's.
class PickerOnPage : public HostPicker
{
public:
    using HostPicker::HostPicker;
    std::function<void()> onOk;

protected:
    void OnOK() override { onOk(); }
};

/// A property page whose tab control is shaded, with a picker on the tab's page.
class PickerPage : public CPropertyPage
{
public:
    PickerPage()
        : CPropertyPage(kPickerPageTemplate)
        , picker(kPageTemplate, TestApp::instance(), kOrange, nullptr, nullptr)
    {
    }

    CShadedTabCtrl tabs;
    PickerOnPage picker;

protected:
    void DoDataExchange(CDataExchange* exchange) override
    {
        CPropertyPage::DoDataExchange(exchange);
        DDX_Control(exchange, kPickerTabs, tabs);
    }
    BOOL OnInitDialog() override
    {
        CPropertyPage::OnInitDialog();
        tabs.InsertItem(0, L"Leaves");
        picker.tabs = &tabs;
        picker.onOk = [this] { static_cast<CPropertySheet*>(GetParent())->PressButton(PSBTN_OK); };
        picker.Create(kPageTemplate, &tabs);
        CRect page;
        tabs.GetClientRect(&page);
        tabs.AdjustRect(FALSE, &page);
        picker.MoveWindow(&page);
        picker.ShowWindow(SW_SHOW);
        return TRUE;
    }
};

/// A sheet whose own tab control is shaded. Its pages lie on it, but are no children of it.
class ShadedSheet : public CPropertySheet
{
public:
    using CPropertySheet::CPropertySheet;

    CShadedTabCtrl tabs;

    BOOL OnInitDialog() override
    {
        const BOOL result = CPropertySheet::OnInitDialog();
        tabs.SubclassWindow(GetTabControl()->m_hWnd);
        return result;
    }
};

} // namespace

// The host's loop

TEST_F(PickerHost, KeysWorkInALoopWithIsDialogMessage)
{
    open();
    const HWND wnd = picker->m_hWnd;
    HWND reached = nullptr;
    const HWND behind = ::GetNextDlgTabItem(wnd, picker->m_value1, FALSE);
    auto acting = user.then([&] { picker->m_value1.SetFocus(); })
                      .then([&] { picker->m_value1.SetSel(0, -1); })
                      .type(L"51")
                      .key(VK_TAB)
                      .then([&] { reached = ::GetFocus(); })
                      .waitFor("the number", [&] { return picker->told.size() == 1; })
                      .then([&] { picker->m_value2.SetFocus(); })
                      .then([&] { picker->m_value2.SetSel(0, -1); })
                      .type(L"204")
                      .key(VK_RETURN)
                      .start();
    runLoop(wnd);
    acting.finish();
    EXPECT_FALSE(picker->m_hWnd);
    EXPECT_EQ(reached, behind);
    expectColour(picker->GetColour(), 0.2, 0.8, 0);
    EXPECT_EQ(picker->told, (std::vector<bool>{true, true}));
}

TEST_F(PickerHost, TheMouseWorksInALoopWithIsDialogMessage)
{
    open();
    const HWND wnd = picker->m_hWnd;
    auto acting =
        user.then([&] { picker->told.clear(); })
            .drag(Spot{*picker, picker->centre()}, Spot{*picker, picker->centre() + CSize(9, 4)})
            .waitFor("the end of the drag", [&] { return !picker->told.empty() && picker->told.back(); })
            .click(Spot{[&] { return item(IDCANCEL); }})
            .start();
    runLoop(wnd);
    acting.finish();
    EXPECT_FALSE(picker->m_hWnd);
    EXPECT_NE(picker->GetColour().colorref(), kOrange.colorref()) << "the last colour, whichever way";
}

TEST_F(PickerHost, TheLoopMayCloseItOnTheStackAndOnTheHeap)
{
    const WindowCounter windows;
    {
        Picker local(TestApp::instance(), ColPickerModeHLS, kOrange, nullptr, nullptr);
        local.createColPickerDlgBase();
        auto closing = user.waitFor("the dialog", [&] { return local.IsWindowVisible() != FALSE; })
                           .key(VK_ESCAPE)
                           .start();
        runLoop(local.m_hWnd);
        closing.finish();
        EXPECT_FALSE(local.m_hWnd);
        expectColour(local.GetColour(), 1, 0.5, 0);
    }
    auto* const heap = new Picker(TestApp::instance(), ColPickerModeHLS, kOrange, nullptr, nullptr);
    bool gone = false;
    heap->onGone = [&] {
        gone = true;
        delete heap;
    };
    heap->createColPickerDlgBase();
    auto closing =
        user.waitFor("the dialog", [&] { return gone || heap->IsWindowVisible(); }).key(VK_RETURN).start();
    runLoop(heap->m_hWnd);
    closing.finish();
    EXPECT_TRUE(gone);
    EXPECT_EQ(windows.grown(), 0);
}

TEST_F(PickerHost, ModelessItIsTheLibrarysDialogWhateverTheTemplate)
{
    HostPicker dialog(kBareTemplate, TestApp::instance(), kOrange, nullptr, nullptr);
    dialog.createColPickerDlgBase();
    ASSERT_TRUE(dialog.m_hWnd);
    EXPECT_TRUE(dialog.GetDlgItem(kCaption3)) << "which the bare template has not";
    EXPECT_TRUE(dialog.IsWindowVisible());
    EXPECT_FALSE(dialog.GetDlgItem(kValueAlpha)->IsWindowVisible()) << "the host's template has no alpha";
    dialog.DestroyWindow();
}

TEST_F(PickerHost, DuringTheDialogTheColourIsTheOneShown)
{
    std::vector<COLORREF> seen;
    picker = std::make_unique<Picker>(TestApp::instance(), ColPickerModeRGB, kOrange, nullptr, nullptr);
    auto acting = user.waitFor("the dialog", [&] { return picker->m_hWnd && picker->IsWindowVisible(); })
                      .then([&] { seen.push_back(picker->GetColour().colorref()); })
                      .then([&] { picker->m_value3.SetFocus(); })
                      .then([&] { picker->m_value3.SetSel(0, -1); })
                      .type(L"255")
                      .then([&] { seen.push_back(picker->GetColour().colorref()); })
                      .key(VK_TAB)
                      .then([&] { seen.push_back(picker->GetColour().colorref()); })
                      .key(VK_ESCAPE)
                      .start();
    EXPECT_EQ(picker->DoModal(), IDCANCEL);
    acting.finish();
    const COLORREF orange = RGB(255, 128, 0);
    const COLORREF pink = RGB(255, 128, 255);
    EXPECT_EQ(seen, (std::vector{orange, orange, pink})) << "typing counts when the edit is left";
    EXPECT_EQ(picker->GetColour().colorref(), pink) << "the last colour, though cancelled";
}

TEST_F(PickerHost, EnterTakesOverWhatWasTypedBeforeTheDialogHearsOfIt)
{
    PickerOnPage dialog(kSwatchTemplate, TestApp::instance(), kOrange, nullptr, nullptr);
    std::vector<COLORREF> seen;
    dialog.onOk = [&] { seen.push_back(dialog.GetColour().colorref()); };
    dialog.Create(kSwatchTemplate, nullptr);
    ready(dialog);
    dialog.m_value1.SetFocus();
    dialog.m_value1.SetSel(0, -1);
    user.type(L"51").key(VK_RETURN);
    EXPECT_EQ(seen, std::vector{RGB(51, 128, 0)});
    dialog.DestroyWindow();
}

// Centring

TEST_F(PickerHost, WithoutAWindowToCentreOnItIsCentredOnItsParent)
{
    CWnd parent;
    parent.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP | WS_VISIBLE, 90, 60, 720, 540, nullptr,
                    nullptr);
    Picker dialog(TestApp::instance(), ColPickerModeRGB, kOrange, nullptr, &parent);
    dialog.createColPickerDlgBase();
    CRect place;
    dialog.GetWindowRect(&place);
    EXPECT_NEAR(place.CenterPoint().x, 90 + 360, 1);
    EXPECT_NEAR(place.CenterPoint().y, 60 + 270, 1);
    dialog.DestroyWindow();
    parent.DestroyWindow();
}

// Message maps

TEST_F(PickerHost, TheMessageMapHasItsEntriesInOrder)
{
    const UINT command = WM_COMMAND;
    EXPECT_EQ(entriesOf(Maps::ofBase()), (std::vector<Entry>{{WM_PAINT, 0, 0},
                                                             {WM_HSCROLL, 0, 0},
                                                             {WM_MOUSEMOVE, 0, 0},
                                                             {WM_LBUTTONDOWN, 0, 0},
                                                             {WM_LBUTTONUP, 0, 0},
                                                             {WM_LBUTTONDBLCLK, 0, 0},
                                                             {WM_DESTROY, 0, 0},
                                                             {command, EN_KILLFOCUS, kValue1},
                                                             {command, EN_KILLFOCUS, kValue2},
                                                             {command, EN_KILLFOCUS, kValue3},
                                                             {command, CBN_SELCHANGE, kSpace},
                                                             {WM_SYSCOLORCHANGE, 0, 0},
                                                             {WM_HELP, 0, 0},
                                                             {WM_CTLCOLOR, 0, 0},
                                                             {WM_CAPTURECHANGED, 0, 0}}));
    EXPECT_EQ(entriesOf(Maps::ofDialog()), (std::vector<Entry>{{command, EN_KILLFOCUS, kValueAlpha}}));
}

// A property sheet

TEST_F(PickerHost, OnAShadedTabOfAPropertyPageItShowsThePage)
{
    CWnd owner;
    owner.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP | WS_VISIBLE, 20, 20, 800, 600, nullptr, nullptr);
    PickerPage page;
    CPropertySheet sheet(L"Options", &owner);
    sheet.AddPage(&page);
    auto acting = user.waitFor("the sheet", [&] { return sheet.m_hWnd && shownDialog() == sheet.m_hWnd; })
                      .then([&] {
                          CWnd* const caption = page.picker.GetDlgItem(kCaption1);
                          HBRUSH expected = nullptr;
                          CPoint origin;
                          const bool themed = CThemeData::getThemeData().IsAppThemed();
                          ASSERT_EQ(page.tabs.GetBackgroundBrush(expected, origin, caption), themed);
                          CClientDC dc(caption);
                          const auto asked = [&](UINT message, CWnd& control) {
                              return reinterpret_cast<HBRUSH>(
                                  page.picker.SendMessage(message, reinterpret_cast<WPARAM>(dc.m_hDC),
                                                          reinterpret_cast<LPARAM>(control.m_hWnd)));
                          };
                          const HBRUSH brush = asked(WM_CTLCOLORSTATIC, *caption);
                          if (themed) {
                              EXPECT_EQ(brush, expected);
                              EXPECT_EQ(dc.GetBkMode(), TRANSPARENT);
                              CPoint used;
                              ::GetBrushOrgEx(dc, &used);
                              EXPECT_EQ(used, origin);
                              EXPECT_EQ(asked(WM_CTLCOLORDLG, page.picker), expected);
                              EXPECT_NE(asked(WM_CTLCOLOREDIT, page.picker.m_value1), expected);
                          } else {
                              EXPECT_TRUE(brush) << "the default one";
                          }
                      })
                      .then([&] { page.picker.m_value1.SetFocus(); })
                      .then([&] { page.picker.m_value1.SetSel(0, -1); })
                      .type(L"51")
                      .key(VK_RETURN)
                      .start();
    EXPECT_EQ(sheet.DoModal(), IDOK);
    acting.finish();
    EXPECT_FALSE(page.picker.m_hWnd);
    EXPECT_NEAR(page.picker.GetColour().r(), 0.2, 1e-9) << "Enter takes over what was typed";
    owner.DestroyWindow();
}

TEST_F(PickerHost, OnAPropertyPageItShowsTheSheetsOwnTabControl)
{
    if (!CThemeData::getThemeData().IsAppThemed())
        GTEST_SKIP() << "visual styles are off";
    CPropertyPage page(kPickerPageTemplate);
    ShadedSheet sheet(L"Options");
    sheet.AddPage(&page);
    ASSERT_TRUE(sheet.Create());
    HostPicker onPage(kPageTemplate, TestApp::instance(), kOrange, nullptr, nullptr);
    onPage.tabs = &sheet.tabs;
    onPage.Create(kPageTemplate, &page);
    onPage.ShowWindow(SW_SHOW);
    CWnd* const caption = onPage.GetDlgItem(kCaption1);
    HBRUSH expected = nullptr;
    CPoint origin;
    ASSERT_TRUE(sheet.tabs.GetBackgroundBrush(expected, origin, caption));
    CPoint place(0, 0);
    ::MapWindowPoints(sheet.tabs.m_hWnd, caption->m_hWnd, &place, 1);
    EXPECT_EQ(origin, place);
    CClientDC dc(caption);
    EXPECT_EQ(
        reinterpret_cast<HBRUSH>(onPage.SendMessage(WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc.m_hDC),
                                                    reinterpret_cast<LPARAM>(caption->m_hWnd))),
        expected);
    EXPECT_FALSE(CShadedTabCtrl::GetBackgroundBrush(caption, expected, origin)) << "it is above no control";
    onPage.DestroyWindow();
    sheet.DestroyWindow();
}
