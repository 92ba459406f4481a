// Where something dragged over the tree would go, and how that is shown.
#include <ovoui/tree/HostCalls.h>
#include <ovoui/tree/ItemTracker.h>
#include <ovoui/tree/Platform.h>
#include <ovoui/tree/core/EdgeScroll.h>
#include <ovoui/tree/core/HitParts.h>

#include <afxole.h>

/// What things are dropped into above the top level: the parent window, if it is an insertion point too.
MultiTreeCtrl::InsertionPoint* MultiTreeCtrl::rootInsertionPoint() const
{
    return dynamic_cast<InsertionPoint*>(GetParent());
}

/// Finds who would take the data at a client point, and gives its answer: the effect without keys held.
/// `effects` gets those it allows, `target` its node (null for the root), `item` the one to put an insertion
/// mark behind, `zone` what dropInto is to be told.
DWORD MultiTreeCtrl::dragHitTest(COleDataObject& data, CPoint point, DWORD& effects,
                                 OVO::Handle<Node>* target, HTREEITEM& item, int& zone)
{
    effects = DROPEFFECT_NONE;
    target->reset();
    item = nullptr;
    zone = -1;
    try {
        const HostCalls host(*this);
        unsigned hit = 0;
        HTREEITEM hovered = HitTest(point, &hit);
        if (!host.usable())
            return DROPEFFECT_NONE;
        if (!hovered && (hit & ovoui::tree::kHitNowhere))
            hovered = getLastItem();
        return askTarget(data, hovered, effects, target, item, zone);
    } catch (const std::exception&) {
        // A place that cannot answer takes nothing. That is not reported: it may happen at every movement of
        // the mouse.
        return DROPEFFECT_NONE;
    }
}

/// The same for the item that the pointer is over; null stands for the root.
DWORD MultiTreeCtrl::askTarget(COleDataObject& data, HTREEITEM hovered, DWORD& effects,
                               OVO::Handle<Node>* target, HTREEITEM& item, int& zone)
{
    zone = -1;
    bool beside = false;
    InsertionPoint* const root = rootInsertionPoint();
    const HostCalls host(*this);
    const OVO::Handle<Node> node = this->node(hovered);
    if (!node)
        return !hovered && root ? root->dragInto(data, effects, beside, zone) : DROPEFFECT_NONE;

    *target = node;
    const DWORD answer = node->dragInto(data, effects, beside, zone);
    if (!host.usable() || !beside || answer != DROPEFFECT_NONE || node->hTreeItem() != hovered)
        return answer;
    const HTREEITEM above = next(TVGN_PARENT, hovered);
    const OVO::Handle<Node> parent = this->node(above);
    InsertionPoint* const place = above ? parent.get() : root;
    if (!place)
        return answer;
    zone = placeAmongSiblings(hovered);
    const Tracker behind(m_state, hovered);
    const DWORD placesAnswer = place->dragInto(data, effects, beside, zone);
    *target = parent;
    item = behind.item();
    return placesAnswer;
}

/// Counted from 1. Mostly the pointer rests or goes to a neighbour while the tree stays as it is: then the
/// item counted last is not far.
int MultiTreeCtrl::placeAmongSiblings(HTREEITEM item)
{
    State& state = *m_state;
    const HTREEITEM known = state.countedVersion == state.structure ? state.countedItem : nullptr;
    HTREEITEM before = item;
    HTREEITEM behind = known ? item : nullptr;
    int steps = 0;
    const auto meets = [known](HTREEITEM at) { return known && at == known; };
    while (before && !meets(before) && !meets(behind)) {
        before = next(TVGN_PREVIOUS, before);
        behind = behind ? next(TVGN_NEXT, behind) : nullptr;
        ++steps;
    }
    int place = steps; // all the way to the first
    if (before && known)
        place = before == known ? state.countedPlace + steps : state.countedPlace - steps;
    state.countedItem = item;
    state.countedPlace = place;
    state.countedVersion = state.structure;
    return place;
}

/// Shows the insertion mark behind one item and highlights another; null for none.
void MultiTreeCtrl::showDropMark(HTREEITEM markBehind, HTREEITEM highlighted)
{
    if (!isUsable())
        return;
    if (markBehind || m_state->markShown)
        setInsertMark(markBehind);
    if (highlighted != next(TVGN_DROPHILITE))
        SelectDropTarget(highlighted);
}

void MultiTreeCtrl::setInsertMark(HTREEITEM behind)
{
    SetInsertMark(behind, TRUE);
    m_state->markShown = behind != nullptr;
    if (behind || !ovoui::tree::platform().keepsInsertMark)
        return;
    // The mark moves to an item that goes at once, and takes it along.
    TVINSERTSTRUCT insert{};
    insert.hParent = TVI_ROOT;
    insert.hInsertAfter = TVI_LAST;
    insert.item.mask = TVIF_TEXT;
    insert.item.pszText = const_cast<LPWSTR>(L"");
    if (const HTREEITEM carrier = InsertItem(&insert)) {
        SetInsertMark(carrier, TRUE);
        deleteItem(carrier);
    }
}

bool MultiTreeCtrl::dragScroll(unsigned code, unsigned, bool doIt)
{
    HTREEITEM item = next(TVGN_FIRSTVISIBLE);
    switch (ovoui::tree::verticalPart(code)) {
    case ovoui::tree::kScrollUp:
        item = item ? next(TVGN_PREVIOUSVISIBLE, item) : nullptr;
        break;
    case ovoui::tree::kScrollDown:
        for (auto rows = ask(TVM_GETVISIBLECOUNT); item && rows > 0; --rows)
            item = next(TVGN_NEXTVISIBLE, item);
        break;
    default:
        return false;
    }
    if (!item)
        return false;
    if (doIt) {
        EnsureVisible(item);
        UpdateWindow();
    }
    return true;
}
