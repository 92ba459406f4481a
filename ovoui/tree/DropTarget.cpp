#include <ovoui/tree/DropTarget.h>

#include <ovoui/tree/DropMenu.h>
#include <ovoui/tree/NodeErrors.h>
#include <ovoui/tree/TreeState.h>
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
    : m_tree(tree)
    , m_scroll(setting(L"DragScrollDelay", DD_DEFSCROLLDELAY),
               setting(L"DragScrollInterval", DD_DEFSCROLLINTERVAL))
{
}

MultiTreeCtrl::DropTarget::~DropTarget() = default;

DROPEFFECT MultiTreeCtrl::DropTarget::OnDragEnter(CWnd* window, COleDataObject* data, DWORD keys,
                                                  CPoint point)
{
    m_rightButton = (keys & MK_RBUTTON) != 0;
    return OnDragOver(window, data, keys, point);
}

DROPEFFECT MultiTreeCtrl::DropTarget::OnDragOver(CWnd*, COleDataObject* data, DWORD keys, CPoint point)
{
    DWORD allowed = 0;
    OVO::Handle<Node> target;
    HTREEITEM behind = nullptr;
    int zone = 0;
    const std::shared_ptr<State> state = m_tree.m_state;
    const DWORD answer = m_tree.dragHitTest(*data, point, allowed, &target, behind, zone);
    if (!state->usable())
        return DROPEFFECT_NONE;
    m_tree.showDropMark(behind, target ? target->hTreeItem() : nullptr);
    return ovoui::tree::resolveDropEffect(keys, answer, allowed, m_rightButton);
}

void MultiTreeCtrl::DropTarget::OnDragLeave(CWnd*)
{
    m_scroll.stop();
    m_tree.showDropMark(nullptr, nullptr);
}

// Scrolling

unsigned MultiTreeCtrl::DropTarget::directionAt(CPoint point) const
{
    CRect client;
    m_tree.GetClientRect(&client);
    const auto inset = static_cast<int>(setting(L"DragScrollInset", DD_DEFSCROLLINSET));
    return ovoui::tree::scrollCode(point.x, point.y, {client.left, client.top, client.right, client.bottom},
                                   inset);
}

DROPEFFECT MultiTreeCtrl::DropTarget::OnDragScroll(CWnd* window, DWORD keys, CPoint point)
{
    COleDataObject data;
    data.Attach(m_lpDataObject, FALSE);
    const bool wasScrolling = m_scroll.running();
    const unsigned code = directionAt(point);
    if (code != kScrollNone && m_tree.dragScroll(code, 0, false)) {
        if (m_scroll.stepDue(code, ::GetTickCount()))
            m_tree.dragScroll(code, 0, true);
        if (!wasScrolling)
            m_tree.showDropMark(nullptr, nullptr);
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
    m_scroll.stop();
    m_tree.showDropMark(nullptr, nullptr);
    DROPEFFECT effect = standard;
    bool taken = false;
    const bool good = ovoui::tree::reportErrors(m_tree, [&] { taken = drop(*data, effect, allowed, point); });
    return good && taken ? effect : DROPEFFECT_NONE;
}

/// False when the drop is refused. With the right button the user chooses the effect.
bool MultiTreeCtrl::DropTarget::drop(COleDataObject& data, DROPEFFECT& effect, DROPEFFECT allowed,
                                     CPoint point)
{
    const std::shared_ptr<State> state = m_tree.m_state;
    DWORD possible = 0;
    OVO::Handle<Node> node;
    HTREEITEM behind = nullptr;
    int zone = 0;
    m_tree.dragHitTest(data, point, possible, &node, behind, zone);
    if (!state->usable() || !(possible & kDropAny))
        return false;
    if (m_rightButton)
        effect = nondefaultDrop(m_tree, effect, allowed & possible, point, std::wstring());
    if (effect == DROPEFFECT_NONE || !state->usable())
        return false;
    if (node && !node->hTreeItem()) // gone while the menu was open
        return false;
    InsertionPoint* const target = node ? node.get() : m_tree.rootInsertionPoint();
    if (!target)
        return false;
    const bool taken = target->dropInto(data, effect, m_tree, zone);
    if (node && state->usable())
        m_tree.updateUI(*node);
    return taken;
}
