// The entry point of every test program: a console program that starts the framework by hand.
#include "GdiPlusSession.h"
#include "GuiThread.h"
#include "TestApp.h"
#include "TestGuard.h"

#include <afxole.h>

#include <gmock/gmock.h>

namespace
{

ovotest::TestApp theApp;

} // namespace

int main(int argc, char** argv)
{
    ::testing::InitGoogleMock(&argc, argv);
    if (!AfxWinInit(::GetModuleHandleW(nullptr), nullptr, ::GetCommandLineW(), SW_SHOWNORMAL) ||
        !AfxOleInit())
        return EXIT_FAILURE;
    const ovotest::GdiPlusSession gdiPlus;
    const ovotest::GuiThread guiThread;
    // The list of listeners owns it.
    ::testing::UnitTest::GetInstance()->listeners().Append(new ovotest::TestGuard);
    return RUN_ALL_TESTS();
}
