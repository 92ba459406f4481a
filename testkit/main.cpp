// The entry point of every test program: a console program that starts the framework by hand.
#include "GdiPlusSession.h"
#include "GuiThread.h"
#include "TestApp.h"
#include "TestGuard.h"

#include <afxole.h>

#include <gmock/gmock.h>

#include <cstdio>

namespace
{

constexpr int kNoDesktop = 75; // known to cmake/under-wine, which runs the program again

ovo::testkit::TestApp theApp;

/// Under Wine the first window starts the desktop's process, which a loaded machine refuses now and then. The
/// program has no windows then, however often it tries.
bool hasDesktop()
{
    const HWND window = ::CreateWindowExW(0, L"Static", nullptr, WS_POPUP, 0, 0, 0, 0, nullptr, nullptr,
                                          nullptr, nullptr);
    return window && ::DestroyWindow(window);
}

} // namespace

int main(int argc, char** argv)
{
    ::testing::InitGoogleMock(&argc, argv);
    if (!AfxWinInit(::GetModuleHandleW(nullptr), nullptr, ::GetCommandLineW(), SW_SHOWNORMAL) ||
        !AfxOleInit())
        return EXIT_FAILURE;
    if (!hasDesktop()) {
        std::fprintf(stderr, "no window can be made here\n");
        return kNoDesktop;
    }
    const ovo::testkit::GdiPlusSession gdiPlus;
    const ovo::testkit::GuiThread guiThread;
    // The list of listeners owns it.
    ::testing::UnitTest::GetInstance()->listeners().Append(new ovo::testkit::TestGuard);
    return RUN_ALL_TESTS();
}
