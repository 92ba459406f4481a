#include <ovoui/lists/core/SortKeys.h>

#include <algorithm>
#include <array>
#include <numeric>

namespace ovoui::lists
{

namespace
{

std::uint64_t headOf(std::string_view key)
{
    std::uint64_t head = 0;
    for (std::size_t i = 0; i < sizeof head; ++i)
        head = head << 8 | (i < key.size() ? static_cast<unsigned char>(key[i]) : 0u);
    return head;
}

} // namespace

void SortKeys::reserve(std::size_t rows, std::size_t bytes)
{
    m_places.reserve(rows);
    m_bytes.reserve(bytes);
}

void SortKeys::add(std::string_view key)
{
    m_places.push_back({m_bytes.size(), key.size()});
    m_bytes.insert(m_bytes.end(), key.begin(), key.end());
}

std::string_view SortKeys::keyOf(int row) const
{
    const Place& place = m_places[static_cast<std::size_t>(row)];
    return {m_bytes.data() + place.begin, place.size};
}

/// Of what all keys begin with.
std::size_t SortKeys::commonLength() const
{
    if (m_places.empty())
        return 0;
    const std::string_view first = keyOf(0);
    std::size_t common = first.size();
    for (int row = 1; common > 0 && row < static_cast<int>(m_places.size()); ++row) {
        const std::string_view key = keyOf(row).substr(0, common);
        common = static_cast<std::size_t>(std::mismatch(key.begin(), key.end(), first.begin()).first -
                                          key.begin());
    }
    return common;
}

std::vector<SortKeys::Key> SortKeys::keysBehind(std::size_t common) const
{
    std::vector<Key> keys;
    keys.reserve(m_places.size());
    for (int row = 0; row < static_cast<int>(m_places.size()); ++row)
        keys.push_back({headOf(keyOf(row).substr(common)), row});
    return keys;
}

/// Byte by byte, the last one first: no two keys are compared. Equal ones keep their order.
void SortKeys::sortByHeads(std::vector<Key>& keys)
{
    std::vector<Key> sorted(keys.size());
    for (int shift = 0; shift < 64; shift += 8) {
        const auto byteOf = [shift](const Key& key) {
            return static_cast<std::size_t>(key.head >> shift & 0xFF);
        };
        std::array<std::size_t, 257> begins{}; // behind all keys with a smaller byte
        for (const Key& key : keys)
            ++begins[byteOf(key) + 1];
        if (std::find(begins.begin(), begins.end(), keys.size()) != begins.end())
            continue; // all have the same byte here
        std::partial_sum(begins.begin(), begins.end(), begins.begin());
        for (const Key& key : keys)
            sorted[begins[byteOf(key)]++] = key;
        keys.swap(sorted);
    }
}

std::vector<int> SortKeys::order(bool ascending) const
{
    const std::size_t common = commonLength();
    std::vector<Key> sorted = keysBehind(common);
    if (!ascending)
        for (Key& key : sorted)
            key.head = ~key.head;
    sortByHeads(sorted);
    const auto isBefore = [&](const Key& one, const Key& other) {
        const int order = keyOf(one.row).substr(common).compare(keyOf(other.row).substr(common));
        return ascending ? order < 0 : order > 0;
    };
    for (auto begin = sorted.begin(); begin != sorted.end();) {
        const auto end =
            std::find_if(begin, sorted.end(), [&](const Key& key) { return key.head != begin->head; });
        std::stable_sort(begin, end, isBefore);
        begin = end;
    }
    std::vector<int> rows(sorted.size());
    std::transform(sorted.begin(), sorted.end(), rows.begin(), [](const Key& key) { return key.row; });
    return rows;
}

} // namespace ovoui::lists
