#include <ovoui/tree/Dropping.h>

#include <ovoui/tree/HostCalls.h>
#include <ovoui/tree/ItemTracker.h>
#include <ovoui/frame/Platform.h>
#include <ovoui/tree/core/DropEffect.h>
#include <ovoui/tree/core/EdgeScroll.h>
#include <ovoui/tree/core/HitParts.h>

#include <afxole.h>

// Who would take the data

MultiTreeCtrl::InsertionPoint* MultiTreeCtrl::Dropping::root() const
{
    return dynamic_cast<InsertionPoint*>(tree().GetParent());
}

DWORD MultiTreeCtrl::Dropping::dragHitTest(COleDataObject& data, CPoint point, Place& place)
{
    place = {};
    try {
        const HostCalls host(tree());
        unsigned hit = 0;
        HTREEITEM hovered = tree().HitTest(point, &hit);
        if (!host.usable())
            return DROPEFFECT_NONE;
        if (!hovered && (hit & ovoui::tree::kHitNowhere))
            hovered = view().getLastItem();
        return ask(data, hovered, place);
    } catch (const std::exception&) {
        // A place that cannot answer takes nothing, whatever it has allowed before. That is not reported: it
        // may happen at every movement of the mouse.
        place.effects = DROPEFFECT_NONE;
        return DROPEFFECT_NONE;
    }
}

DWORD MultiTreeCtrl::Dropping::ask(COleDataObject& data, HTREEITEM hovered, Place& place)
{
    place.zone = -1;
    bool beside = false;
    InsertionPoint* const top = root();
    const HostCalls host(tree());
    const OVO::Handle<Node> node = view().node(hovered);
    if (!node)
        return !hovered && top ? top->dragInto(data, place.effects, beside, place.zone) : DROPEFFECT_NONE;

    place.target = node;
    const DWORD answer = node->dragInto(data, place.effects, beside, place.zone);
    if (!host.usable() || !ovoui::tree::asksAround(beside, answer) || node->hTreeItem() != hovered)
        return answer;
    const HTREEITEM above = view().next(TVGN_PARENT, hovered);
    const OVO::Handle<Node> parent = view().node(above);
    InsertionPoint* const around = above ? parent.get() : top;
    if (!around)
        return answer;
    place.zone = placeAmongSiblings(hovered);
    const Tracker behind(shared(), hovered);
    const DWORD answerAround = around->dragInto(data, place.effects, beside, place.zone);
    place.target = parent;
    place.item = behind.item();
    return answerAround;
}

/// Counted from 1.
int MultiTreeCtrl::Dropping::placeAmongSiblings(HTREEITEM item) const
{
    int place = 0;
    for (; item; item = view().next(TVGN_PREVIOUS, item))
        ++place;
    return place;
}

// Marks

void MultiTreeCtrl::Dropping::showMark(HTREEITEM markBehind, HTREEITEM highlighted)
{
    if (!m_state.usable())
        return;
    if (markBehind || m_markShown)
        setMark(markBehind);
    highlight(highlighted);
}

/// Wine's tree view goes on showing the item that was highlighted when none is to be.
void MultiTreeCtrl::Dropping::highlight(HTREEITEM item)
{
    const HTREEITEM before = view().next(TVGN_DROPHILITE);
    const bool shown = before && (view().stateOf(before) & TVIS_DROPHILITED);
    if (item == before && shown == (item != nullptr))
        return;
    tree().SelectDropTarget(item);
    if (!item && shown && view().next(TVGN_DROPHILITE) == before)
        tree().SetItemState(before, 0, TVIS_DROPHILITED);
}

void MultiTreeCtrl::Dropping::setMark(HTREEITEM behind)
{
    tree().SetInsertMark(behind, TRUE);
    m_markShown = behind != nullptr;
    if (behind || !ovoui::platform().keepsInsertMark)
        return;
    // The mark moves to an item that goes at once, and takes it along.
    TVINSERTSTRUCT insert{};
    insert.hParent = TVI_ROOT;
    insert.hInsertAfter = TVI_LAST;
    insert.item.mask = TVIF_TEXT;
    insert.item.pszText = const_cast<LPWSTR>(L"");
    if (const HTREEITEM carrier = tree().InsertItem(&insert)) {
        tree().SetInsertMark(carrier, TRUE);
        view().remove(carrier);
    }
}

// The control's operation

bool MultiTreeCtrl::dragScroll(unsigned code, unsigned, bool doIt)
{
    const View& view = m_state->view;
    HTREEITEM item = view.next(TVGN_FIRSTVISIBLE);
    switch (ovoui::tree::verticalPart(code)) {
    case ovoui::tree::kScrollUp:
        item = item ? view.next(TVGN_PREVIOUSVISIBLE, item) : nullptr;
        break;
    case ovoui::tree::kScrollDown:
        for (auto rows = view.ask(TVM_GETVISIBLECOUNT); item && rows > 0; --rows)
            item = view.next(TVGN_NEXTVISIBLE, item);
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

// What the state asks for

template <>
std::shared_ptr<MultiTreeCtrl::Dropping> MultiTreeCtrl::State::make()
{
    return std::make_shared<Dropping>(*this);
}
