// The slider button with real input: how its popup opens and closes, and what the host is told of it.
#include "SliderButtonScene.h"

#include <testkit/GuiThread.h>
#include <testkit/ImportPatch.h>

#include <algorithm>
#include <atomic>
#include <thread>

using namespace ovo::testkit;

namespace
{

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

HWND WINAPI noDialog(HINSTANCE, LPCDLGTEMPLATEW, HWND, DLGPROC, LPARAM)
{
    return nullptr;
}

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

TEST_F(SliderButton, WithoutAPopupItComesUpAgain)
{
    show();
    const Picture released = Picture::ofClient(*button);
    {
        const ImportPatch patch(L"ovomfc.dll", "CreateDialogIndirectParamW",
                                reinterpret_cast<void*>(&noDialog));
        button->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
        EXPECT_NE(::GetCapture(), button->m_hWnd);
        EXPECT_EQ(Picture::ofClient(*button).differences(released), 0);
        EXPECT_EQ(told(), (std::vector<UINT>{kReleased})) << "though there was nothing to be seen";
    }
    open(); // by the next click already
    EXPECT_TRUE(isOpen());
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
