/// The nodes of the monkey's tree, and its top level: every operation may commit a misdeed before it answers.
#pragma once

#include <ovoui/tree/MultiTreeCtrl.h>

#include <string>

class Monkey;

class MonkeyNode : public MultiTreeCtrl::Node
{
public:
    MonkeyNode(Monkey& monkey, int id, std::string name, bool canHaveChildren);
    ~MonkeyNode() override;

    const int id;
    std::string name;
    bool sortsChildren = false;
    bool ownPart = false; ///< claims every point as its own
    bool erasable = true;
    bool offers = false; ///< the command that the monkey sends

    int compareChildren(MultiTreeCtrl& tree, const Node& a, const Node& b) const override;
    bool canCompare() const override;
    void getCommands(CommandSupported*& first, CommandSupported*& last) const override;
    void doUpdateCmd(CCmdUI* ui, bool flag) const override;
    void doCommand(MultiTreeCtrl& tree, unsigned id) override;
    bool expanded() const override;
    void collapse(MultiTreeCtrl& tree) override;
    void activate(MultiTreeCtrl& tree) override;
    bool expand(MultiTreeCtrl& tree) override;
    std::wstring infotip(MultiTreeCtrl& tree) const override;
    std::wstring text(const MultiTreeCtrl& tree) const override;
    bool erase(MultiTreeCtrl& tree) override;
    bool refresh() override;
    void rename(MultiTreeCtrl& tree, const std::wstring& newText) override;
    std::wstring renameText(MultiTreeCtrl& tree) const override;
    DWORD dragStarting(MultiTreeCtrl& tree, DWORD effects, const DragCursorSet*& cursors) override;
    void dragEnding(MultiTreeCtrl& tree, DWORD effect) override;
    int closedImage() const override;
    int openImage() const override;
    bool canRename() const override;
    bool canErase() const override;
    void hitTest(const MultiTreeCtrl& tree, CPoint point, unsigned& flags) const override;
    bool buttonDown(const MultiTreeCtrl& tree, unsigned message, CPoint point, unsigned flags) override;
    bool handleLButtonUp(MultiTreeCtrl& tree, CPoint point, unsigned flags) override;
    void beginLabelEdit(MultiTreeCtrl& tree) override;
    void endLabelEdit(MultiTreeCtrl& tree) override;

private:
    /// Has the monkey commit a misdeed, maybe. The tree must keep this node alive meanwhile.
    void callOut(const char* operation) const;

    Monkey& m_monkey;
};

/// The top level as a place for nodes.
class MonkeyRoot : public MultiTreeCtrl::InsertionPoint
{
public:
    explicit MonkeyRoot(Monkey& monkey, bool sorted)
        : m_monkey(monkey)
        , m_sorted(sorted)
    {
    }

    HTREEITEM hTreeItem() const override { return TVI_ROOT; }
    int compareChildren(MultiTreeCtrl& tree, const MultiTreeCtrl::Node& a,
                        const MultiTreeCtrl::Node& b) const override;
    bool canCompare() const override;
    bool expanded() const override;
    DWORD dragInto(COleDataObject&, DWORD&, bool&, int) const override { return 0; }
    bool dropInto(COleDataObject&, DWORD, MultiTreeCtrl&, int) override { return false; }

private:
    Monkey& m_monkey;
    const bool m_sorted;
};
