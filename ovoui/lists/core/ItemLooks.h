/// What the items of a list look like beside their texts.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace ovoui::lists
{

struct ItemLook
{
    std::optional<std::uint32_t> colour; ///< a colour entry: a COLORREF with the alpha in its highest byte
    int image = -1;                      ///< -1 for none

    friend bool operator==(const ItemLook&, const ItemLook&) = default;
};

/// Keeps looks with their items while these come and go. Items that were never given a look have an empty
/// one. Negative indices are left out of account.
class ItemLooks
{
public:
    ItemLook at(int item) const
    {
        const auto place = static_cast<std::size_t>(item);
        return item >= 0 && place < m_looks.size() ? m_looks[place] : ItemLook{};
    }

    void set(int item, const ItemLook& look)
    {
        if (item < 0)
            return;
        const auto place = static_cast<std::size_t>(item);
        if (place >= m_looks.size())
            m_looks.resize(place + 1);
        m_looks[place] = look;
    }

    void inserted(int item)
    {
        if (item >= 0 && static_cast<std::size_t>(item) < m_looks.size())
            m_looks.insert(m_looks.begin() + item, ItemLook{});
    }

    void deleted(int item)
    {
        if (item >= 0 && static_cast<std::size_t>(item) < m_looks.size())
            m_looks.erase(m_looks.begin() + item);
    }

    void clear() { m_looks.clear(); }

    bool empty() const { return m_looks.empty(); }

    /// The looks after items have come in unknown places. `before` and `after` hold what each item is known
    /// by, in the order of the list: the items of before have kept their order. Of several that are the same
    /// the first one counts.
    template <class Known>
    ItemLooks amongMore(const std::vector<Known>& before, const std::vector<Known>& after) const
    {
        ItemLooks looks;
        auto from = after.begin();
        for (std::size_t item = 0; item < before.size() && item < m_looks.size(); ++item) {
            const auto place = std::find(from, after.end(), before[item]);
            if (place == after.end())
                continue;
            looks.set(static_cast<int>(place - after.begin()), m_looks[item]);
            from = place + 1;
        }
        return looks;
    }

    /// Whether any item has one: then all texts stand behind the room for it.
    bool haveColours() const
    {
        for (const ItemLook& look : m_looks)
            if (look.colour)
                return true;
        return false;
    }

private:
    std::vector<ItemLook> m_looks;
};

} // namespace ovoui::lists
