// What is left behind by boxes that were opened and closed.
#include "MessageBoxScene.h"
#include <testkit/GdiCounter.h>
#include <testkit/WindowCounter.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

TEST(MessageBoxLeak, AHundredBoxesLeaveNoWindowsAndNoGdiObjects)
{
    const std::wstring lines = numberedLines(30);
    const BoxArguments forms[] = {
        {.type = OVOMB_EXTBUTTONS | 3 | MB_HELP},
        {.type = MB_OK, .text = lines.c_str()},
    };
    const auto openAll = [&] {
        for (const BoxArguments& form : forms)
            inspect(form, [](HWND) {});
    };
    openAll(); // fonts and icons that the system keeps
    GuiThread::settle();
    const GdiCounter gdi;
    const WindowCounter windows;
    for (int i = 0; i < 50; ++i)
        openAll();
    GuiThread::settle();
    EXPECT_LE(gdi.grown(), 2);
    EXPECT_EQ(windows.grown(), 0);
}
