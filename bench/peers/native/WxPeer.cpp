// The comparison's work with wxTreeCtrl and, for rows that are not stored, a virtual wxListCtrl.
#include "Stopwatch.h"

#include <wx/app.h>
#include <wx/frame.h>
#include <wx/listctrl.h>
#include <wx/treectrl.h>
#include <wx/utils.h>

namespace
{

using namespace peers;

/// Cells that are made up when they are asked for.
class Rows : public wxListCtrl
{
public:
    explicit Rows(wxWindow* parent)
        : wxListCtrl(parent, wxID_ANY, wxDefaultPosition, wxSize(kWidth, kHeight), wxLC_REPORT | wxLC_VIRTUAL)
    {
        for (int column = 0; column < kColumns; ++column)
            AppendColumn("c");
    }

    wxString OnGetItemText(long row, long column) const override
    {
        return wxString::Format("cell %06ld %02ld", row, column);
    }
};

void repaint(wxWindow& window)
{
    window.Refresh();
    window.Update();
}

wxFrame* shownFrame()
{
    auto* frame =
        new wxFrame(nullptr, wxID_ANY, "peer", wxDefaultPosition, wxSize(kWidth + 40, kHeight + 40));
    frame->Show();
    return frame;
}

void fill(wxTreeCtrl& tree, int count)
{
    tree.Freeze();
    const wxTreeItemId root = tree.AddRoot("root");
    for (int i = 0; i < count; ++i)
        tree.AppendItem(root, wxString::Format("item %06d", i));
    tree.Thaw();
    repaint(tree);
}

void timeTree(int count)
{
    const Stopwatch watch("wxTreeCtrl");
    wxFrame* frame = shownFrame();
    wxTreeCtrl tree(frame, wxID_ANY, wxDefaultPosition, wxSize(kWidth, kHeight),
                    wxTR_MULTIPLE | wxTR_HIDE_ROOT | wxTR_HAS_BUTTONS);
    wxYield();
    watch.time(
        kInsertTree, kInsertRounds, [&] { tree.DeleteAllItems(); }, [&] { fill(tree, count); });
    watch.time(
        kSelectTree, kSelectRounds, [&] { tree.UnselectAll(); },
        [&] {
            tree.Freeze();
            tree.SelectChildren(tree.GetRootItem());
            tree.Thaw();
            repaint(tree);
        });
    watch.time(
        kRepaintTree, kRepaintRounds, [] {}, [&] { repaint(tree); });
    frame->Destroy();
}

void timeList()
{
    const Stopwatch watch("wxListCtrl, virtual");
    wxFrame* frame = shownFrame();
    Rows list(frame);
    wxYield();
    watch.time(
        kInsertList, kInsertRounds, [&] { list.SetItemCount(0); },
        [&] {
            list.SetItemCount(kRows);
            repaint(list);
        });
    watch.time(
        kSelectList, kSelectRounds, [] {},
        [&] {
            list.Freeze();
            for (long row = 0; row < kRows; ++row)
                list.SetItemState(row, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);
            list.Thaw();
            repaint(list);
        });
    watch.time(
        kRepaintList, kRepaintRounds, [] {}, [&] { repaint(list); });
    frame->Destroy();
}

class Peer : public wxApp
{
public:
    bool OnInit() override { return true; }
    int OnRun() override
    {
        std::printf("version\t%s\n",
                    static_cast<const char*>(wxGetLibraryVersionInfo().GetVersionString().utf8_str()));
        timeTree(treeItems(argc, argv));
        timeList();
        return 0;
    }
};

} // namespace

wxIMPLEMENT_APP(Peer);
