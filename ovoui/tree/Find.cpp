#include <ovoui/tree/Find.h>

#include <ovoui/tree/HostCalls.h>
#include <ovoui/tree/ItemTracker.h>

#include <ovoui/lists/ListFinder.h>

#include <algorithm>

using namespace ovoui::lists;

namespace
{

constexpr UINT kBackspaceCharacter = 8;

bool isDown(int key)
{
    return ::GetKeyState(key) < 0;
}

} // namespace

void MultiTreeCtrl::Find::extrasChange()
{
    m_on = (m_state.extras & FindAnywhere) != 0;
    m_finding = {};
    m_found = nullptr;
}

// Keys

bool MultiTreeCtrl::Find::takesKey(UINT message, UINT key)
{
    if (!m_on)
        return false;
    if (m_found != view().caret())
        m_finding.over = true;
    const bool ctrlSpace = key == VK_SPACE && isDown(VK_CONTROL);
    if (message == WM_CHAR)
        return !ctrlSpace &&
               (key == kBackspaceCharacter ? press(FindKey::Backspace)
                                           : press(FindKey::Character, static_cast<wchar_t>(key)));
    switch (key) {
    case VK_SPACE: // the character comes behind
        return !ctrlSpace && afterFindKey(m_finding, FindKey::Character, L' ').taken;
    case VK_BACK:
        return afterFindKey(m_finding, FindKey::Backspace).taken;
    case VK_ESCAPE: { // one that is over is not seen: the key goes on, and closes the dialog
        const bool searching = isSearching();
        return press(FindKey::Escape) && searching;
    }
    case VK_F3:
        return press(isDown(VK_SHIFT) ? FindKey::Previous : FindKey::Next);
    default:
        return false;
    }
}

/// Whether the key is taken.
bool MultiTreeCtrl::Find::press(FindKey key, wchar_t character)
{
    const HostCalls host(tree());
    const FindEffect effect = afterFindKey(m_finding, key, character);
    if (effect.search == Search::None)
        m_finding = effect.state;
    else if (!search(effect.state, effect.search) && host.usable())
        ::MessageBeep(MB_OK);
    return effect.taken;
}

// Searching

bool MultiTreeCtrl::Find::search(const FindState& wanted, Search how)
{
    const HostCalls host(tree());
    const HTREEITEM item = itemWith(wanted.text, how);
    if (!item || !host.usable())
        return false;
    const Tracker found(shared(), item);
    m_finding = wanted;
    m_found = item;
    if (item != view().caret() || m_state.selectedItems() != std::vector{item})
        tree().doSelectItem(item);
    if (!host.usable() || !found)
        return true;
    tree().m_anchor = item;
    tree().EnsureVisible(item);
    return true;
}

/// Among the displayed items, by what they show.
HTREEITEM MultiTreeCtrl::Find::itemWith(const std::wstring& text, Search how) const
{
    const HostCalls host(tree());
    std::vector<HTREEITEM> rows;
    for (HTREEITEM item = view().next(TVGN_ROOT); item; item = view().next(TVGN_NEXTVISIBLE, item))
        rows.push_back(item);
    const auto caret = std::find(rows.begin(), rows.end(), view().caret());
    const int focused = caret == rows.end() ? -1 : static_cast<int>(caret - rows.begin());
    const ItemList list(shared(), std::move(rows));
    const int row = findRow(static_cast<int>(list.items().size()), focused, how, [&](int index) {
        const HTREEITEM item = list.items()[static_cast<std::size_t>(index)];
        if (list.isGone(item) || view().isDoomed(item))
            return Look::No;
        const bool has = containsText(tree().GetItemText(item).GetString(), text);
        if (!host.usable())
            return Look::Stop;
        return has && !list.isGone(item) ? Look::Yes : Look::No;
    });
    return row < 0 ? nullptr : list.items()[static_cast<std::size_t>(row)];
}

// What ends a search

void MultiTreeCtrl::Find::itemGoes(HTREEITEM item)
{
    if (m_found == item)
        m_finding.over = true;
}

void MultiTreeCtrl::Find::allGo()
{
    m_finding = {};
    m_found = nullptr;
}

void MultiTreeCtrl::Find::begins(const Message& message)
{
    if (message.id == WM_KILLFOCUS)
        m_finding.over = true;
}

// What the state asks for

template <>
std::shared_ptr<MultiTreeCtrl::Find> MultiTreeCtrl::State::make()
{
    return std::make_shared<Find>(*this);
}

bool MultiTreeCtrl::State::isFinding() const
{
    return find->isSearching();
}
