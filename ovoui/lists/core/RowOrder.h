/// Sorting rows, by whatever comparison.
#pragma once

#include <cstddef>
#include <numeric>
#include <vector>

namespace ovoui::lists
{

/// The rows 0 to `count` - 1 in order: `before(a, b)` says that row a comes before row b. Rows of which none
/// comes before the other keep their order. A comparison that contradicts itself gives some order, and no
/// harm.
template <class Before>
std::vector<int> orderOfRows(int count, const Before& before)
{
    std::vector<int> rows(static_cast<std::size_t>(count));
    std::iota(rows.begin(), rows.end(), 0);
    std::vector<int> merged(rows.size());
    for (std::size_t run = 1; run < rows.size(); run *= 2) {
        for (std::size_t left = 0; left < rows.size(); left += 2 * run) {
            const std::size_t middle = left + run < rows.size() ? left + run : rows.size();
            const std::size_t right = left + 2 * run < rows.size() ? left + 2 * run : rows.size();
            std::size_t from = left;
            std::size_t other = middle;
            for (std::size_t to = left; to < right; ++to) {
                const bool takesOther = from == middle || (other < right && before(rows[other], rows[from]));
                merged[to] = takesOther ? rows[other++] : rows[from++];
            }
        }
        rows.swap(merged);
    }
    return rows;
}

} // namespace ovoui::lists
