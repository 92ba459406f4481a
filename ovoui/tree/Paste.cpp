#include <ovoui/tree/Paste.h>

#include <ovoui/tree/Dropping.h>
#include <ovoui/tree/HostCalls.h>
#include <ovoui/frame/GlobalMemory.h>
#include <ovoui/tree/core/DropEffect.h>

#include <afxole.h>
#include <shlobj.h>

namespace
{

/// What the owner of the clipboard's data wants done with it: a move after Cut, say. 0 when it does not say.
DWORD preferredEffect(COleDataObject& data)
{
    static const auto format = static_cast<CLIPFORMAT>(::RegisterClipboardFormatW(CFSTR_PREFERREDDROPEFFECT));
    const ovoui::frame::GlobalMemory memory(data.IsDataAvailable(format) ? data.GetGlobalData(format)
                                                                         : nullptr);
    DWORD effect = 0;
    if (!memory || ::GlobalSize(memory.get()) < sizeof effect)
        return effect;
    if (const auto* stored = static_cast<const DWORD*>(::GlobalLock(memory.get()))) {
        effect = *stored;
        ::GlobalUnlock(memory.get());
    }
    return effect;
}

} // namespace

/// Where the data would go, and how.
struct MultiTreeCtrl::Paste::Place
{
    InsertionPoint* point = nullptr; ///< null when the data is not taken anywhere
    Dropping::Place drop;
    DWORD effect = 0;
};

MultiTreeCtrl::Paste::Place MultiTreeCtrl::Paste::find(COleDataObject& data) const
{
    const HostCalls host(m_tree);
    Dropping& dropping = *m_tree.m_state->dropping;
    Place place;
    const DWORD answer = dropping.ask(data, itemToAsk(), place.drop);
    if (!host.usable())
        return place;
    const DWORD preferred = preferredEffect(data); // asks the owner of the data, which may be the host
    if (!host.usable())
        return place;
    place.effect = ovoui::tree::resolvePasteEffect(preferred, answer, place.drop.effects);
    if (place.effect)
        place.point = place.drop.target ? place.drop.target.get() : dropping.root();
    return place;
}

/// The one selected item, else the caret.
HTREEITEM MultiTreeCtrl::Paste::itemToAsk() const
{
    const State& state = *m_tree.m_state;
    const std::vector<HTREEITEM> selected = state.selectedItems();
    return selected.size() == 1 ? selected.front() : state.view.caret();
}

bool MultiTreeCtrl::Paste::run() const
{
    const HostCalls host(m_tree);
    COleDataObject data;
    if (!data.AttachClipboard())
        return false;
    bool taken = false;
    const bool succeeded = host.report([&] {
        const Place place = find(data);
        taken = host.usable() && place.point;
        if (!taken)
            return;
        place.point->dropInto(data, place.effect, m_tree, place.drop.zone);
        if (place.drop.target && host.usable())
            m_tree.updateUI(*place.drop.target);
    });
    return taken || !succeeded;
}

bool MultiTreeCtrl::Paste::isPossible() const
{
    COleDataObject data;
    return data.AttachClipboard() && find(data).point;
}
