#include <ovoui/tree/DropTarget.h>

#include <ovoui/tree/DropMenu.h>
#include <ovoui/tree/Dropping.h>
#include <ovoui/tree/HostCalls.h>
#include <ovoui/tree/core/DropEffect.h>

using ovoui::tree::kDropAny;
using ovoui::tree::kScrollNone;

namespace
{

/// OLE's own settings for scrolling during a drag, with its defaults.
unsigned setting(const wchar_t* name, int standard)
{
    return ::GetProfileIntW(L"windows", name, standard);
}

} // namespace

MultiTreeCtrl::DropTarget::DropTarget(MultiTreeCtrl& tree)
    : m_tree(&tree)
    , m_scroll(setting(L"DragScrollDelay", DD_DEFSCROLLDELAY),
               setting(L"DragScrollInterval", DD_DEFSCROLLINTERVAL))
{
}

MultiTreeCtrl::DropTarget::~DropTarget() = default;

void MultiTreeCtrl::DropTarget::leave()
{
    Revoke();
    m_tree = nullptr;
}

/// The host may have destroyed the tree, or its window, in the middle of a drag.
bool MultiTreeCtrl::DropTarget::isUsable() const
{
    return m_tree && m_tree->m_state->usable();
}

/// A drag comes in over the middle of the tree, or over an edge, where it scrolls at once. Which button it is
/// made with can be seen only while the button is down, not at the drop.
void MultiTreeCtrl::DropTarget::noteEntering(DWORD keys)
{
    if (!std::exchange(m_inside, true))
        m_rightButton = (keys & MK_RBUTTON) != 0;
}

DROPEFFECT MultiTreeCtrl::DropTarget::OnDragEnter(CWnd* window, COleDataObject* data, DWORD keys,
                                                  CPoint point)
{
    m_inside = false;
    noteEntering(keys);
    return OnDragOver(window, data, keys, point);
}

DROPEFFECT MultiTreeCtrl::DropTarget::OnDragOver(CWnd*, COleDataObject* data, DWORD keys, CPoint point)
{
    if (!isUsable())
        return DROPEFFECT_NONE;
    const HostCalls host(*m_tree);
    Dropping& dropping = *m_tree->m_state->dropping;
    const bool rightButton = m_rightButton;
    Dropping::Place place;
    const DWORD answer = dropping.dragHitTest(*data, point, place);
    if (!host.usable())
        return DROPEFFECT_NONE;
    dropping.showMark(place.item, place.target ? place.target->hTreeItem() : nullptr);
    return ovoui::tree::resolveDropEffect(keys, answer, place.effects, rightButton);
}

void MultiTreeCtrl::DropTarget::OnDragLeave(CWnd*)
{
    m_inside = false;
    m_scroll.stop();
    if (isUsable())
        m_tree->m_state->dropping->showMark(nullptr, nullptr);
}

// Scrolling

unsigned MultiTreeCtrl::DropTarget::directionAt(CPoint point) const
{
    CRect client;
    m_tree->GetClientRect(&client);
    const auto inset = static_cast<int>(setting(L"DragScrollInset", DD_DEFSCROLLINSET));
    return ovoui::tree::scrollCode(point.x, point.y, {client.left, client.top, client.right, client.bottom},
                                   inset);
}

DROPEFFECT MultiTreeCtrl::DropTarget::OnDragScroll(CWnd* window, DWORD keys, CPoint point)
{
    if (!isUsable())
        return DROPEFFECT_NONE;
    noteEntering(keys);
    COleDataObject data;
    data.Attach(m_lpDataObject, FALSE);
    const HostCalls host(*m_tree);
    const bool wasScrolling = m_scroll.running();
    const unsigned code = directionAt(point);
    const bool scrolls = code != kScrollNone && m_tree->dragScroll(code, 0, false);
    if (!host.usable())
        return DROPEFFECT_NONE;
    if (scrolls) {
        if (m_scroll.stepDue(code, ::GetTickCount()))
            m_tree->dragScroll(code, 0, true);
        if (!host.usable())
            return DROPEFFECT_NONE;
        if (!wasScrolling)
            m_tree->m_state->dropping->showMark(nullptr, nullptr);
        return OnDragOver(window, &data, keys, point) | DROPEFFECT_SCROLL;
    }
    if (!wasScrolling)
        return DROPEFFECT_NONE;
    m_scroll.stop();
    return OnDragEnter(window, &data, keys, point);
}

// Dropping

DROPEFFECT MultiTreeCtrl::DropTarget::OnDropEx(CWnd*, COleDataObject* data, DROPEFFECT standard,
                                               DROPEFFECT allowed, CPoint point)
{
    m_inside = false;
    m_scroll.stop();
    if (!isUsable())
        return DROPEFFECT_NONE;
    m_tree->m_state->dropping->showMark(nullptr, nullptr);
    DROPEFFECT effect = standard;
    bool taken = false;
    const bool good = HostCalls(*m_tree).report([&] { taken = drop(*data, effect, allowed, point); });
    return good && taken ? effect : DROPEFFECT_NONE;
}

/// False when the drop is refused. With the right button the user chooses the effect.
bool MultiTreeCtrl::DropTarget::drop(COleDataObject& data, DROPEFFECT& effect, DROPEFFECT allowed,
                                     CPoint point)
{
    MultiTreeCtrl& tree = *m_tree; // this object may go with the tree
    const HostCalls host(tree);
    const bool rightButton = m_rightButton;
    Dropping& dropping = *tree.m_state->dropping;
    Dropping::Place place;
    dropping.dragHitTest(data, point, place);
    const DWORD possible = rightButton ? allowed & place.effects : place.effects;
    if (!host.usable() || !(possible & kDropAny))
        return false;
    if (rightButton)
        effect = nondefaultDrop(tree, effect, possible, point, std::wstring());
    if (effect == DROPEFFECT_NONE || !host.usable())
        return false;
    const OVO::Handle<Node>& node = place.target;
    if (node && !node->hTreeItem()) // gone while the menu was open
        return false;
    InsertionPoint* const target = node ? node.get() : dropping.root();
    if (!target)
        return false;
    const bool taken = target->dropInto(data, effect, tree, place.zone);
    if (node && host.usable())
        tree.updateUI(*node);
    return taken;
}
