/// What the tree's tests share: a tree in a recording parent, nodes that do what a test tells them, and a
/// look at what a user or a host would see.
#pragma once

#include <testkit/Desktop.h>
#include <testkit/RecordingParent.h>
#include <testkit/Robot.h>

#include <ovoui/tree/MultiTreeCtrl.h>

#include <afxole.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

/// What happened, in order, as one line each: "expand b", "gesture 5146".
using Journal = std::vector<std::string>;

std::wstring wide(const std::string& text);
std::string narrow(const std::wstring& text);

/// A node with a name. What it is asked to do is written into the journal, and done by the function that the
/// test has set for it, if any.
class TestNode : public MultiTreeCtrl::Node
{
public:
    explicit TestNode(std::string nodeName, Journal* nodeJournal = nullptr);
    ~TestNode() override;

    /// How many there are.
    static int live();

    std::string name;
    Journal* journal;
    bool renamable = false;
    bool erasable = false;
    int closed = 0;
    int open = 0;
    std::vector<std::string> childNames; ///< of the nodes that expand() makes, if `expanding` is not set
    std::vector<CommandSupported> commands;
    std::string tip;
    std::function<int()> onDestroyed;

    std::function<bool(MultiTreeCtrl&)> expanding;
    std::function<void(MultiTreeCtrl&)> collapsing;
    std::function<void(MultiTreeCtrl&)> activating;
    std::function<std::wstring()> texting;
    std::function<bool(MultiTreeCtrl&)> erasing;
    std::function<bool()> refreshing;
    std::function<void(MultiTreeCtrl&, const std::wstring&)> renaming;
    std::function<std::wstring()> offeringText; ///< renameText
    std::function<void(MultiTreeCtrl&)> draggingStarts;
    std::function<void(MultiTreeCtrl&, DWORD)> draggingEnds;
    std::function<DWORD(COleDataObject&, DWORD&, bool&, int)> draggingInto;
    std::function<bool(COleDataObject&, DWORD, MultiTreeCtrl&, int)> droppingInto;
    std::function<void(CPoint, unsigned&)> hitting;
    std::function<bool(unsigned, CPoint, unsigned)> pressing;
    std::function<bool(CPoint, unsigned)> releasing;
    std::function<void(MultiTreeCtrl&)> editBegins;
    std::function<void(MultiTreeCtrl&)> editEnds;
    std::function<void(MultiTreeCtrl&, unsigned)> commanding;
    std::function<void(CCmdUI*, bool)> updating;
    std::function<bool()> askingErase;    ///< canErase
    std::function<void()> askingCommands; ///< getCommands
    std::function<std::wstring()> tipping;

    std::wstring text(const MultiTreeCtrl&) const override;
    int closedImage() const override { return closed; }
    int openImage() const override { return open; }
    void activate(MultiTreeCtrl& tree) override;
    void collapse(MultiTreeCtrl& tree) override;
    bool expand(MultiTreeCtrl& tree) override;
    std::wstring infotip(MultiTreeCtrl& tree) const override;
    bool erase(MultiTreeCtrl& tree) override;
    bool refresh() override;
    void rename(MultiTreeCtrl& tree, const std::wstring& newText) override;
    std::wstring renameText(MultiTreeCtrl& tree) const override;
    DWORD dragStarting(MultiTreeCtrl& tree, DWORD effects, const DragCursorSet*& cursors) override;
    void dragEnding(MultiTreeCtrl& tree, DWORD effect) override;
    bool canRename() const override { return renamable; }
    bool canErase() const override { return askingErase ? askingErase() : erasable; }
    void hitTest(const MultiTreeCtrl& tree, CPoint point, unsigned& flags) const override;
    bool buttonDown(const MultiTreeCtrl& tree, unsigned message, CPoint point, unsigned flags) override;
    bool handleLButtonUp(MultiTreeCtrl& tree, CPoint point, unsigned flags) override;
    void beginLabelEdit(MultiTreeCtrl& tree) override;
    void endLabelEdit(MultiTreeCtrl& tree) override;
    DWORD dragInto(COleDataObject& data, DWORD& effect, bool& flag, int zone) const override;
    bool dropInto(COleDataObject& data, DWORD effect, MultiTreeCtrl& tree, int zone) override;
    void getCommands(CommandSupported*& first, CommandSupported*& last) const override;
    void doUpdateCmd(CCmdUI* ui, bool flag) const override;
    void doCommand(MultiTreeCtrl& tree, unsigned id) override;

    /// Makes the node offer a command.
    void offer(unsigned id, bool now = true);

private:
    void note(const std::string& what) const;
};

/// The top level of a tree, or any item, as a place of its own: sorted by text, or by position.
class TestPlace : public MultiTreeCtrl::InsertionPoint
{
public:
    explicit TestPlace(HTREEITEM item = TVI_ROOT, bool sorted = true)
        : m_item(item)
        , m_sorted(sorted)
    {
    }

    bool isOpen = true;
    std::function<int(MultiTreeCtrl&, const MultiTreeCtrl::Node&, const MultiTreeCtrl::Node&)> comparing;
    int comparisons = 0;

    HTREEITEM hTreeItem() const override { return m_item; }
    bool canCompare() const override { return m_sorted; }
    bool expanded() const override { return isOpen; }
    int compareChildren(MultiTreeCtrl& tree, const MultiTreeCtrl::Node& a,
                        const MultiTreeCtrl::Node& b) const override;
    DWORD dragInto(COleDataObject&, DWORD&, bool&, int) const override { return 0; }
    bool dropInto(COleDataObject&, DWORD, MultiTreeCtrl&, int) override { return false; }

private:
    HTREEITEM m_item;
    bool m_sorted;
};

class TestTree : public MultiTreeCtrl
{
public:
    std::vector<std::string> errors; ///< what was reported
    std::vector<unsigned> disabled;  ///< commands that are forbidden
    bool counting = false;
    int paints = 0;
    std::vector<CRect> painted;       ///< update rectangles of the paints
    int contextMenus = 0;             ///< how often one was asked for
    bool swallowsContextMenu = false; ///< so that none is shown
    std::function<void()> reporting;

    void reportError(const wchar_t* message) override;
    bool isCommandDisabled(unsigned id) override;

    using CTreeCtrl::EndEditLabelNow;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
};

/// A change of the selection as the parent was told.
struct Change
{
    UINT action;
    std::string oldItem; ///< "-" for none
    std::string newItem;

    friend bool operator==(const Change&, const Change&) = default;
    friend std::ostream& operator<<(std::ostream& out, const Change& change);
};

/// A tree in a window, shown, with the items that a test names.
class Scene
{
public:
    static constexpr DWORD kStyle =
        WS_CHILD | WS_VISIBLE | TVS_HASBUTTONS | TVS_LINESATROOT | TVS_EDITLABELS | TVS_SHOWSELALWAYS;

    /// Top-level items with these names, in this order.
    explicit Scene(const std::vector<std::string>& names = {}, DWORD style = kStyle);
    ~Scene();

    /// Behind all others under a parent; the top level unless another one is named.
    TestNode& add(const std::string& name, const std::string& parent = "");
    TestNode& addTo(HTREEITEM parent, const std::string& name);

    /// The node, or the item, with this name; the test fails when there is none.
    TestNode& node(const std::string& name);
    HTREEITEM item(const std::string& name);
    /// The name of an item; "-" for none.
    std::string nameOf(HTREEITEM item);

    /// Opens an item as a user does, by its button.
    void open(const std::string& name);

    // Places, looked up when they are needed
    ovo::testkit::Spot label(const std::string& name);
    ovo::testkit::Spot button(const std::string& name);
    ovo::testkit::Spot beside(const std::string& name); ///< right of the label
    ovo::testkit::Spot below();                         ///< on the empty space below all items
    CPoint labelPoint(const std::string& name);         ///< client coordinates

    // What is there
    std::vector<std::string> selected(); ///< in the order of the tree
    std::string caret();
    std::vector<std::string> all();                               ///< every item, in the order of the tree
    std::vector<std::string> childrenOf(const std::string& name); ///< "" for the top level
    bool isExpanded(const std::string& name);

    // What the parent was told
    std::vector<Change> changes(); ///< TVN_SELCHANGED
    void forget();                 ///< all that was recorded

    ovo::testkit::RecordingParent& parent() { return *m_parent; }

    Journal journal;
    ovo::testkit::Robot user;

private:
    std::unique_ptr<ovo::testkit::RecordingParent> m_parent;

public:
    TestTree tree;

protected:
    Scene(std::unique_ptr<ovo::testkit::RecordingParent> parent, const std::vector<std::string>& names,
          DWORD style);

private:
    EVSubscription m_gestures;
};

/// A parent window that takes drops at the top level.
class RootParent : public ovo::testkit::RecordingParent, public MultiTreeCtrl::InsertionPoint
{
public:
    using RecordingParent::RecordingParent;

    std::function<DWORD(COleDataObject&, DWORD&, bool&, int)> draggingInto;
    std::function<bool(COleDataObject&, DWORD, MultiTreeCtrl&, int)> droppingInto;

    HTREEITEM hTreeItem() const override { return TVI_ROOT; }
    bool expanded() const override { return true; }
    DWORD dragInto(COleDataObject& data, DWORD& effect, bool& flag, int zone) const override
    {
        return draggingInto ? draggingInto(data, effect, flag, zone) : 0;
    }
    bool dropInto(COleDataObject& data, DWORD effect, MultiTreeCtrl& tree, int zone) override
    {
        return droppingInto && droppingInto(data, effect, tree, zone);
    }
};

class RootScene : public Scene
{
public:
    explicit RootScene(const std::vector<std::string>& names = {}, DWORD style = kStyle);
    RootParent& root() { return static_cast<RootParent&>(parent()); }
};

using Names = std::vector<std::string>;

/// So many names of one length, in their order: "100", "101".
Names numbered(int count);
using Changes = std::vector<Change>;
