// Looking through an update list against parsing it alone.
#include <ovoui/update/core/ListSearch.h>

#include <catch2/catch.hpp>

#include <string>
#include <vector>

using namespace ovoui::update;

namespace
{

constexpr int kRows = 100'000;

/// Half of the rows are for the program, and match its version.
std::vector<std::wstring> list()
{
    std::vector<std::wstring> lines;
    for (int i = 0; i < kRows; ++i)
        lines.push_back(i % 2 ? L"#update,Drawing Board,Professional,Windows,Intel64,11.*,11.3.0." +
                                    std::to_wstring(i) +
                                    L",https://example.org/11.3,\"Faster, and prints on both sides\""
                              : L"#update,Product " + std::to_wstring(i) +
                                    L",,,,11.*,11.3.0.2000,https://example.org/11.3,Something else");
    return lines;
}

std::size_t parsed(const std::vector<std::wstring>& lines)
{
    OVO::CSVParser parser(kUpdateColumns);
    std::size_t rows = 0;
    const auto take = [&] {
        while (parser.next())
            ++rows;
    };
    for (const std::wstring& line : lines) {
        parser.feed(line);
        parser.feed(L"\n");
        take();
    }
    parser.finish();
    take();
    return rows;
}

std::wstring searched(const std::vector<std::wstring>& lines)
{
    RunningProduct running;
    running.product = L"Drawing Board";
    running.options = L"Professional";
    running.version = {11, 2, 0, 1234};
    ListSearch search(running);
    for (const std::wstring& line : lines)
        search.feedLine(line);
    search.finish();
    return search.offer()->version;
}

} // namespace

TEST_CASE("a list of 100,000 rows")
{
    const std::vector<std::wstring> lines = list();
    REQUIRE(searched(lines) == L"11.3.0.99999");
    BENCHMARK("parsing")
    {
        return parsed(lines);
    };
    BENCHMARK("searching [at most 3]")
    {
        return searched(lines);
    };
}
