/// A tree view of the application's own objects, any number of which can be selected.
///
///     class Folder : public MultiTreeCtrl::Node { ... };   // text, images, what opening it does ...
///     class ProjectTree : public MultiTreeCtrl             // where errors go, what is forbidden
///     {
///         void reportError(const wchar_t* message) override { AfxMessageBox(message); }
///         bool isCommandDisabled(unsigned) override { return false; }
///     };
///
///     tree.Create(WS_CHILD | WS_VISIBLE | TVS_HASBUTTONS | TVS_SHOWSELALWAYS, rect, this, idOfTree);
///     (new Folder(L"Sources"))->insert(tree, TVI_ROOT, TVI_LAST);
///
/// Classes and files: the nodes and the places where children go are in TreeNode.h and InsertionPoint.h,
/// check boxes in TreeCheckable.h, walking over items in TreeIterator.h, the drop menu in DropMenu.h.
#pragma once

#include <ovoui/export.h>
#include <ovoui/tree/CommandSupported.h>
#include <ovoui/tree/DragCursorSet.h>

#include <ovocor/EventList.h>
#include <ovocor/Handle.h>

#include <afxwin.h>
#include <afxcmn.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

class COleDataObject;

/// The control. A host derives from it, answers the two pure operations, and creates it or attaches it to a
/// dialog item (SubclassDlgItem, DDX_Control). For drag and drop the host starts OLE (AfxOleInit) first.
///
/// Items are those of CTreeCtrl, each with a node behind it; insert them through Node::insert or the
/// operations here. The platform's selected item is the focus here (the caret); selected are all items with
/// the bit TVIS_SELECTED. What the user selects reaches the parent window as TVN_SELCHANGED, once a gesture;
/// docs/tree.md lists the changes that are not told.
///
/// Items passed in must exist in this tree, except where null is mentioned. Exceptions of nodes pass through
/// all public operations. Whatever the tree calls may change the tree and destroy it, except as TreeNode.h
/// says.
class OVOUI_API MultiTreeCtrl : public CTreeCtrl
{
public:
    class InsertionPoint;
    class Node;
    class Checkable;
    class iterator;
    /// The record of a command.
    using CommandSupported = ::CommandSupported;
    /// The pointers of a drag.
    using DragCursorSet = ::DragCursorSet;

    /// What gestureEV() publishes, beside the numbers of commands, when selected nodes are about to be
    /// deleted; 0 is the end.
    static constexpr int kGestureDelete = 5146;
    /// What gestureEV() publishes before the default action; 0 is the end.
    static constexpr int kGestureDefaultAction = 1118;

    MultiTreeCtrl();
    /// Destroys the window, if there is one, and lets go of all nodes.
    ~MultiTreeCtrl() override;

    // Inserting

    /// Inserts a node among the children of `where`: if these are kept sorted, before the first child that
    /// sorts behind it, else behind `position` children; a negative or too large position appends.
    ///
    /// Gives the new item. If `where` is not expanded, or goes while it is asked, null; if a child on the way
    /// sorts the same, that child's item: in these cases the node is destroyed, unless it is held by a
    /// handle. Null too when the tree view cannot insert the item, or for a null node: the node is left as it
    /// was, and likewise when a node raises an exception.
    HTREEITEM insert(Node* node, InsertionPoint& where, int position);

    /// How insert() finds the place among sorted children.
    enum class SortedInsertion
    {
        Walk, ///< compares one child after the other with the node, from the first on
        Halve ///< compares few of them: for a host that keeps them in order at all times
    };

    /// Chooses the `way`. With Halve the host promises that under every insertion point whose canCompare() is
    /// true each child sorts before the next one; a node whose place has changed is inserted anew. Walk at
    /// first.
    void setSortedInsertion(SortedInsertion way);

    /// Inserts many nodes among the children of `where` at once, with one repaint and one walk over the
    /// children. Gives what insert() gives for each, in the order of `nodes`.
    ///
    /// Sorted children end as if the nodes were inserted one by one; of several nodes that sort the same, the
    /// first is inserted. Otherwise the nodes go in as one block, in their order, behind `position` children.
    /// When a node raises an exception, those that sort before it may have been inserted.
    std::vector<HTREEITEM> insertBatch(const std::vector<Node*>& nodes, InsertionPoint& where, int position);

    /// Inserts as Node::insert does, under `parent` behind `after`, and adds the item to the selection.
    /// `first`, true before the first call of a batch, makes that call replace the selection, and becomes
    /// false. Gives null, and changes nothing of the selection, when nothing was inserted.
    HTREEITEM insertAndSelect(Node* node, bool& first, HTREEITEM parent, HTREEITEM after);
    /// The same for `node` among the children of `where` behind `position` of them, as insert() does; `first`
    /// as above.
    HTREEITEM insertAndSelect(Node* node, bool& first, InsertionPoint& where, int position);

    // Nodes

    /// The node behind an item; none for null or an item without a node.
    OVO::Handle<Node> node(HTREEITEM item) const;

    /// Brings an item up to date with its node: label, images, has-children value, the cut, drop-highlighted
    /// and bold bits. Nothing for a node without an item. For the caret the parent gets TVN_SELCHANGED, since
    /// what it shows of the item may have changed.
    void updateUI(Node& node);
    void updateUI(HTREEITEM item);

    /// Ends an open label editor, keeping the edit, and deletes all items. Gives the tree view's result.
    BOOL DeleteAllItems();

    /// Asks the user, then has the selected nodes that can be erased erase themselves, and deletes their
    /// items. Nodes get dragStarting and dragEnding with no effect around it.
    void eraseSelectedNodes();

    // Walking

    /// Over all items, or with `selectedOnly` over the selected ones.
    iterator begin(bool selectedOnly) const;
    /// Over all items.
    iterator beginAll() const;
    /// Over the selected items.
    iterator beginSelected() const;
    /// The end of every walk.
    iterator end() const;

    // Selection

    /// Makes an item the caret and the only selected one; null clears the selection. Calls doSelectItem.
    BOOL SelectItem(HTREEITEM item);

    /// Makes `item` the fixed end of the next range (Shift); null for none.
    void selectItemAnchor(HTREEITEM item);

    /// Deselects `first`, its following siblings, and all below these, without a notification. Gives how many
    /// were selected. Null does nothing.
    unsigned clearselection(HTREEITEM first);

    /// Adds the displayed items from `a` to `b`, in whatever order they stand, to the selection, without a
    /// notification. If one is null or not displayed, the range goes from the other to the last displayed
    /// item.
    void selectRange(HTREEITEM a, HTREEITEM b);

    /// Sends the parent TVN_SELCHANGED. `action` is one of the TVC_ values; `oldItem` and `newItem` may be
    /// null; `point` is where, in client coordinates.
    void notifyTvnSelchanged(unsigned action, HTREEITEM oldItem, HTREEITEM newItem,
                             const CPoint& point) const;

    /// The selected item (the caret if it is selected, else the first) as a path of texts from the top:
    /// "/Project/Sources/main.cpp". In a text a slash is written "\/" and a backslash "\\"; "\#2" behind a
    /// text means the second child with it. Empty when nothing is selected.
    std::wstring selectedPath();

    /// Selects the item of a path, opening what is on the way; an empty path clears the selection. When there
    /// is no such item the selection stays.
    void selectPath(const std::wstring& path);

    /// As CTreeCtrl::HitTest, with flags (may be null) that the node under the point may have changed.
    HTREEITEM HitTest(CPoint point, unsigned* flags = nullptr) const;
    using CTreeCtrl::HitTest;

    /// Activates the selected nodes, as a double click does.
    void defaultAction();

    /// Tells when a user's gesture begins (its number) and ends (0), so that all it does can be made undone
    /// at once. All subscribers hear of the end, whatever is raised meanwhile; when one raises at the
    /// beginning, nothing is done.
    EVSubscriptionList<int>& gestureEV();

    // What is off unless the host asks for it

    /// What setExtras turns on.
    enum Extra : unsigned
    {
        RubberBand = 1, ///< the left button, dragged from beside the labels, selects the rows that it passes
        AddRanges = 2,  ///< Ctrl+Shift adds a range to the selection, by mouse and keyboard
        FindAnywhere = 4, ///< typing finds the next item that has what is typed anywhere in its label
        CheckBoxes = 8    ///< nodes that are Checkable have a check box; takes the tree's state images
    };
    /// Turns the `extras` on, combined with |, and all others off. None are on at first.
    void setExtras(unsigned extras);
    /// Those that are on.
    unsigned extras() const;

    /// Leaves the items in the tree whose nodes `keeps` keeps, and all that these are in; without a function,
    /// all. The others are taken out: their nodes have no item until a filter keeps them, and they are not
    /// selected then. Children of an item that is opened are filtered too; what is inserted stays until the
    /// filter is set anew.
    ///
    /// Asks every node that is in the tree at once. What `keeps` raises passes on, and all is shown then.
    void setFilter(std::function<bool(const Node&)> keeps);

    /// Which items are open and selected, where the caret and the anchor are and how far the tree is scrolled,
    /// as a text of paths, for the host to keep. It has a line for each item, which an entry of the registry
    /// holds and one of an ini file does not. What a filter hides is not in it.
    std::wstring saveView();
    /// Opens, selects and scrolls to what saveView found in `view`, as far as it is there. Items that are
    /// open stay so. A text that saveView did not write, such as an empty one, changes nothing.
    void restoreView(const std::wstring& view);

    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override;
    BOOL PreTranslateMessage(MSG* message) override;

    // What the host answers

    /// Shows an error, `message`, that a node has raised.
    virtual void reportError(const wchar_t* message) = 0;
    /// Whether the command or gesture `id` is forbidden now.
    virtual bool isCommandDisabled(unsigned id) = 0;

    // What the host may change

    /// Scrolls by one item during a drag, or, with `doIt` false, tells whether it could. The high byte of
    /// `code` is 0 for up and 1 for down; `reserved` means nothing.
    virtual bool dragScroll(unsigned code, unsigned reserved, bool doIt);
    /// Does the work of SelectItem for `item`, which may be null. False when the parent refused the change.
    virtual bool doSelectItem(HTREEITEM item);

protected:
    void PreSubclassWindow() override;
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    // Mouse
    afx_msg void OnLButtonDown(UINT keys, CPoint point);
    afx_msg void OnLButtonUp(UINT keys, CPoint point);
    afx_msg void OnLButtonDblClk(UINT keys, CPoint point);
    afx_msg void OnRButtonDown(UINT keys, CPoint point);
    afx_msg void OnRButtonUp(UINT keys, CPoint point);
    afx_msg void OnRButtonDblClk(UINT keys, CPoint point);
    afx_msg void OnRClick(NMHDR* header, LRESULT* result);
    afx_msg void OnTimer(UINT_PTR id);

    // Keyboard and focus
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnSysKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnChar(UINT character, UINT repeat, UINT flags);
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnReturn(NMHDR* header, LRESULT* result);
    afx_msg void OnSetFocus(CWnd* old);
    afx_msg void OnKillFocus(CWnd* next);

    // Commands
    afx_msg void OnOk();
    afx_msg void OnEditDelete();
    afx_msg void OnEditReplace();
    afx_msg void OnRedraw();
    afx_msg BOOL OnEditPaste(UINT id);
    afx_msg void OnEditSelectAll();
    afx_msg BOOL OnUnknownCommand(UINT id);
    afx_msg void OnUpdateEditDelete(CCmdUI* ui);
    afx_msg void OnUpdateEditReplace(CCmdUI* ui);
    afx_msg void OnUpdateEditPaste(CCmdUI* ui);
    afx_msg void OnContextMenu(CWnd* wnd, CPoint screen);
    afx_msg void OnInitMenuPopup(CMenu* popup, UINT index, BOOL systemMenu);

    // The tree view's notifications
    afx_msg BOOL OnSelchanging(NMHDR* header, LRESULT* result);
    afx_msg BOOL OnItemexpanding(NMHDR* header, LRESULT* result);
    afx_msg BOOL OnItemexpanded(NMHDR* header, LRESULT* result);
    afx_msg void OnDeleteitem(NMHDR* header, LRESULT* result);
    afx_msg BOOL OnGetdispinfo(NMHDR* header, LRESULT* result);
    afx_msg void OnBeginlabeledit(NMHDR* header, LRESULT* result);
    afx_msg void OnEndlabeledit(NMHDR* header, LRESULT* result);
    afx_msg LRESULT OnEditLabelAgain(WPARAM wParam, LPARAM lParam);
    afx_msg void OnGetinfotip(NMHDR* header, LRESULT* result);
    afx_msg BOOL OnToolTipShow(UINT id, NMHDR* header, LRESULT* result);

    afx_msg int OnCreate(LPCREATESTRUCT cs);
    DECLARE_MESSAGE_MAP()

private:
    // What the control is made of; see docs/architecture.md
    class Band;
    class CheckBoxConcern;
    class ChildWalk;
    class Commands;
    class Concern;
    class Deletion;
    class DropTarget;
    class Dropping;
    class Erasing;
    class Expansion;
    class Filter;
    class Find;
    class HostCalls;
    class Inserter;
    class Insertion;
    class ItemList;
    class ItemWatcher;
    class Keyboard;
    class LabelEdit;
    class LayoutHold;
    struct Message;
    class Mouse;
    class NativeCall;
    class Paste;
    class Paths;
    class Refresh;
    class RowKeeper;
    class Selection;
    struct State;
    class Tracker;
    class UnreportedNodes;
    class View;
    class ViewKeeper;

    void setUp();

    HTREEITEM m_anchor = nullptr;
    bool m_pending = false; ///< the last press has changed the selection already
    std::unique_ptr<DropTarget> m_dropTarget;
    HACCEL m_accelerators = nullptr;
    UINT_PTR m_editTimer = 0;
    HTREEITEM m_editItem = nullptr; ///< the item that the timer will edit
    OVO::Handle<EVSubscriptionList<int>> m_gestures;
    std::shared_ptr<State> m_state; ///< shared, since calls into the host may destroy the control
};

#include <ovoui/tree/InsertionPoint.h>
#include <ovoui/tree/TreeCheckable.h>
#include <ovoui/tree/TreeIterator.h>
#include <ovoui/tree/TreeNode.h>
