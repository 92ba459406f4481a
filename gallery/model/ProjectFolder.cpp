#include "ProjectFolder.h"

#include "ProjectData.h"
#include "ProjectNode.h"

#include <ovocor/Text.h>

#include <algorithm>

namespace
{

constexpr std::size_t kLongestName = 60;

ProjectItem::Pointer arriving(const ProjectItem& item, DWORD effect)
{
    if (effect == DROPEFFECT_LINK)
        return ProjectItem::make(L"Link to " + item.name, ProjectItem::Kind::Link);
    return item.copy(); // of a move the source takes its own away
}

} // namespace

DWORD ProjectFolder::dragInto(COleDataObject& data, DWORD& effects) const
{
    effects = DROPEFFECT_NONE;
    if (m_folder.kind == ProjectItem::Kind::BrokenFolder)
        return DROPEFFECT_NONE;
    const ProjectData::Items* const items = ProjectData::itemsIn(data);
    if (!items) {
        effects = data.IsDataAvailable(CF_UNICODETEXT) ? DROPEFFECT_COPY : DROPEFFECT_NONE;
        return effects;
    }
    // A folder has no place in itself, and in a sorted folder its own items have theirs already.
    const bool intoItself = std::ranges::any_of(
        *items, [this](const ProjectItem::Pointer& item) { return item->holds(m_folder); });
    const bool here = std::ranges::any_of(
        *items, [this](const ProjectItem::Pointer& item) { return item->parent == &m_folder; });
    const bool locked =
        std::ranges::any_of(*items, [](const ProjectItem::Pointer& item) { return item->isLocked(); });
    if (intoItself)
        return DROPEFFECT_NONE;
    const bool moves = !locked && !(here && m_folder.isSorted());
    effects = DROPEFFECT_COPY | DROPEFFECT_LINK | (moves ? DROPEFFECT_MOVE : 0);
    return moves ? DROPEFFECT_MOVE : DROPEFFECT_COPY;
}

bool ProjectFolder::dropInto(COleDataObject& data, DWORD effect, MultiTreeCtrl& tree,
                             MultiTreeCtrl::InsertionPoint& place, int zone)
{
    if (const ProjectData::Items* const items = ProjectData::itemsIn(data)) {
        for (const ProjectItem::Pointer& item : ProjectData::Items(*items))
            add(arriving(*item, effect), tree, place, zone < 0 ? zone : zone++);
        return true;
    }
    const std::optional<std::wstring> text = ProjectData::textIn(data);
    if (!text || text->empty())
        return false;
    const std::wstring line = text->substr(0, std::min(text->find_first_of(L"\r\n"), kLongestName));
    add(ProjectItem::make(line.empty() ? L"Text" : line, ProjectItem::Kind::File), tree, place, zone);
    return true;
}

void ProjectFolder::add(ProjectItem::Pointer item, MultiTreeCtrl& tree, MultiTreeCtrl::InsertionPoint& place,
                        int zone)
{
    m_folder.add(item, zone);
    tree.insert(new ProjectNode(item), place, zone); // refused where the folder is closed
}
