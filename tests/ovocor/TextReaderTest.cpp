#include <ovocor/TextReader.h>

#include <ovocor/CsvParser.h>
#include <ovocor/Text.h>
#include <ovocor/WinError.h>

#include "TemporaryFolder.h"

#include <windows.h>
#include <psapi.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace OVO;
using namespace std::string_literals;

namespace
{

using Lines = std::vector<std::wstring>;

class TextReaderTest : public testing::Test
{
protected:
    Lines linesOf(std::string_view bytes)
    {
        TextReader reader(folder.write(L"text.txt", bytes));
        encoding = reader.encoding();
        Lines lines;
        std::wstring line;
        while (reader.readLine(line))
            lines.push_back(line);
        return lines;
    }

    TemporaryFolder folder;
    TextEncoding encoding{};
};

std::size_t memoryInUse()
{
    PROCESS_MEMORY_COUNTERS counters{};
    ::K32GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof counters);
    return counters.PagefileUsage;
}

} // namespace

TEST_F(TextReaderTest, ReadsUtf8WithAndWithoutMark)
{
    const Lines expected{L"caf\u00E9", L"\U0001F333"};
    EXPECT_EQ(linesOf("caf\xC3\xA9\r\n\xF0\x9F\x8C\xB3\n"), expected);
    EXPECT_EQ(encoding, TextEncoding::Utf8);
    EXPECT_EQ(linesOf("\xEF\xBB\xBF"
                      "caf\xC3\xA9\r\n\xF0\x9F\x8C\xB3"),
              expected);
    EXPECT_EQ(encoding, TextEncoding::Utf8);
}

TEST_F(TextReaderTest, ReadsUtf16OfBothOrders)
{
    EXPECT_EQ(linesOf("\xFF\xFE\x60\x22\n\0\x3C\xD8\x33\xDF"s), (Lines{L"\u2260", L"\U0001F333"}));
    EXPECT_EQ(encoding, TextEncoding::Utf16le);
    EXPECT_EQ(linesOf("\xFE\xFF\x22\x60\0\n\xD8\x3C\xDF\x33"s), (Lines{L"\u2260", L"\U0001F333"}));
    EXPECT_EQ(encoding, TextEncoding::Utf16be);
}

TEST_F(TextReaderTest, ReadsTheAnsiCodePageOtherwise)
{
    EXPECT_EQ(linesOf("caf\xE9\nz"), (Lines{getWCS("caf\xE9"), L"z"}));
    EXPECT_EQ(encoding, TextEncoding::Ansi);
    if (::GetACP() == 1252) {
        EXPECT_EQ(linesOf("caf\xE9 \x80"), (Lines{L"caf\u00E9 \u20AC"}));
    }
}

TEST_F(TextReaderTest, ReadsAnEmptyFile)
{
    EXPECT_EQ(linesOf(""), Lines{});
    EXPECT_EQ(linesOf("\n\n"), Lines(2));
}

TEST_F(TextReaderTest, RaisesTheSystemsErrorForAFileThatIsNotThere)
{
    const std::wstring path = folder.path() + L"\\oak.txt";
    try {
        const TextReader reader(path);
        FAIL() << "no error was raised";
    } catch (const WinError& error) {
        EXPECT_EQ(error.code(), static_cast<DWORD>(ERROR_FILE_NOT_FOUND));
        EXPECT_NE(std::wstring(error.wwhat()).find(path), std::wstring::npos) << "the file is named";
    }
}

TEST_F(TextReaderTest, RaisesTheSystemsErrorForAFolder)
{
    EXPECT_THROW(TextReader{folder.path()}, WinError);
}

TEST_F(TextReaderTest, LetsOthersDeleteTheFileOnceItIsClosed)
{
    const std::wstring path = folder.write(L"text.txt", "oak\nelm\n");
    TextReader reader(path);
    std::wstring line;
    EXPECT_TRUE(reader.readLine(line));
    reader.close();
    EXPECT_TRUE(::DeleteFileW(path.c_str()));
    EXPECT_EQ(::GetFileAttributesW(path.c_str()), INVALID_FILE_ATTRIBUTES);
    EXPECT_FALSE(reader.readLine(line));
    EXPECT_EQ(line, L"");
    EXPECT_EQ(reader.encoding(), TextEncoding::Utf8);
}

TEST_F(TextReaderTest, ReadsAFileThatIsOpenForWriting)
{
    const std::wstring path = folder.write(L"text.txt", "oak\n");
    const HANDLE writer =
        ::CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(writer, INVALID_HANDLE_VALUE);
    TextReader reader(path);
    std::wstring line;
    EXPECT_TRUE(reader.readLine(line));
    EXPECT_EQ(line, L"oak");
    ::CloseHandle(writer);
}

TEST_F(TextReaderTest, MovesWithItsPlaceInTheFile)
{
    TextReader first(folder.write(L"text.txt", "oak\nelm\n"));
    std::wstring line;
    first.readLine(line);
    TextReader second = std::move(first);
    EXPECT_TRUE(second.readLine(line));
    EXPECT_EQ(line, L"elm");
}

TEST_F(TextReaderTest, NeedsNoMoreMemoryForALargerFile)
{
    std::string bytes;
    for (int i = 0; bytes.size() < 40'000'000; ++i)
        bytes += "oak,\"elm " + std::to_string(i) + "\",caf\xC3\xA9\r\n";
    const std::wstring path = folder.write(L"large.csv", bytes);
    const std::size_t expected = static_cast<std::size_t>(std::count(bytes.begin(), bytes.end(), '\n'));
    bytes = std::string();

    const std::size_t before = memoryInUse();
    TextReader reader(path);
    CSVParser parser(L"A,B,C");
    std::wstring line;
    std::size_t records = 0;
    while (reader.readLine(line)) {
        parser.feed(line);
        parser.feed(L"\n");
        while (parser.next())
            ++records;
    }
    EXPECT_EQ(records, expected);
    EXPECT_LT(memoryInUse(), before + 4'000'000);
}
