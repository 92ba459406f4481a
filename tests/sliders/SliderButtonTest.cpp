// The slider button with real input: clicks, the drag in one movement, keys, what the host is asked and told,
// and what the host may do meanwhile.
#include "SliderButtonScene.h"

#include <support/Perishing.h>
#include <testkit/GdiCounter.h>
#include <testkit/GuiThread.h>
#include <testkit/ImportPatch.h>
#include <testkit/WindowCounter.h>

#include <ovoui/frame/Geometry.h>

#include <commctrl.h>

#include <atomic>
#include <stdexcept>
#include <thread>
#include <utility>

using namespace ovo::testkit;

namespace
{

constexpr UINT kChanged = CSliderButton::kValueChanged;
constexpr UINT kReleased = CSliderButton::kReleased;

class SliderButton : public SliderButtonScene
{
protected:
    void open()
    {
        user.click(Spot{*button}).waitFor("the popup", &isOpen);
        parent.log().clear();
    }
};

int s_hooks = 0; ///< those that the library has set and not removed

HHOOK WINAPI countingSet(int kind, HOOKPROC procedure, HINSTANCE module, DWORD thread)
{
    ++s_hooks;
    return ::SetWindowsHookExW(kind, procedure, module, thread);
}

BOOL WINAPI countingUnhook(HHOOK hook)
{
    --s_hooks;
    return ::UnhookWindowsHookEx(hook);
}

/// Does a deed when a window becomes the active one, the first time.
class WhenActivated
{
public:
    WhenActivated(HWND window, std::function<void()> deed)
        : m_window(window)
        , m_deed(std::move(deed))
    {
        ::SetWindowSubclass(window, &hear, 1, reinterpret_cast<DWORD_PTR>(this));
    }
    ~WhenActivated() { ::RemoveWindowSubclass(m_window, &hear, 1); }
    WhenActivated(const WhenActivated&) = delete;
    WhenActivated& operator=(const WhenActivated&) = delete;

    bool isDone() const { return m_deed == nullptr; }

private:
    static LRESULT CALLBACK hear(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                 DWORD_PTR self)
    {
        auto& waiting = reinterpret_cast<WhenActivated*>(self)->m_deed;
        if (message == WM_ACTIVATE && LOWORD(wParam) != WA_INACTIVE)
            if (const auto deed = std::exchange(waiting, nullptr))
                deed();
        return ::DefSubclassProc(window, message, wParam, lParam);
    }

    HWND m_window;
    std::function<void()> m_deed;
};

int shownPopups()
{
    int count = 0;
    HWND dialog = nullptr;
    while ((dialog = ::FindWindowExW(nullptr, dialog, L"#32770", nullptr)) != nullptr)
        count += ::IsWindowVisible(dialog) ? 1 : 0;
    return count;
}

} // namespace

TEST_F(SliderButton, ThePopupWatchesMessagesOnlyWhileItIsOpen)
{
    const ImportPatch set(L"ovoui.dll", "SetWindowsHookExW", reinterpret_cast<void*>(&countingSet));
    const ImportPatch unhook(L"ovoui.dll", "UnhookWindowsHookEx", reinterpret_cast<void*>(&countingUnhook));
    s_hooks = 0;
    show();
    open();
    EXPECT_EQ(s_hooks, 1);
    user.key(VK_ESCAPE).waitFor("no popup", &isClosed);
    EXPECT_EQ(s_hooks, 0);
}

// Opening and closing

TEST_F(SliderButton, AClickOpensThePopupAndASecondOneClosesIt)
{
    show();
    user.click(Spot{*button}).waitFor("the popup", &isOpen);
    EXPECT_TRUE(told().empty()) << "nothing has happened yet";
    EXPECT_EQ(::GetFocus(), other.m_hWnd) << "the focus stays where it was";
    EXPECT_EQ(::GetActiveWindow(), parent.m_hWnd) << "so does the activation";

    user.click(Spot{*button}).waitFor("the popup to go", &isClosed);
    EXPECT_EQ(told(), (std::vector<UINT>{kReleased}));
    EXPECT_EQ(::GetFocus(), buddy.m_hWnd);
}

TEST_F(SliderButton, AQuickSecondClickClosesItToo)
{
    show();
    user.doubleClick(Spot{*button}).waitFor("the popup to go", &isClosed);
    EXPECT_EQ(told(), (std::vector<UINT>{kReleased}));
}

TEST_F(SliderButton, TheParentIsToldOfTheReleaseAfterTheFocusCameBack)
{
    class Watching : public CWnd
    {
    public:
        CSliderButton* button = nullptr;
        HWND focus = nullptr;
        WPARAM buddy = 0;
        LPARAM lParam = 1;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM l) override
        {
            if (message == kReleased) {
                focus = ::GetFocus();
                buddy = wParam;
                lParam = l;
            }
            return CWnd::WindowProc(message, wParam, l);
        }
    } watching;
    CRect place;
    parent.GetClientRect(&place);
    watching.Create(nullptr, L"", WS_CHILD | WS_VISIBLE, place, &parent, 20);
    buddy.SetParent(&watching);
    show();
    button->SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    user.click(Spot{*button})
        .waitFor("the popup", &isOpen)
        .click(Spot{*button})
        .waitFor("the popup to go", &isClosed);
    EXPECT_EQ(watching.focus, buddy.m_hWnd);
    EXPECT_EQ(watching.buddy, reinterpret_cast<WPARAM>(buddy.m_hWnd));
    EXPECT_EQ(watching.lParam, 0);
}

TEST_F(SliderButton, AClickElsewhereClosesIt)
{
    show();
    open();
    user.click(Spot{other}).waitFor("the popup to go", &isClosed);
    EXPECT_EQ(told(), (std::vector<UINT>{kReleased}));
    EXPECT_EQ(::GetFocus(), other.m_hWnd) << "the click itself counts as well";
}

TEST_F(SliderButton, AClickOnTheWindowsBackgroundClosesIt)
{
    show();
    open();
    user.click(Spot{parent, CPoint(250, 100)}).waitFor("the popup to go", &isClosed);
    EXPECT_EQ(told(), (std::vector<UINT>{kReleased}));
}

TEST_F(SliderButton, AClickElsewhereClosesThePopupThatStayedOpenLonger)
{
    CSliderButton second(utils);
    second.SubclassWindow(::CreateWindowExW(0, L"Static", L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 102, 60,
                                            16, 22, parent, reinterpret_cast<HMENU>(10), nullptr, nullptr));
    second.SetBuddy(other);
    show();
    open();
    second.SetFocus();
    user.key(VK_SPACE).waitFor("the second popup", [] { return shownPopups() == 2; });
    button->SetFocus();
    user.key(VK_SPACE).waitFor("the first popup to go", [] { return shownPopups() == 1; });
    EXPECT_EQ(told(), (std::vector<UINT>{kReleased}));
    user.click(Spot{parent, CPoint(250, 12)}).waitFor("the second popup to go", &isClosed);
}

TEST_F(SliderButton, LosingTheProgramsActivationClosesIt)
{
    show();
    open();
    ::SendMessageW(popup(), WM_ACTIVATEAPP, FALSE, 0);
    user.waitFor("the release", [&] { return !told().empty(); });
    EXPECT_TRUE(isClosed());
    EXPECT_EQ(told(), (std::vector<UINT>{kReleased}));
}

TEST_F(SliderButton, ThePopupOpensInFrontOfOtherWindows)
{
    show();
    CRect under;
    button->GetWindowRect(&under);
    CWnd palette;
    palette.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP | WS_VISIBLE,
                     CRect(under.left - 250, under.bottom, under.right + 250, under.bottom + 100), &parent,
                     0);
    for (int time = 1; time <= 2; ++time) {
        palette.SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
        open();
        CRect place;
        ::GetWindowRect(popup(), &place);
        EXPECT_EQ(::GetAncestor(::WindowFromPoint(place.CenterPoint()), GA_ROOT), popup()) << time;
        user.click(Spot{*button}).waitFor("the popup to go", &isClosed);
    }
}

TEST_F(SliderButton, TheFocusOfThePopupIsItsSliders)
{
    show();
    open();
    ::SetFocus(popup());
    EXPECT_EQ(::GetFocus(), slider());
}

TEST_F(SliderButton, AnotherThreadsWindowThatIsActivatedClosesIt)
{
    show();
    open();
    std::atomic<bool> done = false;
    std::thread elsewhere([&] { // as another program does that the user goes to with Alt+Tab
        const HWND window = ::CreateWindowExW(0, L"Static", L"elsewhere", WS_POPUP | WS_VISIBLE, 10, 10, 80,
                                              40, nullptr, nullptr, ::GetModuleHandleW(nullptr), nullptr);
        ::SetForegroundWindow(window);
        while (!done) {
            MSG message;
            while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
                ::DispatchMessageW(&message);
            ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
        }
        ::DestroyWindow(window);
    });
    user.waitFor("the release", [&] { return !told().empty(); });
    done = true;
    elsewhere.join();
    EXPECT_TRUE(isClosed());
    EXPECT_EQ(told(), (std::vector<UINT>{kReleased}));
}

TEST_F(SliderButton, AnActivePopupClosesWhenAnotherWindowIsActivated)
{
    show();
    open();
    user.click(Spot{[] { return CPoint(thumbX(), middleOfSlider()); }}).waitFor("the activation", [] {
        return ::GetActiveWindow() == popup();
    });
    EXPECT_EQ(::GetFocus(), slider()) << "the popup hands the focus to its slider";
    parent.SetActiveWindow();
    user.waitFor("the release", [&] { return !told().empty() && told().back() == kReleased; });
    EXPECT_TRUE(isClosed());
    GuiThread::settle();
    const std::vector<UINT> messages = told();
    EXPECT_EQ(std::count(messages.begin(), messages.end(), kReleased), 1)
        << "hiding does not count once more";
}

TEST_F(SliderButton, TheDeactivatedPopupTellsItsButtonOnce)
{
    class Listening : public CSliderButton
    {
    public:
        using CSliderButton::CSliderButton;
        int told = 0;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            told += message == CPopupSlider::kDeactivated ? 1 : 0;
            return CSliderButton::WindowProc(message, wParam, lParam);
        }
    } listening(utils);
    listening.SubclassWindow(button->UnsubclassWindow());
    listening.SetBuddy(buddy);
    show();
    user.click(Spot{listening})
        .waitFor("the popup", &isOpen)
        .click(Spot{[] { return CPoint(thumbX(), middleOfSlider()); }})
        .waitFor("the activation", [] { return ::GetActiveWindow() == popup(); });
    parent.SetActiveWindow(); // hiding the popup would take the activation from it once more
    user.waitFor("the message", [&] { return listening.told > 0; });
    GuiThread::settle();
    EXPECT_EQ(listening.told, 1);
    EXPECT_TRUE(isClosed());
}

TEST_F(SliderButton, EveryChangeIsPaintedAtOnce)
{
    show();
    const Picture released = Picture::ofClient(*button);
    for (const WORD key : {VK_SPACE, VK_SPACE}) {
        button->SendMessage(WM_KEYDOWN, key);
        EXPECT_FALSE(button->GetUpdateRect(nullptr));
        EXPECT_EQ(Picture::ofClient(*button).differences(released) > 0, isOpen());
    }
}

TEST_F(SliderButton, SettingsCountFromTheNextTimeOn)
{
    setBuddyText(L"50");
    show();
    open();
    button->SetRange(40, 60);
    button->SetPages(4);
    EXPECT_EQ(::SendMessageW(slider(), TBM_GETRANGEMAX, 0, 0), 100);
    EXPECT_EQ(::SendMessageW(slider(), TBM_GETPAGESIZE, 0, 0), 10);
    user.click(Spot{*button}).waitFor("the popup to go", &isClosed);
    open();
    EXPECT_EQ(::SendMessageW(slider(), TBM_GETRANGEMIN, 0, 0), 40);
    EXPECT_EQ(::SendMessageW(slider(), TBM_GETRANGEMAX, 0, 0), 60);
    EXPECT_EQ(::SendMessageW(slider(), TBM_GETPAGESIZE, 0, 0), 5);
    EXPECT_TRUE(told().empty()) << "and tell nobody";
}

TEST_F(SliderButton, ThePostedMessageReleasesIt)
{
    show();
    open();
    EXPECT_EQ(button->SendMessage(3606), 0);
    EXPECT_EQ(told(), (std::vector<UINT>{kReleased}));
    EXPECT_EQ(button->SendMessage(3606), 0);
    EXPECT_EQ(told(), (std::vector<UINT>{kReleased})) << "only when pressed";
}

// The place of the popup

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

// The drag in one movement

TEST_F(SliderButton, PressDragReleaseIsOneMovement)
{
    setBuddyText(L"50");
    show();
    int before = 0;
    user.press(Spot{*button})
        .waitFor("the popup", &isOpen)
        .then([&] { before = sliderPos(); })
        .moveBy(30, 0)
        .waitFor("the value", [&] { return buddyText() != L"50"; })
        .release()
        .waitFor("the popup to go", &isClosed);
    EXPECT_EQ(before, 50);
    EXPECT_GT(std::stoi(buddyText()), 50);
    const std::vector<UINT> messages = told();
    ASSERT_GE(messages.size(), 2u);
    EXPECT_EQ(messages.back(), kReleased);
    EXPECT_EQ(std::count(messages.begin(), messages.end(), kChanged), static_cast<long>(messages.size()) - 1);
    EXPECT_EQ(::GetFocus(), buddy.m_hWnd);
}

TEST_F(SliderButton, ADragBeyondTheEndsStopsThere)
{
    setBuddyText(L"50");
    show();
    user.press(Spot{*button}).waitFor("the popup", &isOpen).moveBy(600, 0).then([&] {
        EXPECT_EQ(buddyText(), L"100");
    });
    EXPECT_TRUE(isClosed()) << "the story let the button go";
    user.press(Spot{*button}).waitFor("the popup", &isOpen).moveBy(-299, 0).moveBy(-299, 0).then([&] {
        EXPECT_EQ(buddyText(), L"0");
    });
}

TEST_F(SliderButton, ASmallMovementIsAClick)
{
    setBuddyText(L"50");
    show();
    user.press(Spot{*button}).waitFor("the popup", &isOpen).moveBy(2, 1).release();
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(buddyText(), L"50");
    EXPECT_TRUE(told().empty());
}

TEST_F(SliderButton, ADragThatNeverReachesTheThumbIsAClick)
{
    setBuddyText(L"90");
    show({-60, 200});
    user.press(Spot{*button}).waitFor("the popup", &isOpen).moveBy(8, -8).moveBy(0, -20).release();
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(buddyText(), L"90");
    EXPECT_TRUE(told().empty());
    EXPECT_NE(::GetCapture(), button->m_hWnd);
    user.moveBy(60, 20);
    EXPECT_EQ(buddyText(), L"90") << "let go, the pointer takes nothing along";
}

TEST_F(SliderButton, AThumbToTheRightWaitsUntilThePointerIsThere)
{
    setBuddyText(L"90");
    show({-60, 200}); // the popup cannot go as far to the left as the thumb would have it
    CPoint press;
    int thumb = 0;
    user.press(Spot{*button}).waitFor("the popup", &isOpen).then([&] {
        ::GetCursorPos(&press);
        thumb = thumbX() - press.x;
    });
    ASSERT_GT(thumb, 20);
    user.click(Spot{other}).waitFor("the popup to go", &isClosed);
    setBuddyText(L"90");
    user.press(Spot{*button})
        .waitFor("the popup", &isOpen)
        .moveBy(thumb - 8, 0)
        .then([&] { EXPECT_EQ(buddyText(), L"90") << "not there yet"; })
        .moveBy(30, 0)
        .waitFor("the value", [&] { return buddyText() != L"90"; })
        .release();
    EXPECT_GT(std::stoi(buddyText()), 95);
    EXPECT_TRUE(isClosed());
}

TEST_F(SliderButton, AThumbToTheLeftWaitsUntilThePointerIsThere)
{
    setBuddyText(L"10");
    const CRect work(GetWorkArea(CRect(0, 0, 10, 10)));
    show({work.right - 125, 200});
    int thumb = 0;
    user.press(Spot{*button}).waitFor("the popup", &isOpen).then([&] {
        CPoint press;
        ::GetCursorPos(&press);
        thumb = press.x - thumbX();
    });
    ASSERT_GT(thumb, 20);
    user.click(Spot{other}).waitFor("the popup to go", &isClosed);
    user.press(Spot{*button})
        .waitFor("the popup", &isOpen)
        .moveBy(8 - thumb, 0)
        .then([&] { EXPECT_EQ(buddyText(), L"10") << "not there yet"; })
        .moveBy(-30, 0)
        .waitFor("the value", [&] { return buddyText() != L"10"; })
        .release();
    EXPECT_EQ(buddyText(), L"0");
}

TEST_F(SliderButton, InsideThePopupTheThumbComesToThePointer)
{
    setBuddyText(L"90");
    show({-60, 200});
    user.press(Spot{*button})
        .waitFor("the popup", &isOpen)
        .moveBy(0, 24)
        .waitFor("the value", [&] { return buddyText() != L"90"; })
        .release();
    EXPECT_LT(std::stoi(buddyText()), 90);
}

TEST_F(SliderButton, LosingTheCaptureEndsTheDragOnly)
{
    setBuddyText(L"50");
    show();
    user.press(Spot{*button})
        .waitFor("the popup", &isOpen)
        .moveBy(30, 0)
        .waitFor("the value", [&] { return buddyText() != L"50"; })
        .then([&] {
            ::ReleaseCapture();
            parent.log().clear();
        })
        .moveBy(20, 0)
        .release();
    EXPECT_TRUE(told().empty());
    EXPECT_TRUE(isOpen());
}

TEST_F(SliderButton, WithoutTheCaptureMovementsMeanNothing)
{
    setBuddyText(L"50");
    show();
    const auto send = [&](UINT message, int x) {
        button->SendMessage(message, MK_LBUTTON, MAKELPARAM(x, 5));
    };
    send(WM_LBUTTONDOWN, 5);
    send(WM_MOUSEMOVE, 30);
    const std::wstring dragged = buddyText();
    EXPECT_NE(dragged, L"50");
    ::ReleaseCapture();
    send(WM_MOUSEMOVE, 60);
    EXPECT_EQ(buddyText(), dragged);
    send(WM_LBUTTONUP, 60);
    EXPECT_TRUE(isOpen());
}

// Keyboard

TEST_F(SliderButton, DialogsDoNotTakeItForAStaticControl)
{
    CStatic label;
    label.Create(L"", WS_CHILD | WS_VISIBLE, CRect(10, 90, 100, 110), &parent, 20);
    const LRESULT usual = label.SendMessage(WM_GETDLGCODE);
    ASSERT_TRUE(usual & DLGC_STATIC);
    EXPECT_EQ(button->SendMessage(WM_GETDLGCODE), usual & ~DLGC_STATIC);
}

TEST_F(SliderButton, TabGoesThroughItInADialog)
{
    class Form : public CDialog
    {
    public:
        void create()
        {
            struct
            {
                DLGTEMPLATE head{WS_POPUP | WS_VISIBLE | WS_CAPTION, WS_EX_CONTROLPARENT, 0, 20, 20, 120, 60};
                WORD menu = 0;
                WORD windowClass = 0;
                WORD title = 0;
            } empty;
            CreateIndirect(&empty.head, nullptr);
        }
    } form;
    form.create();
    buddy.SetParent(&form);
    button->SetParent(&form);
    other.SetParent(&form);
    button->SetWindowPos(&buddy, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    other.SetWindowPos(button.get(), 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    present(form);
    buddy.SetFocus();
    user.key(VK_TAB).waitFor("the focus", [&] { return ::GetFocus() == button->m_hWnd; });
    user.key(VK_TAB).waitFor("the next one", [&] { return ::GetFocus() == other.m_hWnd; });
    user.holding(VK_SHIFT).key(VK_TAB).waitFor("the focus", [&] { return ::GetFocus() == button->m_hWnd; });
    user.key(VK_DOWN).waitFor("the popup", [] { return slider() && isOpen(); });
    EXPECT_EQ(::GetFocus(), button->m_hWnd) << "the dialog did not take the key";
    user.key(VK_RIGHT).waitFor("the value", [&] { return buddyText() == L"1"; });
    user.key(VK_ESCAPE).waitFor("the old text", [&] { return buddyText().empty(); });
    EXPECT_TRUE(form.IsWindowVisible()) << "Escape closed the popup alone";
}

TEST_F(SliderButton, SpaceOpensAndCloses)
{
    show();
    button->SetFocus();
    user.key(VK_SPACE).waitFor("the popup", &isOpen);
    EXPECT_EQ(::GetFocus(), button->m_hWnd);
    user.key(VK_SPACE).waitFor("the popup to go", &isClosed);
    EXPECT_EQ(told(), (std::vector<UINT>{kReleased}));
    EXPECT_EQ(::GetFocus(), buddy.m_hWnd);
}

TEST_F(SliderButton, DownOpensAndTheKeysMoveTheSlider)
{
    setBuddyText(L"50");
    show();
    button->SetFocus();
    user.key(VK_DOWN).waitFor("the popup", &isOpen);
    EXPECT_EQ(buddyText(), L"50") << "the key that opens moves nothing";
    const struct
    {
        WORD key;
        const wchar_t* text;
    } keys[] = {{VK_RIGHT, L"51"}, {VK_LEFT, L"50"},  {VK_DOWN, L"51"}, {VK_UP, L"50"},
                {VK_NEXT, L"60"},  {VK_PRIOR, L"50"}, {VK_END, L"100"}, {VK_HOME, L"0"}};
    for (const auto& [key, text] : keys) {
        user.key(key).waitFor("the value", [&, text = text] { return buddyText() == text; });
        EXPECT_EQ(told(), (std::vector<UINT>{kChanged}));
        parent.log().clear();
    }
    EXPECT_EQ(::GetFocus(), button->m_hWnd);
}

TEST_F(SliderButton, EscapePutsTheTextBack)
{
    setBuddyText(L"50 apples");
    show();
    button->SetFocus();
    user.key(VK_DOWN).waitFor("the popup", &isOpen).key(VK_END).waitFor("the value", [&] {
        return buddyText() == L"100";
    });
    parent.log().clear();
    user.key(VK_ESCAPE).waitFor("the popup to go", &isClosed);
    EXPECT_EQ(buddyText(), L"50 apples");
    EXPECT_EQ(told(), (std::vector<UINT>{kChanged, kReleased}));
}

TEST_F(SliderButton, EscapeWithoutAChangeTellsOfNone)
{
    setBuddyText(L"50 apples");
    show();
    open();
    user.key(VK_ESCAPE).waitFor("the popup to go", &isClosed);
    EXPECT_EQ(buddyText(), L"50 apples");
    EXPECT_EQ(told(), (std::vector<UINT>{kReleased}));
}

TEST_F(SliderButton, SpaceTabAndEnterInThePopupCloseIt)
{
    for (const WORD key : {VK_SPACE, VK_TAB, VK_RETURN}) {
        setBuddyText(L"50");
        show();
        open();
        EXPECT_TRUE(::SendMessageW(slider(), WM_GETDLGCODE, 0, 0) & DLGC_WANTTAB);
        user.click(Spot{[] { return CPoint(thumbX(), middleOfSlider()); }})
            .waitFor("the focus in the slider", [] { return ::GetFocus() == slider(); })
            .key(key)
            .waitFor("the release", [&] { return !told().empty() && told().back() == kReleased; });
        EXPECT_TRUE(isClosed());
        EXPECT_EQ(buddyText(), L"50");
    }
}

TEST_F(SliderButton, EscapeInThePopupPutsTheTextBack)
{
    setBuddyText(L"50");
    show();
    open();
    user.click(Spot{[] { return CPoint(thumbX(), middleOfSlider()); }})
        .waitFor("the focus in the slider", [] { return ::GetFocus() == slider(); })
        .key(VK_END)
        .waitFor("the value", [&] { return buddyText() == L"100"; })
        .key(VK_ESCAPE)
        .waitFor("the popup to go", &isClosed);
    EXPECT_EQ(buddyText(), L"50");
}

// Numbers

TEST_F(SliderButton, WholeNumbersGoRoundTheHostsConversions)
{
    button->SetRange(-20, 20);
    setBuddyText(L" 5 apples");
    show();
    button->SetFocus();
    user.key(VK_DOWN).waitFor("the popup", &isOpen);
    EXPECT_EQ(sliderPos(), 5);
    EXPECT_EQ(::SendMessageW(slider(), TBM_GETRANGEMIN, 0, 0), -20);
    EXPECT_EQ(::SendMessageW(slider(), TBM_GETRANGEMAX, 0, 0), 20);
    user.key(VK_RIGHT).waitFor("the value", [&] { return buddyText() == L"6"; });
    EXPECT_TRUE(utils.calls.empty());
}

TEST_F(SliderButton, RealNumbersPassTheHostsConversions)
{
    button->SetType(CSliderButton::SliderLinear);
    button->SetRange(0.0, 10.0, 2);
    setBuddyText(L"2,5");
    show();
    button->SetFocus();
    user.key(VK_DOWN).waitFor("the popup", &isOpen);
    EXPECT_EQ(sliderPos(), 25);
    user.key(VK_RIGHT).waitFor("the value", [&] { return buddyText() == L"2,60 mm"; });
    EXPECT_EQ(utils.calls, (std::vector<std::wstring>{L"from 2,5", L"to 2.60"}));
}

TEST_F(SliderButton, EveryTypePlacesTheSliderByItsMapping)
{
    const struct
    {
        CSliderButton::SliderType type;
        const wchar_t* text;
        int position;
        const wchar_t* next;
    } rows[] = {{CSliderButton::SliderLinear, L"50.5", 50, L"51,490 mm"},
                {CSliderButton::SliderLogarithmic, L"10", 50, L"10,471 mm"},
                {CSliderButton::SliderLogarithmic, L"-3", 0, L"1,047 mm"},
                {CSliderButton::SliderSquareRoot, L"30.25", 50, L"26,750 mm"}};
    for (const auto& row : rows) {
        button->SetType(row.type);
        button->SetRange(1.0, 100.0, 3);
        setBuddyText(row.text);
        show();
        button->SetFocus();
        user.key(VK_DOWN).waitFor("the popup", &isOpen);
        EXPECT_EQ(sliderPos(), row.position) << row.type;
        user.key(VK_RIGHT).waitFor("the value", [&] { return buddyText() == row.next; });
        user.key(VK_SPACE).waitFor("the popup to go", &isClosed);
    }
}

TEST_F(SliderButton, ASquareRootSliderThatIsNotMovedMayChangeTheNumber)
{
    button->SetType(CSliderButton::SliderSquareRoot);
    button->SetRange(1.0, 100.0, 2);
    setBuddyText(L"30,25");
    show();
    open();
    button->SetValue();
    EXPECT_EQ(buddyText(), L"25,75 mm") << "the two directions undo each other only where the low end is 0";
    button->SetRange(0.0, 100.0, 2);
    setBuddyText(L"25");
    user.key(VK_ESCAPE).waitFor("the popup to go", &isClosed);
    setBuddyText(L"25");
    open();
    button->SetValue();
    EXPECT_EQ(buddyText(), L"25,00 mm");
}

TEST_F(SliderButton, ATextWithoutANumberIsTheLowEnd)
{
    button->SetRange(3, 9);
    show();
    for (const wchar_t* text : {L"none", L""}) {
        setBuddyText(text);
        open();
        EXPECT_EQ(sliderPos(), 3);
        user.click(Spot{*button}).waitFor("the popup to go", &isClosed);
        EXPECT_EQ(buddyText(), text);
    }
    button->SetType(CSliderButton::SliderLinear);
    button->SetRange(5.0, 1.0, 0);
    open();
    EXPECT_EQ(sliderPos(), 0);
    user.click(Spot{*button}).waitFor("the popup to go", &isClosed);
}

TEST_F(SliderButton, AHundredCharactersAreRead)
{
    for (const size_t length : {size_t{99}, size_t{100}, size_t{101}, size_t{5000}}) {
        const std::wstring number = std::wstring(length - 2, L' ') + L"42";
        setBuddyText(number.c_str());
        show();
        open();
        EXPECT_EQ(sliderPos(), length <= 100 ? 42 : length == 101 ? 4 : 0) << length;
        user.key(VK_ESCAPE).waitFor("the popup to go", &isClosed);
        EXPECT_EQ(buddyText(), number) << "put back whole";
    }
}

TEST_F(SliderButton, PagesArePartsOfTheRange)
{
    button->SetPages(4);
    show();
    open();
    EXPECT_EQ(::SendMessageW(slider(), TBM_GETPAGESIZE, 0, 0), 25);
}

TEST_F(SliderButton, WithoutABuddyNothingIsWritten)
{
    button->SetBuddy(nullptr);
    setBuddyText(L"7");
    show();
    button->SetFocus();
    user.key(VK_DOWN)
        .waitFor("the popup", &isOpen)
        .key(VK_END)
        .key(VK_SPACE)
        .waitFor("the popup to go", &isClosed);
    EXPECT_EQ(buddyText(), L"7");
    EXPECT_TRUE(told().empty());
}

// The tip

TEST_F(SliderButton, TheTipIsTheStringOfTheBuddysNumberUpToTheLineFeed)
{
    show();
    user.moveTo(Spot{*button}).waitFor("the tip", [&] { return utils.calls.size() == 1; });
    EXPECT_EQ(utils.calls[0], L"show Width of the pen");
    user.moveBy(2, 2).moveTo(Spot{other}).waitFor("the end of the tip", [&] {
        return utils.calls.size() == 2;
    });
    EXPECT_EQ(utils.calls[1], L"hide");
    user.moveTo(Spot{*button}).waitFor("the tip again", [&] { return utils.calls.size() == 3; });
    EXPECT_EQ(utils.calls[2], L"show Width of the pen");
    user.moveTo(Spot{other}).waitFor("the end of the tip", [&] { return utils.calls.size() == 4; });
    button->SetBuddy(other);
    user.moveTo(Spot{*button}).waitFor("the tip again", [&] { return utils.calls.size() == 5; });
    EXPECT_EQ(utils.calls[4], L"show Width of the pen") << "it is loaded once";
}

TEST_F(SliderButton, WithoutATextThereIsNoTipForGood)
{
    button->SetBuddy(other);
    show();
    user.moveTo(Spot{*button}).moveBy(2, 2);
    button->SetBuddy(buddy);
    user.moveTo(Spot{other}).moveTo(Spot{*button}).moveBy(2, 2);
    EXPECT_TRUE(utils.calls.empty());
}

// What a host may do meanwhile

TEST_F(SliderButton, DisablingItClosesThePopup)
{
    show();
    open();
    button->EnableWindow(FALSE);
    EXPECT_TRUE(isClosed());
    EXPECT_EQ(told(), (std::vector<UINT>{kReleased}));
}

TEST_F(SliderButton, TheBuddyMayVanish)
{
    show();
    button->SetFocus();
    user.key(VK_DOWN).waitFor("the popup", &isOpen);
    buddy.DestroyWindow();
    user.key(VK_RIGHT).key(VK_ESCAPE).waitFor("the popup to go", &isClosed);
    EXPECT_TRUE(told().empty());
    user.click(Spot{*button}).waitFor("the popup", &isOpen);
}

TEST_F(SliderButton, DestroyingItTakesThePopupAlong)
{
    show();
    const WindowCounter windows;
    open();
    button->DestroyWindow();
    EXPECT_TRUE(isClosed());
    EXPECT_EQ(windows.grown(), -1) << "only the button is gone, and no popup is left";
}

TEST_F(SliderButton, AHostMayDestroyEverythingWhenItIsTold)
{
    for (const UINT message : {kChanged, kReleased})
        for (const bool deletes : {false, true}) {
            HostUtils host;
            CFrameWnd frame;
            frame.Create(nullptr, L"Host", WS_OVERLAPPEDWINDOW, CRect(300, 200, 600, 400));
            class Destroying : public CWnd
            {
            public:
                UINT trigger = 0;
                std::function<void()> deed;

            protected:
                LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
                {
                    if (message == trigger)
                        deed();
                    return CWnd::WindowProc(message, wParam, lParam);
                }
            } panel;
            panel.Create(nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 280, 150), &frame, 1);
            CEdit edit;
            edit.Create(WS_CHILD | WS_VISIBLE, CRect(10, 10, 100, 32), &panel, kBuddyId);
            edit.SetWindowText(L"50");
            CStatic plain;
            plain.Create(L"", WS_CHILD | WS_VISIBLE, CRect(102, 10, 118, 32), &panel, 9);
            auto slider = std::make_unique<CSliderButton>(host);
            slider->SubclassWindow(plain.Detach());
            slider->SetBuddy(edit);
            bool done = false;
            panel.trigger = message;
            panel.deed = [&] {
                done = true;
                if (deletes)
                    slider.reset();
                else
                    slider->DestroyWindow();
                edit.DestroyWindow();
            };
            present(frame);
            user.press(Spot{slider->m_hWnd})
                .waitFor("the popup", &isOpen)
                .moveBy(30, 0)
                .release()
                .waitFor("the deed", [&] { return done; });
            EXPECT_TRUE(isClosed());
            frame.DestroyWindow();
        }
}

TEST_F(SliderButton, AHostMayDeleteItInAConversion)
{
    button->SetType(CSliderButton::SliderLinear);
    for (const bool opening : {true, false}) {
        if (!button) {
            CStatic plain;
            plain.Create(L"", WS_CHILD | WS_VISIBLE, CRect(102, 10, 118, 32), &parent, 9);
            button = std::make_unique<CSliderButton>(utils);
            button->SubclassWindow(plain.Detach());
            button->SetBuddy(buddy);
            button->SetType(CSliderButton::SliderLinear);
        }
        utils.misdeed = nullptr;
        show();
        const auto deletes = [&] { button.reset(); };
        if (opening) {
            utils.misdeed = deletes;
            user.click(Spot{*button});
        } else {
            user.press(Spot{*button})
                .waitFor("the popup", &isOpen)
                .then([&] { utils.misdeed = deletes; })
                .moveBy(30, 0)
                .release();
        }
        EXPECT_EQ(button, nullptr);
        EXPECT_TRUE(isClosed());
    }
}

TEST_F(SliderButton, AHostMayDeleteItWhenItsWindowBecomesActiveAgain)
{
    // Hiding the popup, which is active, activates the window that owns it.
    const std::pair<const char*, std::function<void()>> ways[] = {
        {"Space", [this] { user.key(VK_SPACE); }},
        {"Tab", [this] { user.key(VK_TAB); }},
        {"Enter", [this] { user.key(VK_RETURN); }},
        {"another window", [this] { parent.SetActiveWindow(); }}};
    for (const auto& [name, putAway] : ways) {
        SCOPED_TRACE(name);
        button.reset();
        CStatic plain;
        plain.Create(L"", WS_CHILD | WS_VISIBLE, CRect(102, 10, 118, 32), &parent, 9);
        button = std::make_unique<Perishing<CSliderButton>>(utils);
        button->SubclassWindow(plain.Detach());
        button->SetBuddy(buddy);
        show();
        open();
        user.click(Spot{[] { return CPoint(thumbX(), middleOfSlider()); }})
            .waitFor("the focus in the slider", [] { return ::GetFocus() == slider(); });
        const WhenActivated deletes(parent, [this] { button.reset(); });
        putAway();
        user.waitFor("the deed", [&] { return deletes.isDone(); });
        EXPECT_TRUE(isClosed());
    }
}

TEST_F(SliderButton, CancellingWithoutAPopupLeavesTheText)
{
    setBuddyText(L"5");
    show();
    button->cancelPopup();
    EXPECT_EQ(buddyText(), L"5");
    open();
    button->cancelPopup();
    setBuddyText(L"7");
    button->cancelPopup();
    EXPECT_EQ(buddyText(), L"7");
}

TEST_F(SliderButton, WhatAConversionThrowsReachesTheHostAndTheButtonStaysUsable)
{
    button->SetType(CSliderButton::SliderLinear);
    button->SetRange(0.0, 10.0, 1);
    setBuddyText(L"5");
    show();
    utils.misdeed = [] { throw std::runtime_error("no such unit"); };
    EXPECT_THROW(button->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5)), std::runtime_error);
    EXPECT_TRUE(isClosed());
    EXPECT_NE(::GetCapture(), button->m_hWnd);

    utils.misdeed = nullptr;
    open();
    utils.misdeed = [] { throw std::runtime_error("no such unit"); };
    EXPECT_THROW(button->SetValue(), std::runtime_error);
    EXPECT_EQ(buddyText(), L"5");
    utils.misdeed = nullptr;
    user.click(Spot{*button}).waitFor("the popup to go", &isClosed);
}

TEST_F(SliderButton, AHostMayChangeTextAndFocusWhenTheValueChanges)
{
    class Changing : public CWnd
    {
    public:
        CEdit* buddy = nullptr;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == kChanged) {
                buddy->SetWindowText(L"mine");
                buddy->SetFocus();
            }
            return CWnd::WindowProc(message, wParam, lParam);
        }
    } panel;
    panel.buddy = &buddy;
    panel.Create(nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(0, 90, 300, 120), &parent, 20);
    setBuddyText(L"50");
    buddy.SetParent(&panel);
    buddy.SetWindowPos(nullptr, 10, 0, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    show();
    user.press(Spot{*button})
        .waitFor("the popup", &isOpen)
        .moveBy(30, 0)
        .waitFor("the value", [&] { return buddyText() == L"mine"; })
        .moveBy(10, 0)
        .release()
        .waitFor("the popup to go", &isClosed);
    EXPECT_EQ(buddyText(), L"mine");
    EXPECT_EQ(::GetFocus(), buddy.m_hWnd);
}

TEST_F(SliderButton, OpeningAndClosingLeavesNothingBehind)
{
    show();
    open();
    user.click(Spot{*button}).waitFor("the popup to go", &isClosed);
    const GdiCounter objects;
    const WindowCounter windows;
    for (int round = 0; round < 1000; ++round) {
        button->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
        button->SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
        button->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    }
    EXPECT_TRUE(isClosed());
    EXPECT_EQ(objects.grown(), 0);
    EXPECT_EQ(windows.grown(), 0);
}
