// The entry point of every test program: a console program that starts the framework by hand.
#include "GdiPlusSession.h"
#include "GuiThread.h"
#include "TestApp.h"
#include "TestGuard.h"

#include <afxole.h>

#include <gmock/gmock.h>

namespace
{

ovo::testkit::TestApp theApp;

} // namespace

int main(int argc, char** argv)
{
    ::testing::InitGoogleMock(&argc, argv);
    if (!AfxWinInit(::GetModuleHandleW(nullptr), nullptr, ::GetCommandLineW(), SW_SHOWNORMAL) ||
        !AfxOleInit())
        return EXIT_FAILURE;
    const ovo::testkit::GdiPlusSession gdiPlus;
    const ovo::testkit::GuiThread guiThread;
    // The list of listeners owns it.
    ::testing::UnitTest::GetInstance()->listeners().Append(new ovo::testkit::TestGuard);
    return RUN_ALL_TESTS();
}
