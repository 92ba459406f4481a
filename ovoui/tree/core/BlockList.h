/// A sequence in which the place of a value is found by halving, and inserting is cheap everywhere. Plain
/// values, no windows.
#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>
#include <vector>

namespace ovoui::tree
{

/// Values in blocks of bounded size, so that inserting moves the neighbours of the place and not all that
/// come behind it.
template <class T, std::size_t BlockSize = 512>
class BlockList
{
public:
    /// A place between two values, or at one of the ends. Good until the next change.
    struct Place
    {
        std::size_t block = 0;
        std::size_t offset = 0;
    };

    std::size_t size() const { return m_size; }
    bool empty() const { return m_size == 0; }

    void clear()
    {
        m_blocks.clear();
        m_size = 0;
    }

    void push_back(T value) { insert(end(), std::move(value)); }

    Place end() const
    {
        return m_blocks.empty() ? Place{} : Place{m_blocks.size() - 1, m_blocks.back().size()};
    }

    /// The place before the value with this index; the end for an index of size() or more.
    Place placeAt(std::size_t index) const
    {
        if (index >= m_size)
            return end();
        std::size_t block = 0;
        for (; index >= m_blocks[block].size(); ++block)
            index -= m_blocks[block].size();
        return {block, index};
    }

    /// The place behind all values for which `precedes` is true; these must come before all others.
    template <class Predicate>
    Place partitionPoint(Predicate precedes) const
    {
        if (m_blocks.empty())
            return {};
        // The block before the first one whose first value lies behind the place.
        auto block = std::partition_point(m_blocks.begin(), m_blocks.end(),
                                          [&](const Block& values) { return precedes(values.front()); });
        if (block != m_blocks.begin())
            --block;
        const auto value = std::partition_point(block->begin(), block->end(), precedes);
        return {static_cast<std::size_t>(block - m_blocks.begin()),
                static_cast<std::size_t>(value - block->begin())};
    }

    /// The value behind the place; null at the end.
    const T* after(Place place) const
    {
        if (m_blocks.empty())
            return nullptr;
        if (place.offset < m_blocks[place.block].size())
            return &m_blocks[place.block][place.offset];
        return place.block + 1 < m_blocks.size() ? &m_blocks[place.block + 1].front() : nullptr;
    }

    /// The value before the place; null at the beginning.
    const T* before(Place place) const
    {
        if (place.offset > 0)
            return &m_blocks[place.block][place.offset - 1];
        return place.block > 0 ? &m_blocks[place.block - 1].back() : nullptr;
    }

    void insert(Place place, T value)
    {
        if (m_blocks.empty())
            m_blocks.emplace_back();
        Block& block = m_blocks[place.block];
        block.insert(block.begin() + static_cast<std::ptrdiff_t>(place.offset), std::move(value));
        ++m_size;
        if (block.size() > BlockSize)
            split(place);
    }

    /// Calls `visit` with every value in order, until it returns false.
    template <class Visit>
    void visit(Visit visit) const
    {
        for (const Block& block : m_blocks)
            for (const T& value : block)
                if (!visit(value))
                    return;
    }

private:
    using Block = std::vector<T>;

    /// A full block becomes two halves. One that fills at its end, as when values are appended, stays full
    /// instead, with the last value in a block of its own.
    void split(Place filled)
    {
        Block& full = m_blocks[filled.block];
        const std::size_t kept = filled.offset + 1 == full.size() ? full.size() - 1 : full.size() / 2;
        Block rest(std::make_move_iterator(full.begin() + static_cast<std::ptrdiff_t>(kept)),
                   std::make_move_iterator(full.end()));
        full.resize(kept);
        m_blocks.insert(m_blocks.begin() + static_cast<std::ptrdiff_t>(filled.block) + 1, std::move(rest));
    }

    std::vector<Block> m_blocks; ///< none of them empty
    std::size_t m_size = 0;
};

} // namespace ovoui::tree
