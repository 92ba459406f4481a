// Whatever a path says: as many steps as its separators part, and what was read is written so that it reads
// the same.
#include "Check.h"

#include <ovoui/tree/core/TreePath.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

using namespace ovoui::tree;

namespace
{

/// Separators of steps, counted in a simple way: those behind an even number of escapes.
std::size_t countSeparators(const std::wstring& path)
{
    std::size_t count = 0;
    bool escaped = false;
    for (const wchar_t character : path) {
        count += !escaped && character == L'/';
        escaped = !escaped && character == L'\\';
    }
    return count;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::wstring path(data, data + size);
    const std::vector<PathStep> steps = parsePath(path);
    const bool leads = path.starts_with(L'/');
    demand(steps.size() == (path.empty() ? 0 : countSeparators(path) + (leads ? 0 : 1)),
           "a step for each separator");
    for (const PathStep& step : steps) {
        demand(step.ordinal >= 1, "ordinals count from 1");
        demand(step.text.size() <= path.size(), "no text out of nothing");
    }
    const std::wstring written = formatPath(steps);
    demand(parsePath(written) == steps, "what was read is written so that it reads the same");
    demand(formatPath(parsePath(written)) == written, "what was written is written the same again");

    // Any texts at all make a path that leads back to them.
    std::vector<PathStep> any;
    for (std::size_t i = 0; i < size; i += 3)
        any.push_back({path.substr(i, 2), i + 2 < size ? data[i + 2] % 5u + 1 : 1});
    demand(parsePath(formatPath(any)) == any, "any texts can be written");
    return 0;
}
