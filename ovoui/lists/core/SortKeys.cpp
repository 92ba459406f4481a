#include <ovoui/lists/core/SortKeys.h>

#include <algorithm>

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

std::vector<int> SortKeys::order(bool ascending) const
{
    const std::size_t common = commonLength();
    const auto isBefore = [this, common](const Key& one, const Key& other) {
        if (one.head != other.head)
            return one.head < other.head;
        return keyOf(one.row).substr(common) < keyOf(other.row).substr(common);
    };
    std::vector<Key> sorted = keysBehind(common);
    std::stable_sort(sorted.begin(), sorted.end(), [&](const Key& one, const Key& other) {
        return ascending ? isBefore(one, other) : isBefore(other, one);
    });
    std::vector<int> rows(sorted.size());
    std::transform(sorted.begin(), sorted.end(), rows.begin(), [](const Key& key) { return key.row; });
    return rows;
}

} // namespace ovoui::lists
