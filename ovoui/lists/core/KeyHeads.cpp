#include <ovoui/lists/core/KeyHeads.h>

#include <algorithm>
#include <bit>
#include <string>

namespace ovoui::lists
{

namespace
{

constexpr int kHeadBits = 64;
/// More are not looked at: with a letter and its alphabet in 7 bits a head has room for 18.
constexpr std::size_t kMostPlaces = 24;

/// Sets the bits in which two keys differ.
void gatherDifferences(char* differences, const char* one, const char* other, std::size_t size)
{
    for (std::size_t at = 0; at < size; ++at)
        differences[at] = static_cast<char>(differences[at] | (one[at] ^ other[at]));
}

} // namespace

KeyHeads::KeyHeads(const std::vector<std::string_view>& keys)
{
    const std::vector<std::size_t> places = differingPlaces(keys);
    const std::size_t looked = std::min(places.size(), kMostPlaces);
    std::vector<Seen> seen(looked, Seen{});
    for (const std::string_view key : keys)
        for (std::size_t i = 0; i < looked; ++i)
            seen[i][symbolAt(key, places[i])] = true;
    int bits = 0;
    for (std::size_t i = 0; i < looked; ++i) {
        const Column column = columnOf(places[i], seen[i]);
        bits += column.bits;
        if (bits > kHeadBits)
            break;
        m_columns.push_back(column);
    }
    m_tellAll = m_columns.size() == places.size();
}

/// In ascending order. From the end of the shortest key to that of the longest they differ everywhere.
std::vector<std::size_t> KeyHeads::differingPlaces(const std::vector<std::string_view>& keys)
{
    if (keys.empty())
        return {};
    const auto isShorter = [](std::string_view one, std::string_view other) {
        return one.size() < other.size();
    };
    const auto [shortest, longest] = std::minmax_element(keys.begin(), keys.end(), isShorter);
    const std::size_t common = shortest->size();
    std::string differences(common, '\0');
    for (const std::string_view key : keys)
        gatherDifferences(differences.data(), key.data(), keys.front().data(), common);
    std::vector<std::size_t> places;
    for (std::size_t at = 0; at < longest->size(); ++at)
        if (at >= common || differences[at] != '\0')
            places.push_back(at);
    return places;
}

KeyHeads::Column KeyHeads::columnOf(std::size_t place, const Seen& seen)
{
    Column column{place, 0, {}};
    unsigned ranks = 0;
    for (std::size_t symbol = 0; symbol < kSymbols; ++symbol)
        if (seen[symbol])
            column.ranks[symbol] = static_cast<std::uint16_t>(ranks++);
    column.bits = static_cast<int>(std::bit_width(ranks - 1));
    return column;
}

std::uint64_t KeyHeads::of(std::string_view key) const
{
    std::uint64_t head = 0;
    for (const Column& column : m_columns)
        head = head << column.bits | column.ranks[symbolAt(key, column.place)];
    return head;
}

} // namespace ovoui::lists
