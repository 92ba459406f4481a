#include <ovoui/lists/core/SortKeys.h>

#include <ovoui/lists/core/KeyHeads.h>

#include <algorithm>
#include <array>
#include <numeric>

namespace ovoui::lists
{

void SortKeys::reserve(std::size_t rows)
{
    m_keys.reserve(rows);
}

void SortKeys::add(std::string_view key)
{
    auto* const bytes = static_cast<char*>(m_bytes.allocate(key.size(), 1));
    std::copy(key.begin(), key.end(), bytes);
    m_keys.emplace_back(bytes, key.size());
}

/// Byte by byte, the last one first: no two keys are compared. Equal ones keep their order.
void SortKeys::sortByHeads(std::vector<Row>& rows)
{
    std::vector<Row> sorted(rows.size());
    for (int shift = 0; shift < 64; shift += 8) {
        const auto byteOf = [shift](const Row& row) {
            return static_cast<std::size_t>(row.head >> shift & 0xFF);
        };
        std::array<std::size_t, 257> begins{}; // behind all rows with a smaller byte
        for (const Row& row : rows)
            ++begins[byteOf(row) + 1];
        if (std::find(begins.begin(), begins.end(), rows.size()) != begins.end())
            continue; // all have the same byte here
        std::partial_sum(begins.begin(), begins.end(), begins.begin());
        for (const Row& row : rows)
            sorted[begins[byteOf(row)]++] = row;
        rows.swap(sorted);
    }
}

std::vector<int> SortKeys::order(bool ascending) const
{
    const KeyHeads heads(m_keys);
    std::vector<Row> sorted;
    sorted.reserve(m_keys.size());
    for (const std::string_view key : m_keys) {
        const std::uint64_t head = heads.of(key);
        sorted.push_back({ascending ? head : ~head, static_cast<int>(sorted.size())});
    }
    sortByHeads(sorted);
    if (!heads.tellAll())
        sortEqualHeads(sorted, heads.end(), ascending);
    std::vector<int> rows(sorted.size());
    std::transform(sorted.begin(), sorted.end(), rows.begin(), [](const Row& row) { return row.row; });
    return rows;
}

/// By the bytes from `begin` on. In place, so that the many short runs allocate nothing.
void SortKeys::sortEqualHeads(std::vector<Row>& rows, std::size_t begin, bool ascending) const
{
    const auto restOf = [&](const Row& row) {
        const std::string_view key = m_keys[static_cast<std::size_t>(row.row)];
        return key.substr(std::min(begin, key.size()));
    };
    const auto isBefore = [&](const Row& one, const Row& other) {
        const int order = restOf(one).compare(restOf(other));
        return order == 0 ? one.row < other.row : (order < 0) == ascending;
    };
    for (auto run = rows.begin(); run != rows.end();) {
        const auto end = std::find_if(run, rows.end(), [&](const Row& row) { return row.head != run->head; });
        std::sort(run, end, isBefore);
        run = end;
    }
}

} // namespace ovoui::lists
