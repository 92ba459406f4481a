// Parsing 50 MB of comma-separated text, against the least that can be done with it: looking for line feeds.
#include <ovocor/CsvParser.h>

#include <catch2/catch.hpp>

#include <algorithm>
#include <string>
#include <string_view>

namespace
{

constexpr std::size_t kBytes = 50'000'000;
constexpr std::size_t kPiece = 32 * 1024; // characters
constexpr const wchar_t* kHeader = L"Kind,Product,Options,OS,Processor,Version,NewVersion,Page,Description";

/// Rows of nine fields; every fifth has a quoted field with a comma and doubled quotes.
std::wstring updateList()
{
    std::wstring text;
    text.reserve(kBytes / sizeof(wchar_t) + 256);
    for (int i = 0; text.size() * sizeof(wchar_t) < kBytes; ++i) {
        const std::wstring number = std::to_wstring(i);
        text += L"#update,Oak " + number + L",*,Windows,,11.*,11.2." + number + L",http://example.org/oak/" +
                number;
        text +=
            i % 5 ? L",Repairs the drawing of leaves\r\n" : L",\"Repairs, at last, the \"\"drawing\"\"\"\r\n";
    }
    return text;
}

std::size_t countRecords(const std::wstring& text)
{
    OVO::CSVParser parser(kHeader);
    std::size_t records = 0;
    for (std::size_t at = 0; at < text.size(); at += kPiece) {
        parser.feed(std::wstring_view(text).substr(at, kPiece));
        while (parser.next())
            ++records;
    }
    return records;
}

} // namespace

TEST_CASE("Parsing 50 MB of comma-separated text")
{
    const std::wstring text = updateList();
    const auto scan = [&text] {
        return static_cast<std::size_t>(std::count(text.begin(), text.end(), L'\n'));
    };
    REQUIRE(countRecords(text) == scan());

    BENCHMARK("scan for line feeds")
    {
        return scan();
    };
    BENCHMARK("CSVParser [at most 15]")
    {
        return countRecords(text);
    };
}
