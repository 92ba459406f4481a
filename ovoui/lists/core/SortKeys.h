/// Sorting rows by keys of bytes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace ovoui::lists
{

/// One key for each row, in the order of the rows. The bytes lie in one block. What all keys begin with is
/// left out of account, and the first bytes behind it are taken for a number: most rows are in order by that.
class SortKeys
{
public:
    void reserve(std::size_t rows, std::size_t bytes);
    void add(std::string_view key);

    /// The rows sorted by their keys, byte by byte. Rows with equal keys keep their order, descending too.
    std::vector<int> order(bool ascending) const;

private:
    struct Place
    {
        std::size_t begin;
        std::size_t size;
    };
    struct Key
    {
        std::uint64_t head; ///< the first bytes that may differ, zeros behind a shorter key
        int row;
    };

    std::string_view keyOf(int row) const;
    std::size_t commonLength() const;
    std::vector<Key> keysBehind(std::size_t common) const;
    static void sortByHeads(std::vector<Key>& keys);

    std::vector<char> m_bytes;
    std::vector<Place> m_places; ///< by row
};

} // namespace ovoui::lists
