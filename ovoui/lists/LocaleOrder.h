/// Not exported: the order of texts in the user's locale.
#pragma once

#include <ovoui/lists/core/SortKeys.h>

#include <windows.h>

#include <vector>

namespace ovoui::lists
{

/// One text for each row, in the order of the rows. Capitals and small letters are alike.
class LocaleOrder
{
public:
    void reserve(std::size_t rows) { m_keys.reserve(rows); }
    void add(LPCWSTR text);

    /// The rows sorted by their texts. Rows with equal texts keep their order, descending too.
    std::vector<int> order(bool ascending) const { return m_keys.order(ascending); }

private:
    int map(LPCWSTR text);

    SortKeys m_keys;
    std::vector<char> m_room = std::vector<char>(512); ///< for one key
};

} // namespace ovoui::lists
