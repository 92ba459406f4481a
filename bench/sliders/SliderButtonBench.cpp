// Opening the popup, and a step of a drag, against the calls that cannot be avoided.
#include "support/InTurns.h"

#include <ovoui/sliders/SliderButton.h>

#include <catch2/catch.hpp>

#include <utility>

namespace
{

class Plain : public SliderButtonUtils
{
public:
    void fromDisplay(std::wstring& out, const std::wstring& displayed) override { out = displayed; }
    void toDisplay(std::wstring& out, const std::wstring& machine) override { out = machine; }
    void hideTip() override {}
    void showTip(const std::wstring&) override {}
};

/// A shown window with a buddy and a button.
class Scene
{
public:
    Scene()
        : button(utils)
    {
        parent.CreateEx(0, AfxRegisterWndClass(0), L"", WS_OVERLAPPEDWINDOW, CRect(200, 200, 600, 400),
                        nullptr, 0);
        buddy.Create(WS_CHILD | WS_VISIBLE | WS_BORDER, CRect(10, 10, 100, 32), &parent, 1);
        buddy.SetWindowText(L"50");
        CStatic plain;
        plain.Create(L"", WS_CHILD | WS_VISIBLE, CRect(102, 10, 118, 32), &parent, 2);
        button.SubclassWindow(plain.Detach());
        button.SetBuddy(buddy);
        parent.ShowWindow(SW_SHOW);
        parent.UpdateWindow();
        pump();
    }

    /// A program with these windows has a message loop, which tells its thread what hooks there are.
    static void pump()
    {
        MSG message;
        while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
            ::DispatchMessageW(&message);
    }

    void press() { button.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5)); }
    void release() { button.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(5, 5)); }
    /// The shown dialog of this thread.
    HWND popup() const
    {
        HWND found = nullptr;
        ::EnumThreadWindows(
            ::GetCurrentThreadId(),
            [](HWND window, LPARAM result) -> BOOL {
                wchar_t name[16]{};
                ::GetClassNameW(window, name, 16);
                if (::IsWindowVisible(window) && ::lstrcmpW(name, L"#32770") == 0)
                    *reinterpret_cast<HWND*>(result) = window;
                return TRUE;
            },
            reinterpret_cast<LPARAM>(&found));
        return found;
    }
    HWND slider() const { return ::FindWindowExW(popup(), nullptr, TRACKBAR_CLASSW, nullptr); }

    Plain utils;
    CWnd parent;
    CEdit buddy;
    CSliderButton button;
};

} // namespace

TEST_CASE("opening the popup again")
{
    Scene scene;
    scene.press();
    const HWND popup = scene.popup();
    REQUIRE(popup);
    scene.release();
    bool pressed = true;
    const auto close = [&] {
        scene.release();
        if (std::exchange(pressed, false))
            scene.press();
        ::ShowWindow(popup, SW_HIDE);
    };
    InTurns turns;
    turns.add(
        "SetWindowPos with show [baseline]",
        [&] {
            ::SetWindowPos(popup, HWND_TOP, 300, 300, 0, 0, SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
            ::UpdateWindow(popup);
        },
        close);
    turns.add(
        "the press that opens it [at most 1.3]",
        [&] {
            pressed = true;
            scene.press();
            ::UpdateWindow(popup);
        },
        close);
    turns.add(
        "press and release [at most 1.3]",
        [&] {
            pressed = true;
            scene.press();
            scene.release();
            ::UpdateWindow(popup);
        },
        close);
    turns.run("opening the popup again", 201);
}

TEST_CASE("a step of a drag")
{
    Scene scene;
    scene.press();
    const HWND slider = scene.slider();
    REQUIRE(slider);
    int step = 0;

    BENCHMARK("position, text and notification")
    {
        const int position = 10 + ++step % 80;
        ::SendMessageW(slider, TBM_SETPOS, TRUE, position);
        ::SetWindowTextW(scene.buddy, std::to_wstring(position).c_str());
        return scene.parent.SendMessage(CSliderButton::kValueChanged,
                                        reinterpret_cast<WPARAM>(scene.buddy.m_hWnd));
    };
    scene.button.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(5, 30));
    BENCHMARK("WM_MOUSEMOVE [at most 1.3]")
    {
        return scene.button.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(20 + 2 * (++step % 60), 30));
    };
    scene.release();
}
