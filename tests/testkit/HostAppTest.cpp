// The kit in a program with an entry point and an application of its own.
#include <testkit/Desktop.h>
#include <testkit/GdiPlusSession.h>
#include <testkit/GuiThread.h>
#include <testkit/Robot.h>
#include <testkit/TestApp.h>
#include <testkit/TestGuard.h>

#include <afxole.h>

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <cstddef>

using namespace ovo::testkit;

namespace
{

constexpr std::byte kUntouched{0xA5};

/// Has data where an application of the kit has its own, and a little more.
class HostApp : public CWinApp
{
public:
    HostApp() { m_data.fill(kUntouched); }

    bool isUntouched() const { return std::ranges::count(m_data, kUntouched) == std::ssize(m_data); }

private:
    std::array<std::byte, sizeof(TestApp)> m_data{};
};

HostApp theApp;

} // namespace

TEST(HostApp, IsLeftAloneByTheGuard)
{
    EXPECT_EQ(AfxGetApp(), &theApp);
    EXPECT_TRUE(theApp.isUntouched());
}

TEST(HostApp, ShowsItsMessageBoxes)
{
    Robot robot;
    auto answering = robot.waitFor("the box", [] { return shownDialog() != nullptr; }).key(VK_ESCAPE).start();
    EXPECT_EQ(AfxMessageBox(L"Really?", MB_OKCANCEL), IDCANCEL);
}

int main(int argc, char** argv)
{
    ::testing::InitGoogleMock(&argc, argv);
    if (!AfxWinInit(::GetModuleHandleW(nullptr), nullptr, ::GetCommandLineW(), SW_SHOWNORMAL) ||
        !AfxOleInit())
        return EXIT_FAILURE;
    const GdiPlusSession gdiPlus;
    const GuiThread guiThread;
    ::testing::UnitTest::GetInstance()->listeners().Append(new TestGuard); // which owns it
    return RUN_ALL_TESTS();
}
