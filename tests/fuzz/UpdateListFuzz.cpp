// Whatever a server sends as an update list: an offer that stands in it, none, or an error; and the
// examination for publishers agrees about lists that cannot be used.
#include "Check.h"

#include <ovocor/OvoError.h>
#include <ovocor/core/TextStream.h>
#include <ovoui/update/core/ListLint.h>
#include <ovoui/update/core/ListSearch.h>
#include <tests/ovocor/core/MemorySource.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

using namespace ovoui::update;

namespace
{

enum class End
{
    Read,
    Incomplete,
    NoList
};

std::vector<std::wstring> linesOf(const std::string& bytes)
{
    MemorySource source(bytes, 7);
    OVO::TextStream stream(source, &fromLatin1, 64);
    std::vector<std::wstring> lines;
    for (std::wstring line; stream.readLine(line);)
        lines.push_back(line);
    return lines;
}

End search(ListSearch& search, const std::vector<std::wstring>& lines)
{
    try {
        for (const std::wstring& line : lines)
            search.feedLine(line);
        search.finish();
        return End::Read;
    } catch (const IncompleteRow& row) {
        demand(row.line >= 1 && row.line <= lines.size(), "the line is one of the list");
        return End::Incomplete;
    } catch (const OvoError&) {
        return End::NoList;
    }
}

std::vector<Finding> examine(const std::vector<std::wstring>& lines)
{
    ListLint lint;
    for (const std::wstring& line : lines)
        lint.feedLine(line);
    return lint.finish();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes(data, data + size);
    const std::vector<std::wstring> lines = linesOf(bytes);
    RunningProduct running;
    running.product = L"P";
    running.options = L"O";
    running.version = {11, 0, 0, 0};

    ListSearch found(running);
    const End end = search(found, lines);
    if (found.offer()) {
        const auto named = [](const std::wstring& line) { return line.find(L'P') != std::wstring::npos; };
        demand(std::ranges::any_of(lines, named), "a row names the product");
        demand(!found.offer()->description.empty() || found.offer()->version.empty(),
               "there is something to read");
    }

    const std::vector<Finding> findings = examine(lines);
    demand(std::ranges::is_sorted(findings, {}, &Finding::line), "findings are sorted");
    const bool refused = std::ranges::any_of(
        findings, [](const Finding& finding) { return finding.weight == Finding::Weight::Error; });
    demand(end == End::Read || refused, "a list that cannot be used is not called good");
    for (const Finding& finding : findings)
        demand(finding.line >= 1 && finding.line <= std::max<std::size_t>(lines.size(), 1),
               "a line of the list");
    return 0;
}
