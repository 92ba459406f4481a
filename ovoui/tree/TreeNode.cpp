#include <ovoui/tree/HostCalls.h>
#include <ovoui/tree/Insertion.h>
#include <ovoui/tree/core/DropEffect.h>

MultiTreeCtrl::Node::Node() = default;

MultiTreeCtrl::Node::~Node() = default;

HTREEITEM MultiTreeCtrl::Node::insert(MultiTreeCtrl& tree, HTREEITEM parent, HTREEITEM after)
{
    state &= TVIS_CUT | TVIS_DROPHILITED | TVIS_BOLD;
    // The tree's reference, taken first: what is asked during the insertion may make and drop handles.
    addRef();
    HTREEITEM item = nullptr;
    try {
        item = tree.m_state->insertion->insertItem(*this, parent, after);
    } catch (...) {
        giveBack();
        throw;
    }
    if (item)
        m_hTreeItem = item;
    else
        giveBack();
    return item;
}

void MultiTreeCtrl::Node::resetItemText(MultiTreeCtrl& tree)
{
    if (!m_hTreeItem)
        return;
    const OVO::Handle<Node> held(this);
    const HTREEITEM item = m_hTreeItem;
    const HostCalls host(tree);
    const std::wstring label = text(tree);
    if (host.usable() && m_hTreeItem == item) // else the question has changed the tree
        tree.SetItemText(item, label.c_str());
}

int MultiTreeCtrl::Node::image() const
{
    return (state & TVIS_EXPANDED) ? openImage() : closedImage();
}

HTREEITEM MultiTreeCtrl::Node::hTreeItem() const
{
    return m_hTreeItem;
}

DWORD MultiTreeCtrl::Node::dragInto(COleDataObject&, DWORD& effect, bool& flag, int) const
{
    flag = true;
    effect = ovoui::tree::kDropNone;
    return ovoui::tree::kDropNone;
}

bool MultiTreeCtrl::Node::dropInto(COleDataObject&, DWORD, MultiTreeCtrl&, int)
{
    return false;
}

bool MultiTreeCtrl::Node::expanded() const
{
    return (state & TVIS_EXPANDED) != 0;
}

void MultiTreeCtrl::Node::collapse(MultiTreeCtrl&) {}

bool MultiTreeCtrl::Node::expand(MultiTreeCtrl&)
{
    return false;
}

std::wstring MultiTreeCtrl::Node::infotip(MultiTreeCtrl&) const
{
    return {};
}

bool MultiTreeCtrl::Node::erase(MultiTreeCtrl&)
{
    return true;
}

bool MultiTreeCtrl::Node::refresh()
{
    return true;
}

void MultiTreeCtrl::Node::rename(MultiTreeCtrl&, const std::wstring&) {}

std::wstring MultiTreeCtrl::Node::renameText(MultiTreeCtrl& tree) const
{
    return text(tree);
}

void MultiTreeCtrl::Node::drawPreview(CDC& dc, const CRect& rect, CImageList*) const
{
    ::FillRect(dc.GetSafeHdc(), &rect, ::GetSysColorBrush(COLOR_BTNFACE));
}

DWORD MultiTreeCtrl::Node::dragStarting(MultiTreeCtrl&, DWORD, const DragCursorSet*& cursors)
{
    cursors = &defaultDragCursors();
    return ovoui::tree::kDropNone;
}

void MultiTreeCtrl::Node::dragEnding(MultiTreeCtrl&, DWORD) {}

bool MultiTreeCtrl::Node::canRename() const
{
    return false;
}

bool MultiTreeCtrl::Node::canErase() const
{
    return false;
}

void MultiTreeCtrl::Node::hitTest(const MultiTreeCtrl&, CPoint, unsigned&) const {}

bool MultiTreeCtrl::Node::buttonDown(const MultiTreeCtrl&, unsigned, CPoint, unsigned)
{
    return false;
}

bool MultiTreeCtrl::Node::handleLButtonUp(MultiTreeCtrl&, CPoint, unsigned)
{
    return false;
}

void MultiTreeCtrl::Node::beginLabelEdit(MultiTreeCtrl&) {}

void MultiTreeCtrl::Node::endLabelEdit(MultiTreeCtrl&) {}

const DragCursorSet& defaultDragCursors()
{
    static const DragCursorSet cursors;
    return cursors;
}
