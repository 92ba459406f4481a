#include <ovoui/tree/SelectionEvents.h>

#include <ovoui/frame/Accessible.h>
#include <ovoui/tree/HostCalls.h>

#include <algorithm>
#include <iterator>
#include <utility>

using namespace ovoui::tree;

namespace
{

const UINT kTellSelection = ::RegisterWindowMessageW(L"ovoui.MultiTreeCtrl.TellSelection");

constexpr DWORD eventOf(SelectionEvent event)
{
    switch (event) {
    case SelectionEvent::Selected:
        return EVENT_OBJECT_SELECTION;
    case SelectionEvent::Added:
        return EVENT_OBJECT_SELECTIONADD;
    case SelectionEvent::Removed:
        return EVENT_OBJECT_SELECTIONREMOVE;
    case SelectionEvent::Within:
        break;
    }
    return EVENT_OBJECT_SELECTIONWITHIN;
}

bool someoneListens()
{
    return ::IsWinEventHookInstalled(EVENT_OBJECT_SELECTION) ||
           ::IsWinEventHookInstalled(EVENT_OBJECT_SELECTIONADD) ||
           ::IsWinEventHookInstalled(EVENT_OBJECT_SELECTIONREMOVE) ||
           ::IsWinEventHookInstalled(EVENT_OBJECT_SELECTIONWITHIN);
}

bool concernsSelection(const TVITEM& item)
{
    return (item.mask & TVIF_STATE) && (item.stateMask & TVIS_SELECTED);
}

} // namespace

bool MultiTreeCtrl::Selection::Events::arrives(Message& message)
{
    if (message.id != kTellSelection)
        return true;
    m_posted = false;
    if (m_listening && m_state.usable())
        tell();
    return false;
}

void MultiTreeCtrl::Selection::Events::begins(const Message& message)
{
    if (message.change != Change::Nothing && !m_posted)
        listen();
}

/// Looks whether a client listens. The first time what is selected now is what it knows.
void MultiTreeCtrl::Selection::Events::listen()
{
    const bool before = std::exchange(m_listening, someoneListens());
    if (m_listening == before)
        return;
    m_known.clear();
    if (!m_listening)
        return;
    const std::vector<HTREEITEM> items = m_state.selection->items();
    m_known.insert(items.begin(), items.end());
    m_caret = view().caret();
}

void MultiTreeCtrl::Selection::Events::ends(const Message& message, LRESULT)
{
    if (!m_listening || m_posted || message.change == Change::Nothing || !m_state.usable())
        return;
    const bool setsState =
        (message.change == Change::State && message.lParam && concernsSelection(message.changes())) ||
        (message.change == Change::Insert && concernsSelection(message.insertion().item));
    const HTREEITEM caretBefore = std::exchange(m_caret, view().caret());
    if (setsState || m_caret != caretBefore)
        m_posted = tree().PostMessage(kTellSelection) != FALSE;
}

/// The platform gives the handle to the next item.
void MultiTreeCtrl::Selection::Events::itemGoes(HTREEITEM item)
{
    m_known.erase(item);
    if (m_caret == item)
        m_caret = nullptr;
}

void MultiTreeCtrl::Selection::Events::allGo()
{
    m_known.clear();
    m_listening = false;
    m_posted = false;
}

void MultiTreeCtrl::Selection::Events::tell()
{
    const std::size_t before = m_known.size();
    const Changed changed = takeChanges();
    std::vector<Event> events;
    for (const SelectionNews& each : selectionNews(before, changed.removed.size(), changed.added.size()))
        events.push_back({eventOf(each.event), numberOf(changed, each)});
    // Where the platform has no numbers for items, clients can ask for the selection.
    if (std::ranges::any_of(events, [](const Event& each) { return each.number == CHILDID_SELF; }))
        events = {{eventOf(SelectionEvent::Within), CHILDID_SELF}};
    // A client's hook may run in this thread and do anything.
    const HostCalls host(tree());
    const HWND window = tree().m_hWnd;
    for (const Event& each : events)
        if (host.usable())
            ovoui::frame::announce(each.id, window, each.number - 1);
}

/// What clients do not know yet, and know from now on. The caret comes first.
MultiTreeCtrl::Selection::Events::Changed MultiTreeCtrl::Selection::Events::takeChanges()
{
    std::vector<HTREEITEM> selected = m_state.selection->items();
    std::ranges::partition(selected, [caret = view().caret()](HTREEITEM item) { return item == caret; });
    std::unordered_set<HTREEITEM> now(selected.begin(), selected.end());
    Changed changed;
    std::ranges::copy_if(m_known, std::back_inserter(changed.removed),
                         [&](HTREEITEM item) { return !now.contains(item); });
    std::ranges::copy_if(selected, std::back_inserter(changed.added),
                         [this](HTREEITEM item) { return !m_known.contains(item); });
    m_known = std::move(now);
    return changed;
}

/// The number by which clients know an item; CHILDID_SELF for the tree as a whole, or where the platform has
/// none.
LONG MultiTreeCtrl::Selection::Events::numberOf(const Changed& changed, const SelectionNews& news) const
{
    if (news.event == SelectionEvent::Within || !m_state.usable())
        return CHILDID_SELF;
    const HTREEITEM item =
        (news.event == SelectionEvent::Removed ? changed.removed : changed.added)[news.index];
    return static_cast<LONG>(tree().SendMessage(TVM_MAPHTREEITEMTOACCID, reinterpret_cast<WPARAM>(item)));
}
