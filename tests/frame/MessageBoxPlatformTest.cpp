// What the message box does where the platform needs no help, beside what it does where it does.
#include "MessageBoxScene.h"

#include "support/PlatformSetting.h"

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

/// Counts how often edit controls of this thread are given a formatting rectangle.
class FormatRectCounter
{
public:
    FormatRectCounter()
        : m_hook(::SetWindowsHookExW(WH_CALLWNDPROC, &onMessage, nullptr, ::GetCurrentThreadId()))
    {
        ms_count = 0;
    }
    ~FormatRectCounter() { ::UnhookWindowsHookEx(m_hook); }
    FormatRectCounter(const FormatRectCounter&) = delete;
    FormatRectCounter& operator=(const FormatRectCounter&) = delete;

    int count() const { return ms_count; }

private:
    static LRESULT CALLBACK onMessage(int code, WPARAM wParam, LPARAM lParam)
    {
        const auto& message = *reinterpret_cast<const CWPSTRUCT*>(lParam);
        wchar_t name[16] = L"";
        ::GetClassNameW(message.hwnd, name, 16);
        if (message.message == EM_SETRECT && ::lstrcmpiW(name, L"EDIT") == 0)
            ++ms_count;
        return ::CallNextHookEx(nullptr, code, wParam, lParam);
    }

    const HHOOK m_hook;
    inline static int ms_count = 0;
};

int rectanglesGiven()
{
    const FormatRectCounter counter;
    inspect({}, [](HWND) {});
    return counter.count();
}

} // namespace

TEST(MessageBoxPlatform, TheFormattingRectangleIsGivenAgainOnlyWhereTheControlChangesIt)
{
    PlatformSetting setting;
    const bool changed = setting->insetsFormatRect;
    setting->insetsFormatRect = false;
    const int asItIs = rectanglesGiven(); // to measure the text, and to show it
    EXPECT_EQ(asItIs, 2);
    setting->insetsFormatRect = true;
    EXPECT_EQ(rectanglesGiven(), changed ? 2 * asItIs : asItIs);
}
