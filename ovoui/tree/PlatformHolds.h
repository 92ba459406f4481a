/// Not exported: what the tree view goes on working with after it has called us.
#pragma once

#include <windows.h>
#include <commctrl.h>

#include <algorithm>
#include <vector>

namespace ovoui::tree
{

/// While the tree view opens or closes an item, it does not expect others to go than those below it; and some
/// messages go on with items that they were given. Deletions that it could not stand have to wait.
class PlatformHolds
{
public:
    enum class Kind
    {
        Opening,   ///< only items below this one may go
        Stays,     ///< the item must not go, nor one above it
        Everything ///< nothing may go
    };

    /// `isBelow(item, ancestor)` tells how items stand to each other.
    template <class IsBelow>
    bool mayGo(HTREEITEM item, IsBelow&& isBelow) const
    {
        return std::all_of(m_holds.begin(), m_holds.end(), [&](const Entry& hold) {
            switch (hold.kind) {
            case Kind::Opening:
                return isBelow(item, hold.item);
            case Kind::Stays:
                return hold.item != item && !isBelow(hold.item, item);
            default:
                return false;
            }
        });
    }

    bool empty() const { return m_holds.empty(); }
    std::size_t count() const { return m_holds.size(); }
    void add(Kind kind, HTREEITEM item = nullptr)
    {
        if (item || kind == Kind::Everything)
            m_holds.push_back({kind, item});
    }
    /// Lets go of what was added since there were so many.
    void shrinkTo(std::size_t count) { m_holds.resize(std::min(count, m_holds.size())); }

private:
    struct Entry
    {
        Kind kind;
        HTREEITEM item;
    };
    std::vector<Entry> m_holds;
};

/// A hold for the time of a scope.
class PlatformHold
{
public:
    PlatformHold(PlatformHolds& holds, PlatformHolds::Kind kind, HTREEITEM item = nullptr)
        : m_holds(holds)
        , m_before(holds.count())
    {
        m_holds.add(kind, item);
    }
    ~PlatformHold() { m_holds.shrinkTo(m_before); }
    PlatformHold(const PlatformHold&) = delete;
    PlatformHold& operator=(const PlatformHold&) = delete;

private:
    PlatformHolds& m_holds;
    const std::size_t m_before;
};

} // namespace ovoui::tree
