#include "LoopbackServer.h"

#include <ovocor/OvoError.h>
#include <ovocor/TextReader.h>
#include <ovocor/Url.h>
#include <ovocor/WinError.h>

#include <testkit/ImportPatch.h>

#include <windows.h>
#include <wininet.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

namespace
{

std::string contentOf(const std::wstring& path)
{
    const HANDLE file =
        ::CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_NE(file, INVALID_HANDLE_VALUE) << ::GetLastError();
    LARGE_INTEGER size{};
    ::GetFileSizeEx(file, &size);
    std::string content(static_cast<std::size_t>(size.QuadPart), '\0');
    DWORD got = 0;
    ::ReadFile(file, content.data(), static_cast<DWORD>(content.size()), &got, nullptr);
    ::CloseHandle(file);
    return content;
}

bool exists(const std::wstring& path)
{
    return ::GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

/// The local file of a cache entry, or nothing.
std::wstring cachedFile(const std::wstring& url)
{
    std::vector<unsigned char> buffer(16 * 1024);
    auto* entry = reinterpret_cast<INTERNET_CACHE_ENTRY_INFOW*>(buffer.data());
    auto size = static_cast<DWORD>(buffer.size());
    return ::GetUrlCacheEntryInfoW(url.c_str(), entry, &size) ? entry->lpszLocalFileName : L"";
}

/// Whether a file whose name begins so lies anywhere in a folder.
bool holdsFile(const std::wstring& folder, const std::wstring& begin)
{
    WIN32_FIND_DATAW found{};
    const HANDLE search = ::FindFirstFileW((folder + L"\\*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return false;
    bool holds = false;
    do {
        const std::wstring name = found.cFileName;
        if (name.starts_with(begin))
            holds = true;
        else if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) && name != L"." && name != L"..")
            holds = holdsFile(folder + L'\\' + name, begin);
    } while (!holds && ::FindNextFileW(search, &found));
    ::FindClose(search);
    return holds;
}

std::wstring parentOf(const std::wstring& path)
{
    return path.substr(0, path.find_last_of(L'\\'));
}

/// The text of the error that a download ends with, or nothing.
std::wstring errorOf(const std::wstring& url)
{
    try {
        downloadUrlToCache(url);
    } catch (const OvoError& error) {
        return error.wwhat();
    }
    return {};
}

bool mentions(const std::wstring& text, const std::wstring& part)
{
    return text.find(part) != text.npos;
}

class Download : public testing::Test
{
protected:
    Download()
    {
        // The tests talk to this machine only, whatever proxy it is told to use.
        ::SetEnvironmentVariableW(L"http_proxy", nullptr);
    }

    LoopbackServer server;
};

} // namespace

TEST(CanonicalizeUrl, LeavesACanonicalAddressAlone)
{
    for (const wchar_t* url : {L"http://example.org/", L"https://example.org/a/b.csv?x=1&y=2#part",
                               L"ftp://example.org/pub/file.txt", L"http://example.org:8080/a%20b"})
        EXPECT_EQ(canonicalizeUrl(url), url);
}

TEST(CanonicalizeUrl, EscapesUnsafeCharacters)
{
    EXPECT_EQ(canonicalizeUrl(L"http://example.org/two words"), L"http://example.org/two%20words");
}

TEST(CanonicalizeUrl, ResolvesDots)
{
    EXPECT_EQ(canonicalizeUrl(L"http://example.org/a/./b/../c"), L"http://example.org/a/c");
}

TEST(CanonicalizeUrl, GrowsWithTheAddress)
{
    const std::wstring spaces(600, L' ');
    std::wstring escaped;
    for (int i = 0; i < 600; ++i)
        escaped += L"%20";
    EXPECT_EQ(canonicalizeUrl(L"http://example.org/a" + spaces + L"b"),
              L"http://example.org/a" + escaped + L"b");
}

TEST(CanonicalizeUrl, RefusesNothingAtAll)
{
    EXPECT_THROW(canonicalizeUrl(L""), OvoError);
}

TEST_F(Download, PutsTheFileIntoTheCache)
{
    const std::wstring url = server.address(L"/list.csv");
    server.answer("/list.csv", LoopbackServer::page("200 OK", "oak,elm\r\n"));

    const std::wstring path = downloadUrlToCache(url);

    EXPECT_EQ(contentOf(path), "oak,elm\r\n");
    EXPECT_EQ(cachedFile(url), path) << "the cache knows it by its address";
    EXPECT_TRUE(::DeleteUrlCacheEntryW(url.c_str()));
    EXPECT_FALSE(exists(path));
    EXPECT_EQ(cachedFile(url), L"");
}

TEST_F(Download, GivesAFileThatTheTextReaderReads)
{
    const std::wstring url = server.address(L"/text");
    server.answer("/text", LoopbackServer::page("200 OK", "\xEF\xBB\xBF"
                                                          "caf\xC3\xA9\n"));
    OVO::TextReader reader(downloadUrlToCache(url));
    std::wstring line;
    EXPECT_TRUE(reader.readLine(line));
    EXPECT_EQ(line, L"caf\u00E9");
    reader.close();
    EXPECT_TRUE(::DeleteUrlCacheEntryW(url.c_str()));
}

TEST_F(Download, AsksTheServerEveryTime)
{
    const std::wstring url = server.address(L"/list.csv");
    server.answer("/list.csv", LoopbackServer::page("200 OK", "old"));
    downloadUrlToCache(url);
    server.answer("/list.csv", LoopbackServer::page("200 OK", "new and longer"));
    EXPECT_EQ(contentOf(downloadUrlToCache(url)), "new and longer");
    EXPECT_EQ(server.requests().size(), 2u);
    EXPECT_TRUE(server.requests()[0].starts_with("GET /list.csv HTTP/1.1\r\n"));
    ::DeleteUrlCacheEntryW(url.c_str());
}

TEST_F(Download, TakesEmptyAndLargeFiles)
{
    std::string large;
    for (int i = 0; large.size() < 1'000'000; ++i)
        large += std::to_string(i) + '\0';
    for (const std::string& body : {std::string(), large}) {
        const std::wstring url = server.address(L"/file");
        server.answer("/file", LoopbackServer::page("200 OK", body));
        EXPECT_TRUE(contentOf(downloadUrlToCache(url)) == body) << body.size();
        ::DeleteUrlCacheEntryW(url.c_str());
    }
}

TEST_F(Download, TakesABodyWhoseSizeIsNotAnnounced)
{
    const std::wstring url = server.address(L"/stream");
    server.answer("/stream", "HTTP/1.1 200 OK\r\nConnection: close\r\n\r\nall of it");
    EXPECT_EQ(contentOf(downloadUrlToCache(url)), "all of it");
    server.answer("/stream", "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\nConnection: close\r\n\r\n"
                             "4\r\nall \r\n5\r\nof it\r\n0\r\n\r\n");
    EXPECT_EQ(contentOf(downloadUrlToCache(url)), "all of it");
    ::DeleteUrlCacheEntryW(url.c_str());
}

TEST_F(Download, FollowsARedirection)
{
    const std::wstring url = server.address(L"/moved");
    server.answer(
        "/moved",
        "HTTP/1.1 302 Found\r\nLocation: /list.csv\r\nContent-Length: 0\r\nConnection: close\r\n\r\n");
    server.answer("/list.csv", LoopbackServer::page("200 OK", "here"));
    EXPECT_EQ(contentOf(downloadUrlToCache(url)), "here");
    EXPECT_NE(cachedFile(url), L"") << "kept under the address that was asked for";
    ::DeleteUrlCacheEntryW(url.c_str());
}

TEST_F(Download, OfAnAddressThatNeedsEscapingIsKeptUnderTheAddressAsGiven)
{
    const std::wstring url = server.address(L"/two words");
    server.answer("/two%20words", LoopbackServer::page("200 OK", "here"));
    EXPECT_EQ(contentOf(downloadUrlToCache(url)), "here");
    EXPECT_TRUE(::DeleteUrlCacheEntryW(url.c_str()));
}

TEST_F(Download, AsksForTheQueryButNotForThePlaceInThePage)
{
    const std::wstring url = server.address(L"/list?kind=oak&year=11#leaves");
    server.answer("/list?kind=oak&year=11", LoopbackServer::page("200 OK", "here"));
    EXPECT_EQ(contentOf(downloadUrlToCache(url)), "here");
    EXPECT_TRUE(::DeleteUrlCacheEntryW(url.c_str()));
}

TEST_F(Download, AsksForTheRootWhenTheAddressHasNoPath)
{
    server.answer("/", LoopbackServer::page("200 OK", "here"));
    const std::wstring url = server.address(L"");
    EXPECT_EQ(contentOf(downloadUrlToCache(url)), "here");
    EXPECT_TRUE(::DeleteUrlCacheEntryW(url.c_str()));
}

TEST_F(Download, OfAFileThatIsNotThereSaysWhatTheServerAnswered)
{
    const std::wstring url = server.address(L"/gone.csv");
    const std::wstring error = errorOf(url);
    EXPECT_TRUE(mentions(error, url)) << testing::PrintToString(error);
    EXPECT_TRUE(mentions(error, L"404 Not Found")) << testing::PrintToString(error);
    EXPECT_TRUE(mentions(error, L"The file was not found. Check the address.")) << testing::PrintToString(error);
    EXPECT_EQ(cachedFile(url), L"");
}

TEST_F(Download, SaysWhatToDoAboutOtherAnswersOfTheServer)
{
    server.answer("/secret", LoopbackServer::page("403 Forbidden", ""));
    server.answer("/broken", LoopbackServer::page("500 Internal Server Error", ""));
    EXPECT_TRUE(mentions(errorOf(server.address(L"/secret")), L"Access denied."));
    EXPECT_TRUE(mentions(errorOf(server.address(L"/broken")), L"A server error occurred. Try again later."));

    server.answer("/curt", "HTTP/1.1 418\r\nContent-Length: 0\r\nConnection: close\r\n\r\n");
    EXPECT_TRUE(mentions(errorOf(server.address(L"/curt")), L"answered 418. Check"));
}

TEST_F(Download, TellsTheServerWhatEscapesInNameAndPasswordStandFor)
{
    server.answer("/secret", "HTTP/1.1 401 Unauthorized\r\nWWW-Authenticate: Basic realm=\"oak\"\r\n"
                             "Content-Length: 0\r\nConnection: close\r\n\r\n");
    const std::wstring address = server.address(L"/secret");
    const std::wstring url = L"http://me%40firm.example:p%3Ass@" + address.substr(address.find(L"//") + 2);
    EXPECT_TRUE(mentions(errorOf(url), L"Access denied."));
    const std::vector<std::string> requests = server.requests();
    const auto saysBoth = [](const std::string& request) {
        const char* const wanted = "bWVAZmlybS5leGFtcGxlOnA6c3M="; // me@firm.example:p:ss
        return request.find(std::string("Authorization: Basic ") + wanted + "\r\n") != request.npos;
    };
    EXPECT_TRUE(std::ranges::any_of(requests, saysBoth)) << testing::PrintToString(requests);
}

TEST_F(Download, OfARefusedConnectionNamesTheServer)
{
    const LoopbackPort closed;
    const std::wstring url = closed.address(L"/list.csv");
    const std::wstring error = errorOf(url);
    EXPECT_TRUE(mentions(error, url)) << testing::PrintToString(error);
    EXPECT_TRUE(mentions(error, L"\"127.0.0.1\" cannot be reached or refused"))
        << testing::PrintToString(error);
    EXPECT_EQ(cachedFile(url), L"");
}

TEST_F(Download, OfABodyCutShortSaysHowMuchCame)
{
    const std::wstring url = server.address(L"/cut");
    server.answer("/cut", "HTTP/1.1 200 OK\r\nContent-Length: 1000\r\nConnection: close\r\n\r\n" +
                              std::string(100, 'x'));
    const std::wstring error = errorOf(url);
    EXPECT_TRUE(mentions(error, url)) << testing::PrintToString(error);
    EXPECT_TRUE(mentions(error, L"100 of 1000 bytes")) << testing::PrintToString(error);
    EXPECT_TRUE(mentions(error, L"Try again")) << testing::PrintToString(error);
    EXPECT_EQ(cachedFile(url), L"") << "the part is not kept";
}

TEST_F(Download, OfABodyCutShortLeavesNoFileBehind)
{
    // The cache names files after addresses; this one has never been used.
    const std::string mark = std::to_string(::GetTickCount64());
    const std::wstring wideMark(mark.begin(), mark.end());
    server.answer("/whole" + mark, LoopbackServer::page("200 OK", "oak"));
    server.answer("/cut" + mark, "HTTP/1.1 200 OK\r\nContent-Length: 1000\r\nConnection: close\r\n\r\noak");
    const std::wstring whole = downloadUrlToCache(server.address(L"/whole" + wideMark));
    EXPECT_FALSE(errorOf(server.address(L"/cut" + wideMark)).empty());

    // It spreads them over folders that stand side by side.
    const std::wstring cache = parentOf(parentOf(whole));
    EXPECT_TRUE(holdsFile(cache, L"whole" + wideMark)) << "where files are looked for, they are found";
    EXPECT_FALSE(holdsFile(cache, L"cut" + wideMark));
    ::DeleteUrlCacheEntryW(server.address(L"/whole" + wideMark).c_str());
}

namespace
{

HANDLE WINAPI openNothing(LPCWSTR, DWORD, DWORD, LPSECURITY_ATTRIBUTES, DWORD, DWORD, HANDLE)
{
    ::SetLastError(ERROR_SHARING_VIOLATION);
    return INVALID_HANDLE_VALUE;
}

} // namespace

TEST_F(Download, WhoseFileCannotBeOpenedSaysSoAndLeavesNoneBehind)
{
    const std::string mark = std::to_string(::GetTickCount64());
    const std::wstring wideMark(mark.begin(), mark.end());
    const std::wstring url = server.address(L"/held" + wideMark);
    server.answer("/whole" + mark, LoopbackServer::page("200 OK", "oak"));
    server.answer("/held" + mark, LoopbackServer::page("200 OK", "oak"));
    const std::wstring whole = downloadUrlToCache(server.address(L"/whole" + wideMark));
    {
        const ovo::testkit::ImportPatch opening(L"ovocor11.dll", "CreateFileW",
                                                reinterpret_cast<void*>(&openNothing));
        const std::wstring error = errorOf(url);
        EXPECT_TRUE(mentions(error, url)) << testing::PrintToString(error);
        EXPECT_TRUE(error.ends_with(formatMessage(ERROR_SHARING_VIOLATION))) << testing::PrintToString(error);
    }
    const std::wstring cache = parentOf(parentOf(whole));
    EXPECT_TRUE(holdsFile(cache, L"whole" + wideMark)) << "where files are looked for, they are found";
    EXPECT_FALSE(holdsFile(cache, L"held" + wideMark));
    ::DeleteUrlCacheEntryW(server.address(L"/whole" + wideMark).c_str());
}

TEST_F(Download, ThatFailsLeavesTheFileOfAnEarlierOneAlone)
{
    const std::wstring url = server.address(L"/list.csv");
    server.answer("/list.csv", LoopbackServer::page("200 OK", "good"));
    const std::wstring path = downloadUrlToCache(url);
    server.answer("/list.csv", LoopbackServer::page("500 Internal Server Error", "bad"));
    EXPECT_FALSE(errorOf(url).empty());
    EXPECT_EQ(cachedFile(url), path);
    EXPECT_EQ(contentOf(path), "good");
    ::DeleteUrlCacheEntryW(url.c_str());
}

TEST_F(Download, TakesWebAddressesOnly)
{
    for (const wchar_t* url :
         {L"file:///C:/oak.csv", L"ftp://example.org/oak.csv", L"mailto:oak@example.org"})
        EXPECT_TRUE(mentions(errorOf(url), L"only http and https"))
            << testing::PrintToString(std::wstring(url));
}

TEST_F(Download, RefusesWhatIsNoAddress)
{
    for (const wchar_t* url : {L"", L"oak", L"http:///list.csv", L"http://", L"C:\\oak.csv"}) {
        const std::wstring error = errorOf(url);
        EXPECT_FALSE(error.empty()) << testing::PrintToString(std::wstring(url));
        EXPECT_TRUE(mentions(error, url)) << testing::PrintToString(error);
        EXPECT_TRUE(mentions(error, L"Check the spelling") || mentions(error, L"only http and https"))
            << testing::PrintToString(error);
    }
}

TEST_F(Download, OfAnUnknownServerNamesIt)
{
    // A name that can never be registered.
    const std::wstring error = errorOf(L"http://oak.invalid/list.csv");
    EXPECT_TRUE(mentions(error, L"\"oak.invalid\"")) << testing::PrintToString(error);
}
