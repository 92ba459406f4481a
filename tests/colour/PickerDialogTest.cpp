// The life of the picker's dialogs.
#include "PickerScene.h"
#include <testkit/RecordingParent.h>
#include <testkit/WindowCounter.h>

#include <ovoui/colour/ShadedTabCtrl.h>
#include <ovoui/frame/ThemeData.h>

using namespace ovo::testkit;

namespace
{

class PickerDialog : public PickerScene
{
protected:
    /// Runs a story while a picker is shown modally. What the story needs of the dialog is in `picker`.
    template <class Tell>
    INT_PTR showModally(const Colour& colour, Tell tell)
    {
        picker = std::make_unique<Picker>(TestApp::instance(), ColPickerModeRGB, colour, nullptr, nullptr);
        auto opened =
            user.waitFor("the dialog", [this] { return picker->m_hWnd && picker->IsWindowVisible(); });
        auto acting = tell(std::move(opened)).start();
        return picker->DoModal();
    }
};

} // namespace

// Modal

TEST_F(PickerDialog, OkKeepsTheColour)
{
    const INT_PTR answer = showModally(kOrange, [this](Story story) {
        return story.then([this] { picker->SetColour(picker.get(), Colour::rgb(0, 1, 0), false); })
            .click(Spot{[this] { return picker->GetDlgItem(IDOK)->m_hWnd; }});
    });
    EXPECT_EQ(answer, IDOK);
    EXPECT_FALSE(picker->m_hWnd);
    expectColour(picker->GetColour(), 0, 1, 0);
}

TEST_F(PickerDialog, OkRoundsNoColourWhereNothingIsTyped)
{
    const Colour odd = Colour::rgba(0.1234, 0.5678, 0.4321, -1);
    for (const auto mode : {ColPickerModeRGB, ColPickerModeHLS, ColPickerModeHSV}) {
        open(mode, odd);
        picker->m_space.SetFocus();
        picker->SendMessage(WM_COMMAND, IDOK);
        EXPECT_FALSE(picker->m_hWnd);
        expectColour(picker->GetColour(), odd.r(), odd.g(), odd.b(), 0);
        EXPECT_EQ(picker->GetColour().a(), -1) << "it has none still";
        EXPECT_TRUE(picker->told.empty());
    }
}

TEST_F(PickerDialog, TheColourIsKnownBeforeDuringAndAfter)
{
    const Colour grey = Colour::hlsa(Angle::degrees(77), 0.5, 0, -1);
    Picker dialog(TestApp::instance(), ColPickerModeHLS, grey, nullptr, nullptr);
    EXPECT_EQ(dialog.GetColour().h_hls().degrees(), 77) << "a grey keeps its hue";
    expectColour(dialog.GetColour(), 0.5, 0.5, 0.5);
    dialog.createColPickerDlgBase();
    EXPECT_EQ(dialog.GetColour().h_hls().degrees(), 77);
    dialog.SetColour(&dialog, Colour::rgb(0, 0, 1), false);
    expectColour(dialog.GetColour(), 0, 0, 1);
    dialog.DestroyWindow();
    expectColour(dialog.GetColour(), 0, 0, 1);
}

TEST_F(PickerDialog, EveryAlphaComesBackUnchanged)
{
    for (const double alpha : {-1.0, 0.0, 0.5, 1.0}) {
        open(ColPickerModeHSV, Colour::rgba(0.2, 0.4, 0.6, alpha));
        EXPECT_EQ(picker->GetColour().a(), alpha);
        EXPECT_EQ(picker->m_valueAlpha.IsWindowVisible() != FALSE, alpha >= 0) << alpha;
        picker->DestroyWindow();
        EXPECT_EQ(picker->GetColour().a(), alpha);
        expectColour(picker->GetColour(), 0.2, 0.4, 0.6, 0);
    }
}

TEST_F(PickerDialog, EnterInAnEditAppliesItAndCloses)
{
    const INT_PTR answer = showModally(kOrange, [this](Story story) {
        return story.then([this] { picker->m_value1.SetFocus(); })
            .then([this] { picker->m_value1.SetSel(0, -1); })
            .type(L"17")
            .key(VK_RETURN);
    });
    EXPECT_EQ(answer, IDOK);
    EXPECT_NEAR(picker->GetColour().r(), 17 / 255.0, 1e-9);
    EXPECT_EQ(picker->told, (std::vector<bool>{true})) << "once";
}

TEST_F(PickerDialog, EscapeCloses)
{
    EXPECT_EQ(showModally(kOrange, [](Story story) { return story.key(VK_ESCAPE); }), IDCANCEL);
}

TEST_F(PickerDialog, F1ShowsNoHelp)
{
    showModally(kOrange, [](Story story) { return story.key(VK_F1).key(VK_ESCAPE); });
    EXPECT_TRUE(TestApp::instance().helps().empty());
    open();
    HELPINFO info{};
    info.cbSize = sizeof info;
    EXPECT_TRUE(picker->SendMessage(WM_HELP, 0, reinterpret_cast<LPARAM>(&info)));
}

TEST_F(PickerDialog, ItOpensAgainWithItsFirstColour)
{
    for (int i = 0; i < 2; ++i) {
        if (!picker)
            picker =
                std::make_unique<Picker>(TestApp::instance(), ColPickerModeRGB, kOrange, nullptr, nullptr);
        auto acting =
            user.waitFor("the dialog", [this] { return picker->m_hWnd && picker->IsWindowVisible(); })
                .then([this] {
                    EXPECT_EQ(picker->text(kValue2), L"128");
                    picker->SetColour(picker.get(), Colour::rgb(0, 0, 1), false);
                    picker->EndDialog(IDOK);
                })
                .start();
        EXPECT_EQ(picker->DoModal(), IDOK);
        expectColour(picker->GetColour(), 0, 0, 1);
    }
}

TEST_F(PickerDialog, ItIsCentredOnTheWindowGiven)
{
    CWnd target;
    target.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP | WS_VISIBLE, 60, 40, 700, 500, nullptr,
                    nullptr);
    Picker dialog(TestApp::instance(), ColPickerModeRGB, kOrange, &target, nullptr);
    dialog.createColPickerDlgBase();
    CRect place;
    dialog.GetWindowRect(&place);
    EXPECT_NEAR(place.CenterPoint().x, 60 + 350, 1);
    EXPECT_NEAR(place.CenterPoint().y, 40 + 250, 1);
    dialog.DestroyWindow();
    target.DestroyWindow();
}

// Modeless

TEST_F(PickerDialog, ModelessItBelongsToItsParentAndIsShown)
{
    RecordingParent parent;
    present(parent);
    Picker dialog(TestApp::instance(), ColPickerModeRGB, kOrange, nullptr, &parent);
    dialog.createColPickerDlgBase();
    EXPECT_TRUE(dialog.IsWindowVisible());
    EXPECT_EQ(::GetWindow(dialog.m_hWnd, GW_OWNER), parent.m_hWnd);
    EXPECT_TRUE(parent.IsWindowEnabled());
    dialog.DestroyWindow();
}

TEST_F(PickerDialog, ModelessOkAndCancelDestroyTheWindow)
{
    for (const int id : {IDOK, IDCANCEL}) {
        open();
        picker->SendMessage(WM_COMMAND, id);
        EXPECT_FALSE(picker->m_hWnd) << id;
    }
    open();
    picker->SendMessage(WM_CLOSE);
    user.waitFor("the end", [this] { return !picker->m_hWnd; });
}

TEST_F(PickerDialog, ModelessOkTakesOverWhatIsBeingTyped)
{
    open();
    picker->m_value1.SetFocus();
    picker->m_value1.SetWindowText(L"34");
    // A host's loop that only calls IsDialogMessage.
    MSG enter{picker->m_value1.m_hWnd, WM_KEYDOWN, VK_RETURN, 0, 0, {}};
    EXPECT_TRUE(::IsDialogMessageW(picker->m_hWnd, &enter));
    EXPECT_FALSE(picker->m_hWnd);
    EXPECT_NEAR(picker->GetColour().r(), 34 / 255.0, 1e-9);
}

TEST_F(PickerDialog, ModelessOnTheHeapItMayDeleteItself)
{
    const WindowCounter windows;
    auto* const dialog = new Picker(TestApp::instance(), ColPickerModeRGB, kOrange, nullptr, nullptr);
    bool gone = false;
    dialog->onGone = [&] {
        gone = true;
        delete dialog;
    };
    dialog->createColPickerDlgBase();
    dialog->SendMessage(WM_COMMAND, IDCANCEL);
    EXPECT_TRUE(gone);
    EXPECT_EQ(windows.grown(), 0);
}

TEST_F(PickerDialog, AnObjectThatGoesTakesItsWindowAlong)
{
    for (int i = 0; i < 20; ++i) {
        open();
        const HWND wnd = picker->m_hWnd;
        picker->m_value2.SetFocus();
        picker->m_value2.SetWindowText(L"3"); // which losing the focus would take over
        picker.reset();
        EXPECT_FALSE(::IsWindow(wnd));
    }
}

TEST_F(PickerDialog, ModelessItMayBeOpenedAgain)
{
    open();
    picker->DestroyWindow();
    picker->createColPickerDlgBase();
    EXPECT_TRUE(picker->IsWindowVisible());
    picker->paint();
    EXPECT_EQ(picker->text(kValue2), L"128");
}

TEST_F(PickerDialog, WithoutSwatchesAllCustomColoursAreOne)
{
    struct Reaching : ColPickerDlg
    {
        using ColPickerDlg::ColPickerDlg;
        using ColPickerDlg::customCols;
    };
    Reaching one(TestApp::instance(), ColPickerModeRGB, kOrange, nullptr, nullptr);
    Reaching other(TestApp::instance(), ColPickerModeHSV, kOrange, nullptr, nullptr);
    for (int i = 0; i < 18; ++i) {
        EXPECT_EQ(&one.customCols(i), &one.customCols(0)) << i;
        EXPECT_EQ(&other.customCols(i), &one.customCols(0)) << i;
    }
}

// Templates of hosts

TEST_F(PickerDialog, AHostsTemplateBeginsWithRedGreenAndBlueWithoutAlpha)
{
    openSwatches(kSwatchTemplate, Colour::rgba(1, 0.5, 0, 0.5));
    EXPECT_EQ(host->m_mode, ColPickerModeRGB);
    EXPECT_FALSE(host->m_alphaEnabled);
    EXPECT_EQ(host->text(kValue2), L"128");
    EXPECT_EQ(host->GetColour().a(), 0.5);
}

TEST_F(PickerDialog, AHostsTemplateMayHaveOnlySomeControls)
{
    openSwatches(kBareTemplate);
    host->UpdateWindow();
    EXPECT_TRUE(host->m_wheelRect.IsRectEmpty());
    EXPECT_EQ(host->text(kValue2), L"128") << "the patch need not be there to show it";
    host->m_slider1.SetPos(51);
    host->SendMessage(WM_HSCROLL, SB_THUMBPOSITION, reinterpret_cast<LPARAM>(host->m_slider1.m_hWnd));
    expectColour(host->GetColour(), 0.2, 128 / 255.0, 0);
    host->m_value2.SetWindowText(L"255");
    host->DoKillfocusColpickerValues(host.get());
    expectColour(host->GetColour(), 0.2, 1, 0);
    EXPECT_EQ(host->text(kValue2), L"255");
    for (const UINT message : {WM_LBUTTONDOWN, WM_MOUSEMOVE, WM_LBUTTONUP, WM_LBUTTONDBLCLK})
        host->SendMessage(message, 0, MAKELPARAM(5, 60));
    EXPECT_EQ(host->told, (std::vector<bool>{true, true}));
}

// Messages

TEST_F(PickerDialog, OnAShadedTabControlsGetItsBrush)
{
    if (!CThemeData::getThemeData().IsAppThemed())
        GTEST_SKIP() << "visual styles are off";
    CWnd frame;
    frame.CreateEx(0, AfxRegisterWndClass(0), L"frame", WS_POPUP, 100, 100, 460, 360, nullptr, nullptr);
    CShadedTabCtrl tabs;
    tabs.Create(WS_CHILD | WS_VISIBLE, CRect(10, 10, 440, 340), &frame, 1);
    HostPicker page(kPageTemplate, TestApp::instance(), kOrange, nullptr, nullptr);
    page.tabs = &tabs;
    page.Create(kPageTemplate, &tabs);
    CWnd* const caption = page.GetDlgItem(kCaption1);
    HBRUSH expected = nullptr;
    CPoint origin;
    ASSERT_TRUE(tabs.GetBackgroundBrush(expected, origin, caption));
    CClientDC dc(caption);
    const auto asked = [&](UINT message, CWnd& control) {
        return reinterpret_cast<HBRUSH>(page.SendMessage(message, reinterpret_cast<WPARAM>(dc.m_hDC),
                                                         reinterpret_cast<LPARAM>(control.m_hWnd)));
    };
    EXPECT_EQ(asked(WM_CTLCOLORSTATIC, *caption), expected);
    EXPECT_NE(asked(WM_CTLCOLOREDIT, page.m_value1), expected);
    page.tabs = nullptr;
    EXPECT_NE(asked(WM_CTLCOLORSTATIC, *caption), expected) << "the member form needs to be told";
    page.DestroyWindow();
    frame.DestroyWindow();
}

TEST_F(PickerDialog, EveryCallOfTheHostMayCloseItWhileItOpens)
{
    const auto attempt = [](auto call, bool throws) {
        Picker dialog(TestApp::instance(), ColPickerModeRGB, kOrange, nullptr, nullptr);
        dialog.*call = [&dialog, throws] {
            if (throws)
                throw OvoError(L"Host");
            dialog.DestroyWindow();
        };
        try {
            dialog.createColPickerDlgBase();
        } catch (const OvoError&) {
        }
        EXPECT_EQ(dialog.m_hWnd != nullptr, throws);
        if (dialog.m_hWnd)
            dialog.DestroyWindow();
    };
    for (const bool throws : {false, true}) {
        attempt(&Picker::onLoad, throws);
        attempt(&Picker::onSave, throws);
    }
}

TEST_F(PickerDialog, TheListOfModelsShowsThreeItems)
{
    open();
    COMBOBOXINFO info{};
    info.cbSize = sizeof info;
    ASSERT_TRUE(picker->m_space.GetComboBoxInfo(&info));
    picker->m_space.ShowDropDown(TRUE);
    CRect list;
    ::GetClientRect(info.hwndList, &list);
    picker->m_space.ShowDropDown(FALSE);
    EXPECT_EQ(list.Height() / picker->m_space.GetItemHeight(0), 3);
}

namespace
{

/// The heights that combo boxes of this thread are given while this object lives.
class ComboHeights
{
public:
    ComboHeights()
    {
        s_heights.clear();
        m_hook = ::SetWindowsHookExW(WH_CALLWNDPROC, &hear, nullptr, ::GetCurrentThreadId());
    }
    ~ComboHeights() { ::UnhookWindowsHookEx(m_hook); }
    ComboHeights(const ComboHeights&) = delete;
    ComboHeights& operator=(const ComboHeights&) = delete;

    static bool had(int height) { return std::ranges::count(s_heights, height) > 0; }

private:
    static LRESULT CALLBACK hear(int code, WPARAM wParam, LPARAM lParam)
    {
        const auto& call = *reinterpret_cast<const CWPSTRUCT*>(lParam);
        wchar_t name[16]{};
        if (call.message == WM_WINDOWPOSCHANGING && ::GetClassNameW(call.hwnd, name, 16) &&
            std::wstring_view(name) == L"ComboBox")
            s_heights.push_back(reinterpret_cast<const WINDOWPOS*>(call.lParam)->cy);
        return ::CallNextHookEx(nullptr, code, wParam, lParam);
    }

    static inline std::vector<int> s_heights;
    HHOOK m_hook;
};

} // namespace

TEST_F(PickerDialog, TheListOfModelsHasRoomForThreeItems)
{
    const ComboHeights heights; // the platform makes the list smaller when it opens
    open();
    CRect closed;
    picker->m_space.GetWindowRect(&closed);
    const int line = picker->m_space.GetItemHeight(-1);
    const int borders = 2 * ::GetSystemMetrics(SM_CYBORDER);
    EXPECT_TRUE(heights.had(closed.Height() + 3 * line + borders));
}

// The library's own template

namespace
{

struct Item
{
    int id;
    CRect place; // in dialog units
};

/// What is shown of a dialog, in dialog units.
std::vector<Item> itemsOf(CDialog& dialog)
{
    std::vector<Item> items;
    CRect unit(0, 0, 4, 8);
    dialog.MapDialogRect(&unit);
    for (HWND item = ::GetWindow(dialog, GW_CHILD); item; item = ::GetWindow(item, GW_HWNDNEXT)) {
        const int id = ::GetDlgCtrlID(item);
        if (!::IsWindowVisible(item) && id != kWheel && id != kPatch)
            continue;
        CRect place;
        ::GetWindowRect(item, &place);
        dialog.ScreenToClient(&place);
        // Half a pixel is lost in each rounding.
        items.push_back(
            {id, CRect(::MulDiv(place.left, 4, unit.right), ::MulDiv(place.top, 8, unit.bottom),
                       ::MulDiv(place.right, 4, unit.right), ::MulDiv(place.bottom, 8, unit.bottom))});
    }
    return items;
}

} // namespace

TEST_F(PickerDialog, ItsControlsKeepTheMarginsAndNeverOverlap)
{
    open(ColPickerModeHLS, Colour::rgba(1, 0.5, 0, 0.5));
    const std::vector<Item> items = itemsOf(*picker);
    CRect unit(0, 0, 4, 8);
    picker->MapDialogRect(&unit);
    CRect client;
    picker->GetClientRect(&client);
    const CRect room(6, 6, ::MulDiv(client.right, 4, unit.right) - 6,
                     ::MulDiv(client.bottom, 8, unit.bottom) - 6);
    EXPECT_GE(items.size(), 17u) << "with alpha all of them are shown";
    for (const Item& item : items) {
        CRect inside;
        inside.IntersectRect(&item.place, &room);
        EXPECT_EQ(inside, item.place) << item.id << ": the margin is 7 units";
        for (const Item& other : items) {
            CRect common;
            EXPECT_TRUE(item.id == other.id || !common.IntersectRect(&item.place, &other.place))
                << item.id << " and " << other.id;
        }
    }
}

TEST_F(PickerDialog, CaptionsHaveRoomForTextsHalfAsLongAgain)
{
    open();
    CClientDC dc(picker.get());
    CFont* const before = dc.SelectObject(picker->GetFont());
    CRect caption;
    picker->GetDlgItem(kCaption1)->GetClientRect(&caption);
    for (UINT id = 20212; id <= 20218; ++id) {
        CString text;
        ASSERT_TRUE(text.LoadString(id)) << id;
        EXPECT_FALSE(text.IsEmpty());
        text.Remove(L'&');
        EXPECT_LE(dc.GetTextExtent(text).cx * 3 / 2, caption.Width()) << id;
    }
    for (UINT id = 20219; id <= 20221; ++id) {
        CString text;
        EXPECT_TRUE(text.LoadString(id) && !text.IsEmpty()) << id;
    }
    dc.SelectObject(before);
}
