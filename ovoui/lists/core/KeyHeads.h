/// What comes first in keys of bytes, as numbers.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace ovoui::lists
{

/// Gives each of some keys a number, its head: a key with a smaller head comes before one with a larger. A
/// head tells of the first places at which any of the keys differ. As many as it has room for: a place takes
/// only the bits that the different bytes met there need.
class KeyHeads
{
public:
    explicit KeyHeads(const std::vector<std::string_view>& keys);

    /// Of one of the keys.
    std::uint64_t of(std::string_view key) const;

    /// Whether keys with the same head are equal.
    bool tellAll() const { return m_tellAll; }
    /// Keys with the same head are equal before this place, which may lie behind their ends.
    std::size_t end() const { return m_columns.empty() ? 0 : m_columns.back().place + 1; }

private:
    /// What stands at a place: 0 when the key has ended, else its byte and 1.
    static constexpr std::size_t kSymbols = 257;
    static std::size_t symbolAt(std::string_view key, std::size_t place)
    {
        return place < key.size() ? 1u + static_cast<unsigned char>(key[place]) : 0u;
    }

    /// A place at which keys differ.
    struct Column
    {
        std::size_t place;
        int bits;
        std::array<std::uint16_t, kSymbols> ranks; ///< of the symbols that are met here
    };
    using Seen = std::array<bool, kSymbols>;

    static std::vector<std::size_t> differingPlaces(const std::vector<std::string_view>& keys);
    static Column columnOf(std::size_t place, const Seen& seen);

    std::vector<Column> m_columns; ///< in the order of their places
    bool m_tellAll = true;
};

} // namespace ovoui::lists
