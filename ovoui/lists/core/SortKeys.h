/// Sorting rows by keys of bytes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace ovoui::lists
{

/// One key for each row, in the order of the rows. The bytes lie in one block, and the first of each key are
/// compared as a number: most comparisons need no more.
class SortKeys
{
public:
    void reserve(std::size_t rows, std::size_t bytes);
    void add(std::string_view key);

    /// The rows sorted by their keys, byte by byte. Rows with equal keys keep their order, descending too.
    std::vector<int> order(bool ascending) const;

private:
    struct Key
    {
        std::uint64_t head; ///< the first eight bytes, zeros behind a shorter key
        std::size_t begin;
        std::size_t size;
        int row;
    };

    bool isBefore(const Key& one, const Key& other) const;

    std::vector<char> m_bytes;
    std::vector<Key> m_keys;
};

} // namespace ovoui::lists
