/// Sorting rows by keys of bytes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory_resource>
#include <string_view>
#include <vector>

namespace ovoui::lists
{

/// One key for each row, in the order of the rows. Most get into order by their heads (KeyHeads), without a
/// comparison.
class SortKeys
{
public:
    void reserve(std::size_t rows);
    void add(std::string_view key);

    /// The rows sorted by their keys, byte by byte. Rows with equal keys keep their order, descending too.
    std::vector<int> order(bool ascending) const;

private:
    struct Row
    {
        std::uint64_t head; ///< of its key
        int row;
    };

    static void sortByHeads(std::vector<Row>& rows);
    void sortEqualHeads(std::vector<Row>& rows, std::size_t begin, bool ascending) const;

    std::pmr::monotonic_buffer_resource m_bytes;
    std::vector<std::string_view> m_keys; ///< by row
};

} // namespace ovoui::lists
