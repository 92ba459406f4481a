#include "ProjectTree.h"

#include "ProjectNode.h"

#include <ovoui/frame/MessageBox.h>

#include <afxres.h>
#include <ovouires/resource.h>

#include <algorithm>

namespace
{

constexpr DWORD kAnyEffect = DROPEFFECT_COPY | DROPEFFECT_MOVE | DROPEFFECT_LINK;

std::wstring effectName(DWORD effect)
{
    switch (effect) {
    case DROPEFFECT_COPY:
        return L"copy";
    case DROPEFFECT_MOVE:
        return L"move";
    case DROPEFFECT_LINK:
        return L"link";
    default:
        return L"nothing";
    }
}

} // namespace

ProjectTree::ProjectTree()
    : m_gestures(gestureEV().subscribe([this](const int& code) {
        log(code ? L"gesture " + std::to_wstring(code) + L" begins" : L"gesture ends");
    }))
{
}

ProjectTree::~ProjectTree() = default;

void ProjectTree::log(const std::wstring& line) const
{
    if (m_log)
        m_log(line);
}

void ProjectTree::reportError(const wchar_t* message)
{
    log(std::wstring(L"error: ") + message);
    OVOMessageBox(m_hWnd, message, L"ovoui gallery", MB_OK | MB_ICONEXCLAMATION, L"", 0);
}

bool ProjectTree::isCommandDisabled(unsigned id)
{
    const bool changes =
        id == ID_TREE_DELETE || id == ID_TREE_RENAME || id == ID_EDIT_CUT || id == ID_EDIT_PASTE;
    return m_readOnly && changes;
}

std::vector<OVO::Handle<MultiTreeCtrl::Node>> ProjectTree::selectedNodes() const
{
    std::vector<OVO::Handle<Node>> nodes;
    for (auto at = beginSelected(); at != end(); ++at)
        nodes.push_back(at);
    return nodes;
}

ProjectData::Items ProjectTree::itemsOf(const std::vector<OVO::Handle<Node>>& nodes)
{
    ProjectData::Items items;
    for (const OVO::Handle<Node>& node : nodes) {
        const ProjectItem::Pointer& item = static_cast<ProjectNode&>(*node).item();
        // What is in a folder that goes too goes with it.
        if (std::ranges::none_of(items,
                                 [&](const ProjectItem::Pointer& other) { return other->holds(*item); }))
            items.push_back(item);
    }
    return items;
}

/// The effects that every node allows.
DWORD ProjectTree::allowedBy(const std::vector<OVO::Handle<Node>>& nodes)
{
    DWORD effects = m_readOnly ? DROPEFFECT_COPY | DROPEFFECT_LINK : kAnyEffect;
    for (const OVO::Handle<Node>& node : nodes) {
        const DragCursorSet* cursors = nullptr;
        effects &= node->dragStarting(*this, effects, cursors);
    }
    return effects;
}

void ProjectTree::dragSelection()
{
    const std::vector<OVO::Handle<Node>> nodes = selectedNodes();
    const DWORD allowed = nodes.empty() ? DROPEFFECT_NONE : allowedBy(nodes);
    DWORD effect = DROPEFFECT_NONE;
    if (allowed) {
        COleDataSource source;
        ProjectData::offer(source, itemsOf(nodes));
        effect = source.DoDragDrop(allowed);
    }
    log(L"the drag ends with: " + effectName(effect));
    for (const OVO::Handle<Node>& node : nodes)
        node->dragEnding(*this, effect);
}

void ProjectTree::copySelection(bool cut)
{
    const std::vector<OVO::Handle<Node>> nodes = selectedNodes();
    auto* const source = new COleDataSource; // the clipboard's from now on
    ProjectData::offer(*source, itemsOf(nodes));
    source->SetClipboard();
    if (!cut)
        return;
    // Taken out at once: pasting puts copies in.
    for (const OVO::Handle<Node>& node : nodes)
        node->dragEnding(*this, DROPEFFECT_MOVE);
}
