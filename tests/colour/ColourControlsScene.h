// A colour grid, eyedropper or colour button in a window that takes down what it is told.
#pragma once

#include <testkit/Desktop.h>
#include <testkit/RecordingParent.h>
#include <testkit/Robot.h>

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <vector>

namespace ovo::testkit
{

// Codes that the controls tell their parent
constexpr UINT kGridChosen = 0x50;
constexpr UINT kGridPointed = 0x51;
constexpr UINT kTaken = 0x52;
constexpr UINT kDropped = 0x54;
constexpr UINT kClosed = 0x55;

constexpr COLORREF kLeaf = RGB(84, 130, 53);
constexpr COLORREF kRust = RGB(190, 49, 26);
constexpr COLORREF kSky = RGB(90, 150, 220);

/// A parent that may do anything when it is told something.
class ColourHost : public RecordingParent
{
public:
    using RecordingParent::RecordingParent;
    std::function<void(UINT code)> onCode;
    /// Hears every message first, and may answer in the window's place.
    std::function<std::optional<LRESULT>(UINT message, WPARAM wParam, LPARAM lParam)> onMessage;

    std::vector<UINT> codes()
    {
        std::vector<UINT> own;
        for (const UINT code : log().codes())
            if (code >= 0x50 && code <= 0x55)
                own.push_back(code);
        return own;
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (const auto hear = onMessage)
            if (const std::optional<LRESULT> answer = hear(message, wParam, lParam))
                return *answer;
        const LRESULT result = RecordingParent::WindowProc(message, wParam, lParam);
        if (message == WM_COMMAND && HIWORD(wParam) >= 0x50)
            if (const auto act = onCode)
                act(HIWORD(wParam));
        return result;
    }
};

/// A popup of the library's own that is shown: what a colour button drops, or the magnifier.
inline HWND shownPopup()
{
    for (HWND wnd = ::GetTopWindow(nullptr); wnd; wnd = ::GetWindow(wnd, GW_HWNDNEXT))
        if (::IsWindowVisible(wnd) && (::GetWindowLongPtrW(wnd, GWL_EXSTYLE) & WS_EX_NOACTIVATE) &&
            ::GetWindowThreadProcessId(wnd, nullptr) == ::GetCurrentThreadId())
            return wnd;
    return nullptr;
}

inline CRect placeOf(HWND wnd)
{
    CRect rect;
    ::GetWindowRect(wnd, &rect);
    return rect;
}

class ColourControls : public ::testing::Test
{
protected:
    ColourControls() { ::CoInitialize(nullptr); }
    ~ColourControls() override { ::CoUninitialize(); }

    ColourHost parent;
    Robot user;
};

} // namespace ovo::testkit
