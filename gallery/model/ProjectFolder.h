// What can be dropped into a folder of a project, and what comes of it.
#pragma once

#include "ProjectItem.h"

#include <ovoui/tree/MultiTreeCtrl.h>

/// The part of an insertion point that folders and the top level have in common.
class ProjectFolder
{
public:
    explicit ProjectFolder(ProjectItem& folder)
        : m_folder(folder)
    {
    }

    /// The effect of a drop without keys; all possible ones go to `effects`.
    DWORD dragInto(COleDataObject& data, DWORD& effects) const;

    /// Puts what is dropped behind `zone` others, or behind all for -1, and into the tree where that shows
    /// the folder open. False when there is nothing of use.
    bool dropInto(COleDataObject& data, DWORD effect, MultiTreeCtrl& tree,
                  MultiTreeCtrl::InsertionPoint& place, int zone);

private:
    void add(ProjectItem::Pointer item, MultiTreeCtrl& tree, MultiTreeCtrl::InsertionPoint& place, int zone);

    ProjectItem& m_folder;
};
