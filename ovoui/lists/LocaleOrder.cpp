#include <ovoui/lists/LocaleOrder.h>

#include <algorithm>

namespace ovoui::lists
{

namespace
{

int mapText(LPCWSTR text, char* room, int size)
{
    return ::LCMapStringW(LOCALE_USER_DEFAULT, LCMAP_SORTKEY | NORM_IGNORECASE, text, -1,
                          reinterpret_cast<LPWSTR>(room), size);
}

} // namespace

void LocaleOrder::reserve(std::size_t rows)
{
    constexpr std::size_t kUsualKey = 32; // bytes
    m_keys.reserve(rows, rows * kUsualKey);
}

void LocaleOrder::add(LPCWSTR text)
{
    int size = map(text);
    if (size == 0) {
        m_room.resize(static_cast<std::size_t>(std::max(1, mapText(text, nullptr, 0))));
        size = map(text);
    }
    m_keys.add({m_room.data(), static_cast<std::size_t>(size)});
}

/// The size of the key; 0 when there is not room enough.
int LocaleOrder::map(LPCWSTR text)
{
    return mapText(text, m_room.data(), static_cast<int>(m_room.size()));
}

} // namespace ovoui::lists
