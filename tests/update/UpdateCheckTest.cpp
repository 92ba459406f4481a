// The update check against a server on the loopback address: which row counts, what the user sees, what is
// left.
#include "ovocor/LoopbackServer.h"
#include <testkit/Desktop.h>
#include <testkit/ImportPatch.h>
#include <testkit/Robot.h>

#include <ovoui/update/UpdateCheck.h>

#include <ovocor/OvoError.h>
#include <ovocor/Text.h>
#include <ovocor/Url.h>
#include <ovocor/WinError.h>
#include <ovomsg/ovomsg.h>

#include <gtest/gtest.h>

#include <psapi.h>
#include <shellapi.h>
#include <wininet.h>

#include <algorithm>
#include <cstring>
#include <future>
#include <utility>
#include <vector>

using namespace ovo::testkit;

namespace
{

constexpr char kHeader[] =
    "UpdateType,Product,Options,OS,Processor,Version,UpdateVersion,UpdateInfo,UpdateDescription\r\n";
constexpr int kInstalled[4] = {11, 5, 0, 7};

std::vector<std::wstring> g_opened;

BOOL WINAPI shell(SHELLEXECUTEINFOW* execute)
{
    g_opened.push_back(execute->lpFile);
    return TRUE;
}

class UpdateCheck : public ::testing::Test
{
protected:
    UpdateCheck() { g_opened.clear(); }

    std::wstring list() { return server.address(L"/updates.csv"); }

    void publish(const std::string& rows, const std::string& before = "")
    {
        server.answer("/updates.csv", LoopbackServer::page("200 OK", before + kHeader + rows));
    }

    std::optional<AvailableUpdate> found()
    {
        const auto update = findUpdate(list(), L"Board", L"Pro", kInstalled);
        EXPECT_FALSE(isCached()) << "the copy is gone";
        return update;
    }

    std::wstring failure()
    {
        std::wstring text;
        try {
            findUpdate(list(), L"Board", L"Pro", kInstalled);
        } catch (const OvoError& error) {
            text = error.wwhat();
        }
        EXPECT_FALSE(isCached()) << "the copy is gone";
        return text;
    }

    bool isCached()
    {
        DWORD size = 0;
        return ::GetUrlCacheEntryInfoW(list().c_str(), nullptr, &size) ||
               ::GetLastError() != ERROR_FILE_NOT_FOUND;
    }

    /// What the dialog says, while the check is answered by a key.
    std::wstring shownText(WORD key, bool* canAccept = nullptr)
    {
        std::wstring text;
        auto answering = Robot()
                             .waitFor("the dialog", [] { return shownDialog() != nullptr; })
                             .then([&] {
                                 EXPECT_FALSE(isCached()) << "the copy goes before the user is asked";
                                 CString shown;
                                 CWnd::FromHandle(shownDialog())->GetDlgItemText(20508, shown);
                                 text = shown;
                                 if (canAccept)
                                     *canAccept = ::IsWindowEnabled(::GetDlgItem(shownDialog(), IDOK));
                             })
                             .key(key)
                             .start();
        checkForUpdates(list(), L"Board", L"Pro", kInstalled);
        EXPECT_FALSE(isCached()) << "the copy is gone";
        return text;
    }

    LoopbackServer server;
    ImportPatch patch{L"ovoui.dll", "ShellExecuteExW", reinterpret_cast<void*>(&shell)};
};

} // namespace

TEST_F(UpdateCheck, TheRightRowOfManyIsFound)
{
    std::string rows;
    for (int i = 0; i < 10000; ++i)
        rows +=
            i == 7777
                ? "#update,Board,Pro,Windows,Intel64,11.*,12.1,http://example.org/12,\"Better, faster\"\r\n"
                : "#update,Product" + std::to_string(i) + ",,,,,99,http://example.org/,\r\n";
    publish(rows);
    const auto update = found();
    ASSERT_TRUE(update);
    EXPECT_EQ(update->version, L"12.1");
    EXPECT_EQ(update->description, L"Better, faster");
    EXPECT_EQ(update->page, L"http://example.org/12");
}

TEST_F(UpdateCheck, TheLastRowThatAppliesCounts)
{
    publish("#update,Board,,,,,13,http://example.org/13,\r\n"
            "#update,Board,,,,,12,http://example.org/12,\r\n"
            "#update,Board,Home,,,,14,http://example.org/14,\r\n");
    const auto update = found();
    ASSERT_TRUE(update);
    EXPECT_EQ(update->version, L"12");
    publish("#update,Board,,,,,13,http://example.org/13,\r\n#update,Board,,,,,11,http://example.org/11,\r\n");
    EXPECT_FALSE(found()) << "even when it is not newer";
    publish("#update,Board,,,,,13,http://example.org/13,\r\n"
            "#update,Board,,,,,next,http://example.org/next,\r\n");
    EXPECT_FALSE(found()) << "even when what it offers is no version";
}

TEST_F(UpdateCheck, WithoutARowThereIsNone)
{
    for (const char* rows : {"", "\r\n\r\n", "#note,Board,,,,,13,http://example.org/13,\r\n",
                             "#update,board,,,,,13,http://example.org/13,\r\n",
                             "#update,Board,,Linux,,,13,http://example.org/13,\r\n",
                             "#update,Board,,,ARM64,,13,http://example.org/13,\r\n",
                             "#update,Board,,,,10.*,13,http://example.org/13,\r\n",
                             "#update,Board,,,,,next,http://example.org/13,\r\n"}) {
        publish(rows);
        EXPECT_FALSE(found()) << rows;
    }
}

TEST_F(UpdateCheck, RowsNeedNoDescriptionAndNoLastLineEnd)
{
    publish("#update,Board,,,,,13,http://example.org/13");
    const auto update = found();
    ASSERT_TRUE(update);
    EXPECT_EQ(update->description, L"13");
}

TEST_F(UpdateCheck, ListsMayBeWrittenInAnyEncoding)
{
    const std::string row = "#update,Board,,,,,13,http://example.org/13,Gr\xC3\xBC\xC3\x9F"
                            "e\r\n";
    publish(row);
    EXPECT_EQ(found()->description, L"Gr\u00FC\u00DFe");
    publish(row, "\xEF\xBB\xBF");
    EXPECT_EQ(found()->description, L"Gr\u00FC\u00DFe") << "with a mark";
    std::string wide = "\xFF\xFE";
    for (const char c : std::string(kHeader) + "#update,Board,,,,,13,http://example.org/13,Wide\r\n")
        wide += std::string{c, '\0'};
    server.answer("/updates.csv", LoopbackServer::page("200 OK", wide));
    EXPECT_EQ(found()->description, L"Wide");
    for (std::size_t i = 0; i < wide.size(); i += 2)
        std::swap(wide[i], wide[i + 1]);
    server.answer("/updates.csv", LoopbackServer::page("200 OK", wide));
    EXPECT_EQ(found()->description, L"Wide") << "the other order of bytes";
}

TEST_F(UpdateCheck, WideTextWithoutAMarkIsNoList)
{
    std::string wide;
    for (const char c : std::string(kHeader) + "#update,Board,,,,,13,http://example.org/13,Wide\r\n")
        wide += std::string{c, '\0'};
    server.answer("/updates.csv", LoopbackServer::page("200 OK", wide));
    EXPECT_NE(failure(), L"");
}

TEST_F(UpdateCheck, APageInsteadOfAListIsRefused)
{
    server.answer("/updates.csv",
                  LoopbackServer::page("200 OK", "<!DOCTYPE html>\n<html>\n<body>\n<p>Log in, "
                                                 "please</p>\n</body>\n</html>\n"));
    EXPECT_EQ(failure(), stringPrintf(ovoMsg(OVOMSG_UPDATE_LIST_INCOMPLETE).c_str(), list().c_str()));
}

TEST_F(UpdateCheck, QuotedFieldsMaySpanLines)
{
    publish("#update,Board,,,,,13,http://example.org/13,\"One\r\ntwo \"\"three\"\"\"\r\n");
    EXPECT_EQ(found()->description, L"One\ntwo \"three\"");
}

TEST_F(UpdateCheck, ARowWithoutARequiredColumnSpoilsTheList)
{
    const std::wstring message = stringPrintf(ovoMsg(OVOMSG_UPDATE_LIST_INCOMPLETE).c_str(), list().c_str());
    for (const char* row :
         {"#other", "#update,Board,,,,", "#update,Board,,,,,13", "<html><body>Not here</body></html>"}) {
        publish(std::string("#update,Board,,,,,13,http://example.org/13,\r\n") + row + "\r\n");
        EXPECT_EQ(failure(), message) << row;
    }
}

namespace
{

BOOL WINAPI readNothing(HANDLE, LPVOID, DWORD, LPDWORD, LPOVERLAPPED)
{
    ::SetLastError(ERROR_CRC);
    return FALSE;
}

} // namespace

TEST_F(UpdateCheck, ACopyThatCannotBeReadIsReportedAsTheReaderDoes)
{
    publish("#update,Board,,,,,13,http://example.org/13,\r\n");
    const ImportPatch reading(L"ovocor11.dll", "ReadFile", reinterpret_cast<void*>(&readNothing));
    try {
        findUpdate(list(), L"Board", L"Pro", kInstalled);
        ADD_FAILURE() << "no error";
    } catch (const WinError& error) {
        EXPECT_EQ(error.code(), DWORD{ERROR_CRC});
    }
    EXPECT_FALSE(isCached()) << "the copy is gone";
}

namespace
{

HCURSOR g_whileReading = nullptr;

BOOL WINAPI lookAtCursor(HANDLE file, LPVOID bytes, DWORD count, LPDWORD done, LPOVERLAPPED overlapped)
{
    g_whileReading = ::GetCursor();
    return ::ReadFile(file, bytes, count, done, overlapped);
}

} // namespace

TEST_F(UpdateCheck, TheWaitCursorIsShownUntilTheListIsRead)
{
    const HCURSOR wait = ::LoadCursorW(nullptr, IDC_WAIT);
    const ImportPatch reading(L"ovocor11.dll", "ReadFile", reinterpret_cast<void*>(&lookAtCursor));
    HCURSOR whileAsking = wait;
    publish("#update,Board,,,,,13,http://example.org/13,\r\n");
    auto answering = Robot()
                         .waitFor("the dialog", [] { return shownDialog() != nullptr; })
                         .then([&] { whileAsking = ::GetCursor(); })
                         .key(VK_ESCAPE)
                         .start();
    checkForUpdates(list(), L"Board", L"Pro", kInstalled);
    EXPECT_EQ(std::exchange(g_whileReading, nullptr), wait);
    EXPECT_NE(whileAsking, wait);

    publish("#update,Board,,,,,13\r\n");
    EXPECT_THROW(checkForUpdates(list(), L"Board", L"Pro", kInstalled), OvoError);
    EXPECT_EQ(g_whileReading, wait);
    EXPECT_NE(::GetCursor(), wait) << "after a failure, too";
}

TEST_F(UpdateCheck, AnUnclosedQuoteIsAnError)
{
    publish("#update,Board,,,,,13,http://example.org/13,\"never closed\r\n");
    EXPECT_TRUE(failure().starts_with(L"Line 2 "));
}

TEST_F(UpdateCheck, WhatTheServerRefusesIsReportedWithTheAddress)
{
    for (const char* status : {"404 Not Found", "500 Internal Server Error"}) {
        server.answer("/updates.csv", LoopbackServer::page(status, "Sorry"));
        EXPECT_NE(failure().find(list()), std::wstring::npos) << status;
    }
    server.answer("/updates.csv", "HTTP/1.1 200 OK\r\nContent-Length: 5000\r\n\r\nUpdateType");
    EXPECT_NE(failure().find(list()), std::wstring::npos) << "cut short";
}

TEST_F(UpdateCheck, AnAnswerInPartsIsPutTogether)
{
    const std::string body = std::string(kHeader) + "#update,Board,,,,,13,http://example.org/13,Parts\r\n";
    const auto part = [](const std::string& text) {
        char size[20];
        std::snprintf(size, sizeof size, "%zx\r\n", text.size());
        return size + text + "\r\n";
    };
    server.answer("/updates.csv", "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n" +
                                      part(body.substr(0, 50)) + part(body.substr(50)) + "0\r\n\r\n");
    const auto update = found();
    ASSERT_TRUE(update);
    EXPECT_EQ(update->description, L"Parts");
}

TEST_F(UpdateCheck, ANewPlaceOfTheListIsFollowed)
{
    server.answer("/moved.csv",
                  LoopbackServer::page("200 OK", std::string(kHeader) +
                                                     "#update,Board,,,,,13,http://example.org/13,\r\n"));
    for (const char* status : {"301 Moved Permanently", "302 Found", "307 Temporary Redirect"})
        for (const std::wstring& place : {std::wstring(L"/moved.csv"), server.address(L"/moved.csv")}) {
            server.answer("/updates.csv", std::string("HTTP/1.1 ") + status + "\r\nLocation: " +
                                              getMBS(place) + "\r\nContent-Length: 0\r\n\r\n");
            EXPECT_TRUE(found()) << status;
        }
}

TEST_F(UpdateCheck, AnOlderCopyGoesAlsoWhenTheListCannotBeFetched)
{
    publish("");
    downloadUrlToCache(list());
    ASSERT_TRUE(isCached());
    server.answer("/updates.csv", LoopbackServer::page("404 Not Found", ""));
    EXPECT_NE(failure(), L"");
}

TEST_F(UpdateCheck, AListThatIsPackedIsNoList)
{
    server.answer("/updates.csv",
                  "HTTP/1.1 200 OK\r\nContent-Encoding: gzip\r\nContent-Length: 24\r\n\r\n" +
                      std::string("\x1F\x8B\x08\x00\x00\x00\x00\x00\x00\x03packed-bytes\n\n", 24));
    EXPECT_NE(failure(), L"");
    EXPECT_EQ(server.requests().back().find("Accept-Encoding"), std::string::npos) << "it is not asked for";
}

TEST_F(UpdateCheck, AHugeListTakesLittleMemory)
{
    publish("#update,Board,,,,,13,http://example.org/13,\r\n");
    found(); // what is loaded for the first check stays
    constexpr std::size_t kPieces = 800;
    std::string rows;
    while (rows.size() < 64 * 1024)
        rows +=
            "#update,Other product,,,,,13,http://example.org/13,A description of some length for a row\r\n";
    std::size_t sent = 0;
    server.stream("/updates.csv", [&]() -> std::string {
        if (sent++ == 0)
            return "HTTP/1.1 200 OK\r\nConnection: close\r\nContent-Length: " +
                   std::to_string(kPieces * rows.size() + std::strlen(kHeader)) + "\r\n\r\n" + kHeader;
        return sent <= kPieces + 1 ? rows : std::string();
    });
    const auto peak = [] {
        PROCESS_MEMORY_COUNTERS memory{};
        ::GetProcessMemoryInfo(::GetCurrentProcess(), &memory, sizeof memory);
        return memory.PeakWorkingSetSize;
    };
    const std::size_t before = peak();
    EXPECT_FALSE(found());
    EXPECT_GT(sent, kPieces) << "more than 50 MB went over the wire";
    EXPECT_LT(peak() - before, 8u * 1024 * 1024);
}

TEST_F(UpdateCheck, AServerThatNeverAnswersIsGivenUp)
{
    std::promise<void> over;
    const auto waiting = over.get_future().share();
    server.stream("/updates.csv", [waiting] {
        waiting.wait();
        return std::string();
    });
    EXPECT_NE(failure().find(list()), std::wstring::npos);
    over.set_value();
}

// The dialog

TEST_F(UpdateCheck, AnUpdateIsOfferedAndItsPageOpenedOnRequest)
{
    publish("#update,Board,,,,,13,http://example.org/new page,Faster & 100% better %s %n\r\n");
    bool canAccept = false;
    const std::wstring text = shownText(VK_RETURN, &canAccept);
    EXPECT_TRUE(canAccept);
    EXPECT_NE(text.find(L"Faster & 100% better %s %n"), std::wstring::npos) << "shown as it stands";
    EXPECT_NE(text.find(L"Board"), std::wstring::npos);
    EXPECT_NE(text.find(L"http://example.org/new page"), std::wstring::npos);
    EXPECT_EQ(g_opened, (std::vector<std::wstring>{L"http://example.org/new%20page"}));
}

TEST_F(UpdateCheck, TheDialogSaysWhatIsNewForWhatAndWhereItIsDescribed)
{
    const auto withoutReturns = [](std::wstring text) {
        std::erase(text, L'\r');
        return text;
    };
    CString format;
    ASSERT_TRUE(format.LoadString(20222));
    publish("#update,Board,,,,,13,http://example.org/13,Faster\r\n");
    EXPECT_EQ(withoutReturns(shownText(VK_ESCAPE)),
              stringPrintf(format, L"Faster", L"Board", L"http://example.org/13"));
    publish("#update,Board,,,,,13,http://example.org/13,\r\n");
    EXPECT_EQ(withoutReturns(shownText(VK_ESCAPE)),
              stringPrintf(format, L"13", L"Board", L"http://example.org/13"));
    ASSERT_TRUE(format.LoadString(20223));
    publish("");
    EXPECT_EQ(withoutReturns(shownText(VK_ESCAPE)), stringPrintf(format, L"Board"));
}

TEST_F(UpdateCheck, DecliningOpensNothing)
{
    publish("#update,Board,,,,,13,http://example.org/13,\r\n");
    shownText(VK_ESCAPE);
    EXPECT_TRUE(g_opened.empty());
}

TEST_F(UpdateCheck, WithoutAnUpdateThereIsNothingToAccept)
{
    publish("");
    bool canAccept = true;
    const std::wstring text = shownText(VK_ESCAPE, &canAccept);
    EXPECT_FALSE(canAccept);
    EXPECT_NE(text.find(L"Board"), std::wstring::npos);
    EXPECT_TRUE(g_opened.empty());
}

TEST_F(UpdateCheck, AHostilePageIsNotOpened)
{
    publish("#update,Board,,,,,13,file:///C:/Windows/notepad.exe,\r\n");
    auto answering =
        Robot().waitFor("the dialog", [] { return shownDialog() != nullptr; }).key(VK_RETURN).start();
    std::wstring text;
    try {
        checkForUpdates(list(), L"Board", L"Pro", kInstalled);
    } catch (const OvoError& error) {
        text = error.wwhat();
    }
    EXPECT_EQ(text, stringPrintf(ovoMsg(OVOMSG_URL_SCHEME).c_str(), L"file:///C:/Windows/notepad.exe"));
    EXPECT_FALSE(isCached());
    EXPECT_TRUE(g_opened.empty());
}

TEST_F(UpdateCheck, LineBreaksInADescriptionAreKept)
{
    publish("#update,Board,,,,,13,http://example.org/13,\"One\ntwo\"\r\n");
    EXPECT_NE(shownText(VK_ESCAPE).find(L"One\r\ntwo"), std::wstring::npos);
}

TEST_F(UpdateCheck, ALongDescriptionCanBeScrolledTo)
{
    std::string description;
    for (int i = 0; i < 60; ++i)
        description += "Line " + std::to_string(i) + " & 100% %s\n";
    int lines = 0;
    bool scrolls = false;
    publish("#update,Board & Co 100% %n,,,,,13,http://example.org/13,\"" + description + "\"\r\n");
    auto answering =
        Robot()
            .waitFor("the dialog", [] { return shownDialog() != nullptr; })
            .then([&] {
                const HWND text = ::GetDlgItem(shownDialog(), 20508);
                CString shown;
                CWnd::FromHandle(text)->GetWindowText(shown);
                EXPECT_NE(shown.Find(L"Board & Co 100% %n"), -1);
                lines = static_cast<int>(::SendMessageW(text, EM_GETLINECOUNT, 0, 0));
                SCROLLINFO bar{};
                bar.cbSize = sizeof bar;
                bar.fMask = SIF_RANGE | SIF_PAGE;
                scrolls = ::GetScrollInfo(text, SB_VERT, &bar) && bar.nMax > static_cast<int>(bar.nPage);
            })
            .key(VK_ESCAPE)
            .start();
    checkForUpdates(list(), L"Board & Co 100% %n", L"Pro", kInstalled);
    EXPECT_GT(lines, 60);
    EXPECT_TRUE(scrolls);
}

TEST_F(UpdateCheck, ATextThatFitsHasNoScrollBar)
{
    const auto hasBar = [&](const std::string& description) {
        publish("#update,Board,,,,,13,http://example.org/13,\"" + description + "\"\r\n");
        bool bar = false;
        auto answering = Robot()
                             .waitFor("the dialog", [] { return shownDialog() != nullptr; })
                             .then([&] {
                                 const HWND text = ::GetDlgItem(shownDialog(), 20508);
                                 bar = (::GetWindowLongW(text, GWL_STYLE) & WS_VSCROLL) != 0;
                             })
                             .key(VK_ESCAPE)
                             .start();
        checkForUpdates(list(), L"Board", L"Pro", kInstalled);
        return bar;
    };
    EXPECT_FALSE(hasBar("Faster"));
    EXPECT_TRUE(hasBar("1\n2\n3\n4\n5\n6\n7\n8\n9"));
}
