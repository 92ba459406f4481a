// The node behind an item of the project trees.
#pragma once

#include "ProjectItem.h"

#include <ovoui/tree/MultiTreeCtrl.h>

class ProjectNode : public MultiTreeCtrl::Node, public MultiTreeCtrl::Checkable
{
public:
    explicit ProjectNode(ProjectItem::Pointer item);
    ~ProjectNode() override;

    const ProjectItem::Pointer& item() const { return m_item; }

    bool canCompare() const override;
    DWORD dragInto(COleDataObject& data, DWORD& effect, bool& flag, int zone) const override;
    bool dropInto(COleDataObject& data, DWORD effect, MultiTreeCtrl& tree, int zone) override;
    void getCommands(CommandSupported*& first, CommandSupported*& last) const override;
    void doCommand(MultiTreeCtrl& tree, unsigned id) override;

    void activate(MultiTreeCtrl& tree) override;
    bool expand(MultiTreeCtrl& tree) override;
    std::wstring infotip(MultiTreeCtrl& tree) const override;
    std::wstring text(const MultiTreeCtrl& tree) const override;
    bool erase(MultiTreeCtrl& tree) override;
    void rename(MultiTreeCtrl& tree, const std::wstring& newText) override;
    DWORD dragStarting(MultiTreeCtrl& tree, DWORD effects, const DragCursorSet*& cursors) override;
    void dragEnding(MultiTreeCtrl& tree, DWORD effect) override;
    int closedImage() const override;
    int openImage() const override;
    bool canRename() const override;
    bool canErase() const override;

    // Its check box, where the tree shows them: a folder's stands for all in it
    Check check() const override;
    void setCheck(MultiTreeCtrl& tree, bool on) override;

private:
    void sortAnew(MultiTreeCtrl& tree);

    ProjectItem::Pointer m_item;
};
