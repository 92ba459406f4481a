// The comparison's work with the library's tree and list, and with the platform's bare controls below them.
#include "../lists/BenchLists.h"
#include "../tree/BenchTrees.h"
#include "Stopwatch.h"

#include <afxwin.h>

static CWinApp theApp;

namespace
{

using namespace peers;

const CRect kPlace(0, 0, kWidth, kHeight);

void repaint(HWND window)
{
    ::RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
}

// How MultiTreeCtrl and a bare tree view do the same.

void clear(BenchTree& tree)
{
    tree.DeleteAllItems();
}

void clear(BareTree& tree)
{
    tree.send(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT));
}

void selectAll(BenchTree& tree)
{
    tree.SendMessage(WM_COMMAND, ID_EDIT_SELECT_ALL);
}

void selectAll(BareTree& tree)
{
    ::DefWindowProcW(tree, WM_SETREDRAW, FALSE, 0);
    for (HTREEITEM item = tree.next(TVGN_ROOT); item; item = tree.next(TVGN_NEXT, item))
        tree.setSelected(item, true);
    ::DefWindowProcW(tree, WM_SETREDRAW, TRUE, 0);
}

template <class Tree>
void timeTree(const char* widget, int count)
{
    const Stopwatch watch(widget);
    const std::vector<std::wstring> names = labels(count);
    BenchParent parent;
    Tree tree(parent);
    ::MoveWindow(tree, 0, 0, kWidth, kHeight, FALSE);
    watch.time(
        kInsertTree, kInsertRounds, [&] { clear(tree); }, [&] { tree.fill(names); });
    watch.time(
        kSelectTree, kSelectRounds, [] {},
        [&] {
            selectAll(tree);
            repaint(tree);
        });
    watch.time(
        kRepaintTree, kRepaintRounds, [] {}, [&] { repaint(tree); });
}

/// A list that makes up its cells when they are asked for.
template <class List>
class Unstored : public List
{
public:
    explicit Unstored(CWnd& parent)
    {
        List::Create(WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_OWNERDATA, kPlace, &parent, 1);
        for (int column = 0; column < kColumns; ++column)
            List::InsertColumn(column, L"c", LVCFMT_LEFT, kWidth / kColumns);
    }

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override
    {
        auto* const info = reinterpret_cast<NMLVDISPINFOW*>(lParam);
        if (message != WM_NOTIFY || info->hdr.code != LVN_GETDISPINFOW)
            return List::OnChildNotify(message, wParam, lParam, result);
        LVITEMW& item = info->item;
        if (item.mask & LVIF_TEXT)
            ::lstrcpynW(item.pszText, cellText(item.iItem, item.iSubItem).c_str(), item.cchTextMax);
        return TRUE;
    }
};

template <class List>
void timeList(const char* widget)
{
    const Stopwatch watch(widget);
    ListParent parent;
    Unstored<List> list(parent);
    watch.time(
        kInsertList, kInsertRounds, [&] { list.SetItemCountEx(0); },
        [&] {
            list.SetItemCountEx(kRows);
            repaint(list);
        });
    watch.time(
        kSelectList, kSelectRounds, [] {},
        [&] {
            list.SetItemState(-1, LVIS_SELECTED, LVIS_SELECTED);
            repaint(list);
        });
    watch.time(
        kRepaintList, kRepaintRounds, [] {}, [&] { repaint(list); });
}

} // namespace

int main(int argc, char** argv)
{
    if (!AfxWinInit(::GetModuleHandleW(nullptr), nullptr, ::GetCommandLineW(), SW_SHOW))
        return 1;
    const int count = treeItems(argc, argv);
    timeTree<BenchTree>("MultiTreeCtrl", count);
    timeTree<BareTree>("tree view of the platform", count);
    timeList<COVOListCtrlEx>("COVOListCtrlEx, LVS_OWNERDATA");
    timeList<CListCtrl>("list view of the platform");
}
