#include "ProjectNode.h"

#include "ProjectFolder.h"
#include "ProjectTree.h"

#include <ovocor/OvoError.h>

#include <afxres.h>

#include <iterator>

namespace
{

// The images of the strip, in its order.
enum Image
{
    kFolderClosed,
    kFolderOpen,
    kFile,
    kLocked,
    kBroken,
    kLink
};

CommandSupported offered(UINT id)
{
    CommandSupported command;
    command.id = id;
    command.offered = 1;
    return command;
}

} // namespace

ProjectNode::ProjectNode(ProjectItem::Pointer item)
    : m_item(std::move(item))
{
    children = m_item->isFolder() ? 1 : 0;
}

ProjectNode::~ProjectNode() = default;

// A place for others

bool ProjectNode::canCompare() const
{
    return m_item->isSorted();
}

DWORD ProjectNode::dragInto(COleDataObject& data, DWORD& effect, bool& flag, int zone) const
{
    if (!m_item->isFolder())
        return Node::dragInto(data, effect, flag, zone); // beside it
    return ProjectFolder(*m_item).dragInto(data, effect);
}

bool ProjectNode::dropInto(COleDataObject& data, DWORD effect, MultiTreeCtrl& tree, int zone)
{
    return ProjectFolder(*m_item).dropInto(data, effect, tree, *this, zone);
}

// Commands

void ProjectNode::getCommands(CommandSupported*& first, CommandSupported*& last) const
{
    static CommandSupported commands[] = {offered(ID_EDIT_COPY), offered(ID_EDIT_CUT)};
    first = commands;
    last = m_item->isLocked() ? first + 1 : std::end(commands);
}

/// The selection goes to the clipboard as one, whichever of its nodes is asked.
void ProjectNode::doCommand(MultiTreeCtrl& tree, unsigned id)
{
    static_cast<ProjectTree&>(tree).copySelection(id == ID_EDIT_CUT);
}

// The item

std::wstring ProjectNode::text(const MultiTreeCtrl&) const
{
    return m_item->name;
}

std::wstring ProjectNode::infotip(MultiTreeCtrl&) const
{
    if (m_item->isFolder())
        return m_item->name + L": " + std::to_wstring(m_item->items.size()) + L" items";
    return m_item->isLocked() ? m_item->name + L" can be neither renamed nor deleted" : std::wstring();
}

int ProjectNode::closedImage() const
{
    switch (m_item->kind) {
    case ProjectItem::Kind::BrokenFolder:
        return kBroken;
    case ProjectItem::Kind::File:
        return kFile;
    case ProjectItem::Kind::LockedFile:
        return kLocked;
    case ProjectItem::Kind::Link:
        return kLink;
    default:
        return kFolderClosed;
    }
}

int ProjectNode::openImage() const
{
    const int closed = closedImage();
    return closed == kFolderClosed ? kFolderOpen : closed;
}

void ProjectNode::activate(MultiTreeCtrl& tree)
{
    if (m_item->isFolder())
        tree.Expand(hTreeItem(), TVE_TOGGLE);
}

bool ProjectNode::expand(MultiTreeCtrl& tree)
{
    if (m_item->kind == ProjectItem::Kind::BrokenFolder)
        throw OvoError(m_item->name + L" cannot be read.");
    for (const ProjectItem::Pointer& item : m_item->items)
        (new ProjectNode(item))->insert(tree, hTreeItem(), TVI_LAST);
    return true;
}

// Changing it

bool ProjectNode::canRename() const
{
    return !m_item->isLocked();
}

bool ProjectNode::canErase() const
{
    return !m_item->isLocked();
}

bool ProjectNode::erase(MultiTreeCtrl&)
{
    m_item->leave();
    return true;
}

/// A name that another item has is refused: the user is asked again.
void ProjectNode::rename(MultiTreeCtrl& tree, const std::wstring& newText)
{
    if (newText.empty())
        throw OvoError(L"A name is needed.");
    if (m_item->parent && m_item->parent->find(newText))
        return;
    m_item->name = newText;
    if (m_item->parent && m_item->parent->isSorted())
        sortAnew(tree);
}

void ProjectNode::sortAnew(MultiTreeCtrl& tree)
{
    const OVO::Handle<Node> self(this);
    const OVO::Handle<Node> folder = tree.node(tree.GetParentItem(hTreeItem()));
    if (!folder)
        return;
    tree.DeleteItem(hTreeItem());
    tree.insert(this, *folder, 0);
}

// Dragging it

DWORD ProjectNode::dragStarting(MultiTreeCtrl&, DWORD effects, const DragCursorSet*& cursors)
{
    cursors = &defaultDragCursors();
    return effects & (m_item->isLocked() ? DROPEFFECT_COPY | DROPEFFECT_LINK
                                         : DROPEFFECT_COPY | DROPEFFECT_LINK | DROPEFFECT_MOVE);
}

/// What was moved is somewhere else now.
void ProjectNode::dragEnding(MultiTreeCtrl& tree, DWORD effect)
{
    if (effect != DROPEFFECT_MOVE)
        return;
    m_item->leave();
    if (hTreeItem())
        tree.DeleteItem(hTreeItem());
}

// The check box

MultiTreeCtrl::Checkable::Check ProjectNode::check() const
{
    const ProjectItem::Count count = m_item->count();
    if (count.published == 0)
        return count.files == 0 ? Check::None : Check::Off;
    return count.published == count.files ? Check::On : Check::Mixed;
}

/// What is around and below shows it too.
void ProjectNode::setCheck(MultiTreeCtrl& tree, bool on)
{
    m_item->publish(on);
    const OVO::Handle<Node> held(this);
    for (auto node = tree.beginAll(); node != tree.end(); ++node)
        tree.updateUI(*node);
}
