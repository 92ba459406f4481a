// The check that the user did not ask for.
#include "ovocor/LoopbackServer.h"
#include <testkit/Desktop.h>
#include <testkit/ImportPatch.h>
#include <testkit/Robot.h>
#include <testkit/TemporaryProfile.h>

#include <ovoui/update/PoliteCheck.h>

#include <ovouires/resource.h>

#include <gtest/gtest.h>

#include <shellapi.h>

#include <ctime>

using namespace ovo::testkit;

namespace
{

constexpr int kInstalled[4] = {11, 0, 0, 0};
constexpr wchar_t kProduct[] = L"Board";
std::vector<std::wstring> g_opened;
__time64_t g_now = 0;

BOOL WINAPI shell(SHELLEXECUTEINFOW* execute)
{
    g_opened.push_back(execute->lpFile);
    return TRUE;
}

__time64_t __cdecl clockOfTheTest(__time64_t*)
{
    return g_now;
}

class PoliteCheck : public ::testing::Test
{
protected:
    PoliteCheck()
    {
        g_opened.clear();
        g_now = 1'700'000'000;
        publish("12");
    }

    void publish(const std::string& version)
    {
        server.answer("/updates.csv",
                      LoopbackServer::page("200 OK", "#update,Board,,,,," + version +
                                                         ",http://example.org/page,Faster\r\n"));
    }
    void check() { checkPolitely(server.address(L"/updates.csv"), kProduct, L"", kInstalled); }
    /// Checks, and answers the dialog that is expected.
    void checkAndClick(int button)
    {
        auto answering = Robot()
                             .waitFor("the offer", [] { return shownDialog() != nullptr; })
                             .click(Spot{[button] { return ::GetDlgItem(shownDialog(), button); }})
                             .start();
        check();
    }
    static void pass(int days) { g_now += days * 24 * 60 * 60; }

    TemporaryProfile profile;
    LoopbackServer server;
    ImportPatch opening{L"ovoui.dll", "ShellExecuteExW", reinterpret_cast<void*>(&shell)};
    ImportPatch clock{L"ovoui.dll", "_time64", reinterpret_cast<void*>(&clockOfTheTest)};
};

} // namespace

TEST_F(PoliteCheck, ThePageIsOpenedOnRequest)
{
    checkAndClick(IDOK);
    EXPECT_EQ(g_opened, std::vector<std::wstring>{L"http://example.org/page"});
}

TEST_F(PoliteCheck, TheServerIsAskedOnceInTheGivenDays)
{
    publish("11");
    check();
    EXPECT_EQ(server.requests().size(), 1u) << "nothing new, and nothing said";
    pass(6);
    check();
    EXPECT_EQ(server.requests().size(), 1u);
    pass(1);
    check();
    EXPECT_EQ(server.requests().size(), 2u);
}

TEST_F(PoliteCheck, WithoutNetworkItIsSilentAndTriesAgain)
{
    server.answer("/updates.csv", LoopbackServer::page("500 Internal Server Error", ""));
    check();
    check();
    EXPECT_EQ(server.requests().size(), 2u);
    EXPECT_EQ(shownDialog(), nullptr);
}

TEST_F(PoliteCheck, ASkippedVersionIsNotOfferedAgainButTheNextIs)
{
    checkAndClick(IDC_UPDATE_SKIP);
    pass(30);
    check();
    EXPECT_EQ(server.requests().size(), 2u);
    publish("13");
    pass(30);
    checkAndClick(IDOK);
    EXPECT_EQ(g_opened.size(), 1u);
}

TEST_F(PoliteCheck, LaterIsAFewDaysFromNow)
{
    checkAndClick(IDC_UPDATE_LATER);
    pass(2);
    EXPECT_FALSE(UpdateMemory(kProduct).isDue(0));
    pass(1);
    EXPECT_TRUE(UpdateMemory(kProduct).isDue(0));
    EXPECT_TRUE(g_opened.empty());
}

TEST_F(PoliteCheck, TheReminderComesInItsDaysAndNotWithTheNextLook)
{
    checkAndClick(IDC_UPDATE_LATER);
    pass(2);
    check();
    EXPECT_EQ(server.requests().size(), 1u);
    pass(1);
    checkAndClick(IDOK);
    EXPECT_EQ(g_opened.size(), 1u);
    pass(6);
    check();
    EXPECT_EQ(server.requests().size(), 2u) << "it comes once";
    pass(1);
    checkAndClick(IDOK);
    EXPECT_EQ(g_opened.size(), 2u);
}

TEST_F(PoliteCheck, ClosingTheDialogPutsItOffToo)
{
    auto answering =
        Robot().waitFor("the offer", [] { return shownDialog() != nullptr; }).key(VK_ESCAPE).start();
    check();
    EXPECT_FALSE(UpdateMemory(kProduct).isDue(0));
    EXPECT_TRUE(UpdateMemory(L"Other").isDue(0)) << "each product has its own";
}

TEST_F(PoliteCheck, TheOfferNamesEverything)
{
    std::wstring text;
    auto answering = Robot()
                         .waitFor("the offer", [] { return shownDialog() != nullptr; })
                         .then([&] {
                             CString shown;
                             CWnd::FromHandle(shownDialog())->GetDlgItemText(IDC_UPDATE_TEXT, shown);
                             text = shown;
                             EXPECT_EQ(::GetFocus(), ::GetDlgItem(shownDialog(), IDOK));
                         })
                         .key(VK_ESCAPE)
                         .start();
    check();
    for (const wchar_t* part : {L"Faster", L"Board", L"http://example.org/page"})
        EXPECT_NE(text.find(part), std::wstring::npos) << testing::PrintToString(part);
}

TEST_F(PoliteCheck, AProfileFullOfNonsenseDoesNoHarm)
{
    for (const wchar_t* what : {L"Board checked", L"Board remind"})
        AfxGetApp()->WriteProfileString(L"updates", what, L"tomorrow");
    EXPECT_TRUE(UpdateMemory(kProduct).isDue(7));
}

TEST_F(PoliteCheck, TheNumberOfTheLastListIsKept)
{
    UpdateMemory(kProduct).keepIssue(L"2024.3");
    EXPECT_EQ(UpdateMemory(kProduct).issue(), L"2024.3");
    EXPECT_EQ(UpdateMemory(L"Other").issue(), L"");
}
