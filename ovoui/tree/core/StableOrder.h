/// Sorting by a comparison that cannot be trusted. Plain values, no windows.
#pragma once

#include <cstddef>
#include <vector>

namespace ovoui::tree
{

/// Puts values into order by `compare(a, b)`, which is negative when `a` comes before `b`; equal values keep
/// their order. A comparison that contradicts itself gives some order of the same values, and one that raises
/// an exception leaves them as they were; the standard library promises neither.
template <class Value, class Compare>
void sortStably(std::vector<Value>& values, Compare&& compare)
{
    std::vector<Value> from = values;
    std::vector<Value> to(values.size());
    for (std::size_t width = 1; width < from.size(); width *= 2) {
        for (std::size_t start = 0; start < from.size(); start += 2 * width) {
            const std::size_t middle = start + width < from.size() ? start + width : from.size();
            const std::size_t end = middle + width < from.size() ? middle + width : from.size();
            std::size_t left = start;
            std::size_t right = middle;
            for (std::size_t at = start; at < end; ++at) {
                const bool takesRight =
                    left == middle || (right < end && compare(from[right], from[left]) < 0);
                to[at] = takesRight ? from[right++] : from[left++];
            }
        }
        from.swap(to);
    }
    values = from;
}

} // namespace ovoui::tree
