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
    m_keys.reserve(rows);
    m_bytes.reserve(bytes);
}

void SortKeys::add(std::string_view key)
{
    m_keys.push_back({headOf(key), m_bytes.size(), key.size(), static_cast<int>(m_keys.size())});
    m_bytes.insert(m_bytes.end(), key.begin(), key.end());
}

bool SortKeys::isBefore(const Key& one, const Key& other) const
{
    if (one.head != other.head)
        return one.head < other.head;
    const auto text = [this](const Key& key) {
        return std::string_view(m_bytes.data() + key.begin, key.size);
    };
    return text(one) < text(other);
}

std::vector<int> SortKeys::order(bool ascending) const
{
    std::vector<Key> sorted = m_keys;
    std::stable_sort(sorted.begin(), sorted.end(), [this, ascending](const Key& one, const Key& other) {
        return ascending ? isBefore(one, other) : isBefore(other, one);
    });
    std::vector<int> rows(sorted.size());
    std::transform(sorted.begin(), sorted.end(), rows.begin(), [](const Key& key) { return key.row; });
    return rows;
}

} // namespace ovoui::lists
