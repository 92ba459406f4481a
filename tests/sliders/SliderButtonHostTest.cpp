// What a host may do while a slider button calls it.
#include "SliderButtonScene.h"

#include <support/Perishing.h>
#include <testkit/GdiCounter.h>
#include <testkit/WindowCounter.h>

#include <commctrl.h>

#include <stdexcept>
#include <utility>

using namespace ovo::testkit;

namespace
{

/// A parent of the buddy that writes down what it is told, and may raise then.
class ToldPanel : public CWnd
{
public:
    ToldPanel(CWnd& parent, CEdit& buddy)
    {
        Create(nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(0, 90, 300, 120), &parent, 20);
        buddy.SetParent(this);
        buddy.SetWindowPos(nullptr, 10, 0, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    }
    ~ToldPanel() override { DestroyWindow(); }

    std::vector<UINT> told;
    UINT raisesWhen = 0; ///< an int

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == kChanged || message == kReleased)
            told.push_back(message);
        if (raisesWhen != 0 && message == raisesWhen)
            throw 42;
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

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

} // namespace

TEST_F(SliderButton, DisablingItClosesThePopup)
{
    show();
    open();
    button->EnableWindow(FALSE);
    EXPECT_TRUE(isClosed());
    EXPECT_EQ(told(), (std::vector<UINT>{kReleased}));
}

TEST_F(SliderButton, AHostMayDeleteItWhenItHearsThatItIsDisabled)
{
    class Hearing : public CWnd
    {
    public:
        std::function<void()> deed;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_COMMAND && HIWORD(wParam) == STN_DISABLE)
                deed();
            return CWnd::WindowProc(message, wParam, lParam);
        }
    };
    for (const bool deletes : {false, true}) {
        SCOPED_TRACE(deletes);
        Hearing panel;
        panel.Create(nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(0, 90, 300, 120), &parent, 20);
        // As the label of Windows does; that of Wine tells nothing.
        static WNDPROC label;
        const WNDPROC telling = [](HWND wnd, UINT message, WPARAM wParam, LPARAM lParam) -> LRESULT {
            const LRESULT result = ::CallWindowProcW(label, wnd, message, wParam, lParam);
            if (message == WM_ENABLE && !wParam)
                ::SendMessageW(::GetParent(wnd), WM_COMMAND, MAKEWPARAM(::GetDlgCtrlID(wnd), STN_DISABLE),
                               reinterpret_cast<LPARAM>(wnd));
            return result;
        };
        const HWND window = ::CreateWindowW(L"STATIC", L"", WS_CHILD | WS_VISIBLE | SS_NOTIFY, 102, 0, 16, 22,
                                            panel, reinterpret_cast<HMENU>(9), nullptr, nullptr);
        label = reinterpret_cast<WNDPROC>(
            ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(telling)));
        std::unique_ptr<CSliderButton> slider = std::make_unique<Perishing<CSliderButton>>(utils);
        slider->SubclassWindow(window);
        slider->SetBuddy(buddy);
        bool told = false;
        panel.deed = [&] {
            told = true;
            if (deletes)
                slider.reset();
            else
                slider->DestroyWindow();
        };
        show();
        slider->SendMessage(WM_KEYDOWN, VK_SPACE);
        EXPECT_TRUE(isOpen());
        ::SendMessageW(window, WM_ENABLE, FALSE,
                       0); // as EnableWindow does, out of which a crash would not come
        EXPECT_TRUE(told);
        EXPECT_TRUE(isClosed());
        panel.DestroyWindow();
    }
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

TEST_F(SliderButton, AHostThatShowsAMessageDuringThePressLeavesNoDragBehind)
{
    button->SetType(CSliderButton::SliderLinear);
    show();
    bool asked = false;
    utils.misdeed = [&] {
        if (!std::exchange(asked, true))
            parent.MessageBox(L"Really?", L"Host");
    };
    user.press(Spot{*button})
        .release()
        .waitFor("the message", [] { return shownWindow(L"Host") != nullptr; })
        .key(VK_RETURN)
        .waitFor("its end", [] { return shownWindow(L"Host") == nullptr; });
    EXPECT_TRUE(asked);
    EXPECT_NE(::GetCapture(), button->m_hWnd);
    EXPECT_TRUE(isOpen()) << "as after a click";
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

TEST_F(SliderButton, AParentThatRaisesWhenItIsCancelledHearsOfTheEnd)
{
    setBuddyText(L"50");
    ToldPanel panel(parent, buddy);
    show();
    open();
    setBuddyText(L"60");
    panel.told.clear();
    panel.raisesWhen = kChanged;
    EXPECT_THROW(button->cancelPopup(), int);
    EXPECT_EQ(buddyText(), L"50");
    EXPECT_TRUE(isClosed());
    EXPECT_EQ(panel.told, (std::vector<UINT>{kChanged, kReleased}));
}

/// The system tells of these messages before they reach their window, in the middle of its own work.
TEST_F(SliderButton, WhatTheParentRaisesWhenAPressElsewhereOrEscapeEndsThePopupComesOutOfTheMessageLoop)
{
    const struct
    {
        UINT message;
        WPARAM wParam;
    } ends[] = {{WM_LBUTTONDOWN, MK_LBUTTON}, {WM_KEYDOWN, VK_ESCAPE}};
    ToldPanel panel(parent, buddy);
    show();
    for (const auto& [message, wParam] : ends) {
        SCOPED_TRACE(message);
        open();
        panel.told.clear();
        panel.raisesWhen = kReleased;
        ::PostMessageW(other, message, wParam, 0);
        EXPECT_THROW(GuiThread::settle(), int);
        panel.raisesWhen = 0;
        EXPECT_TRUE(isClosed());
        EXPECT_EQ(panel.told, std::vector<UINT>{kReleased});
        ::PostMessageW(other, WM_LBUTTONUP, 0, 0);
        EXPECT_NO_THROW(GuiThread::settle()) << "once";
    }
}

TEST_F(SliderButton, WhatIsRaisedFirstComesOutWhenThePopupDoesNotOpen)
{
    button->SetType(CSliderButton::SliderLinear);
    button->SetRange(0.0, 10.0, 1);
    setBuddyText(L"5");
    ToldPanel panel(parent, buddy);
    show();
    utils.misdeed = [] { throw std::runtime_error("no such unit"); };
    panel.raisesWhen = kReleased;
    EXPECT_THROW(button->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5)), std::runtime_error);
    EXPECT_TRUE(isClosed());
    EXPECT_EQ(panel.told, std::vector<UINT>{kReleased});
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
    const auto openAndClose = [&](int rounds) {
        for (int round = 0; round < rounds; ++round) {
            button->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
            button->SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
            button->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
        }
    };
    openAndClose(10); // what the platform makes once and keeps
    const GdiCounter objects;
    const WindowCounter windows;
    openAndClose(1000);
    EXPECT_TRUE(isClosed());
    EXPECT_EQ(objects.grown(), 0);
    EXPECT_EQ(windows.grown(), 0);
}
