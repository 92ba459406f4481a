#include <ovoui/lists/LocaleOrder.h>

#include <algorithm>
#include <cwchar>

namespace ovoui::lists
{

namespace
{

/// The system takes no text of length 0: of an empty one it gets the terminator, which adds nothing to a key.
int mapText(LPCWSTR text, char* room, int size)
{
    const auto length = static_cast<int>(std::max<std::size_t>(1, std::wcslen(text)));
    return ::LCMapStringW(LOCALE_USER_DEFAULT, LCMAP_SORTKEY | NORM_IGNORECASE, text, length,
                          reinterpret_cast<LPWSTR>(room), size);
}

} // namespace

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
