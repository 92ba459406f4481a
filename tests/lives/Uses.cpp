#include "Uses.h"

#include "LeafTree.h"

#include <support/NextDialog.h>

#include <testkit/GuiThread.h>
#include <testkit/TemporaryFiles.h>

#include <ovosvg/ovosvg.h>

#include <ovoui/ovoui.h>
#include <ovouires/resource.h>

#include <gallery/resource.h>

#include <oleacc.h>

#include <algorithm>

using namespace ovo::testkit;

namespace
{

constexpr DWORD kChild = WS_CHILD | WS_VISIBLE;
constexpr int kColumn = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT | LVCF_SUBITEM;

void paint(CWnd& wnd)
{
    wnd.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
}

LPARAM at(int x, int y)
{
    return MAKELPARAM(x, y);
}

// Accessibility

void readText(IAccessible& object, HRESULT (STDMETHODCALLTYPE IAccessible::*get)(VARIANT, BSTR*),
              VARIANT part)
{
    BSTR text = nullptr;
    if (SUCCEEDED((object.*get)(part, &text)))
        ::SysFreeString(text);
}

/// Reads a control as a screen reader does.
void read(CWnd& wnd)
{
    IAccessible* object = nullptr;
    if (FAILED(::AccessibleObjectFromWindow(wnd, static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible,
                                            reinterpret_cast<void**>(&object))))
        return;
    long children = 0;
    object->get_accChildCount(&children);
    for (long i = 0; i <= std::min(children, 2L); ++i) {
        VARIANT part{};
        part.vt = VT_I4;
        part.lVal = i;
        readText(*object, &IAccessible::get_accName, part);
        readText(*object, &IAccessible::get_accValue, part);
        readText(*object, &IAccessible::get_accDefaultAction, part);
        VARIANT state{};
        object->get_accState(part, &state);
        object->get_accRole(part, &state);
        long x = 0;
        long y = 0;
        long width = 0;
        long height = 0;
        object->accLocation(&x, &y, &width, &height, part);
    }
    object->Release();
}

void beRead(CWnd& parent)
{
    CRoundSlider slider(false);
    slider.Create(kChild, CRect(0, 0, 40, 40), &parent, 1);
    read(slider);
    CColourGrid grid;
    grid.Create(kChild, CRect(50, 0, 90, 40), &parent, 2);
    grid.SetColours({RGB(1, 2, 3), RGB(200, 100, 50)}, 2);
    read(grid);
    CColourButton button;
    button.Create(L"Pen", kChild, CRect(100, 0, 180, 24), &parent, 3);
    read(button);
    CVantorToolBar bar;
    bar.CreateEx(&parent, TBSTYLE_FLAT, kChild | CBRS_TOP);
    TBBUTTON command{};
    command.iBitmap = I_IMAGENONE;
    command.idCommand = 100;
    command.fsState = TBSTATE_ENABLED;
    bar.InsertButton(0, &command);
    bar.UseAccessibleNames(true);
    read(bar);
}

// Lists

void copyAndSort(CWnd& parent)
{
    CImageList images;
    images.Create(16, 16, ILC_COLOR32 | ILC_MASK, 1, 1);
    images.Add(::LoadIconW(nullptr, IDI_APPLICATION));
    COVOListCtrlEx list;
    COVOListSorter sorter;
    list.Create(kChild, CRect(0, 0, 200, 100), &parent, 1);
    list.SetImageList(&images, LVSIL_SMALL);
    list.AddColumn(L"Day", 0, -1, true, kColumn, LVCFMT_LEFT);
    for (const wchar_t* day : {L"2/1/2020", L"1/2/2020", L"none"})
        list.AddItem(list.GetItemCount(), 0, day, 0, 0);
    sorter.Attach(list);
    sorter.SetKind(0, COVOListSorter::Kind::Date);
    sorter.Sort(0, true);
    list.SetItemState(0, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    list.SetFocus();
    paint(list);
    copySelectedRows(list, true);
}

void showImages(CWnd& parent)
{
    CImageList images;
    images.Create(16, 16, ILC_COLOR32 | ILC_MASK, 1, 1);
    images.Add(::LoadIconW(nullptr, IDI_APPLICATION));
    COVOComboBox combo;
    combo.Create(kChild | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS, CRect(0, 0, 150, 200),
                 &parent, 1);
    combo.AddString(L"Anise");
    combo.SetImageList(&images);
    combo.SetItemImage(0, 0);
    combo.SetCurSel(0);
    combo.SetFocus();
    paint(combo);
    CVantorToolBar bar;
    bar.CreateEx(&parent, TBSTYLE_FLAT, kChild | CBRS_TOP);
    bar.UseStrips({{IDB_FRAME_BAR_16, 16}}, 16);
    paint(bar);
}

// The tree

void askTree(CWnd& parent)
{
    LeafTree tree;
    tree.Create(kChild | TVS_HASBUTTONS | TVS_EDITLABELS, CRect(0, 0, 200, 150), &parent, 1);
    tree.setExtras(MultiTreeCtrl::RubberBand | MultiTreeCtrl::CheckBoxes | MultiTreeCtrl::FindAnywhere);
    for (int i = 0; i < 3; ++i)
        (new Leaf)->insert(tree, TVI_ROOT, TVI_LAST);
    tree.SelectItem(tree.GetRootItem());
    tree.SetFocus();
    paint(tree);
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, ID_TREE_DELETE, L"Delete");
    menu.AppendMenu(MF_STRING, ID_EDIT_PASTE, L"Paste");
    tree.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu), 0);
    tree.SendMessage(WM_COMMAND, ID_EDIT_PASTE);
    MSG key{};
    key.hwnd = tree;
    key.message = WM_KEYDOWN;
    key.wParam = VK_F5;
    tree.PreTranslateMessage(&key);
}

/// Presses, moves and lets go, as the queue has it.
void drag(CWnd& wnd, CPoint from, CPoint to)
{
    wnd.PostMessage(WM_LBUTTONDOWN, MK_LBUTTON, at(from.x, from.y));
    for (const CPoint& point : {from + CSize(1, 1), from + CSize(20, 5), to})
        wnd.PostMessage(WM_MOUSEMOVE, MK_LBUTTON, at(point.x, point.y));
    wnd.PostMessage(WM_LBUTTONUP, 0, at(to.x, to.y));
    GuiThread::settle();
}

/// Drags a node, and draws a band from the empty space.
void dragInTree(CWnd& parent)
{
    LeafTree tree;
    tree.Create(kChild | TVS_HASBUTTONS, CRect(0, 0, 200, 150), &parent, 1);
    tree.setExtras(MultiTreeCtrl::RubberBand);
    for (int i = 0; i < 3; ++i)
        (new Leaf)->insert(tree, TVI_ROOT, TVI_LAST);
    GuiThread::settle();
    drag(tree, {40, 8}, {60, 40});
    drag(tree, {150, 140}, {30, 10});
    tree.SendMessage(WM_CANCELMODE);
}

// Colours

void pickFromScreen(CWnd& parent)
{
    CColourDropper dropper;
    dropper.Create(L"From the screen", kChild, CRect(0, 0, 80, 24), &parent, 3);
    dropper.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, at(5, 5));
    dropper.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, at(60, 60));
    paint(dropper);
    dropper.SendMessage(WM_LBUTTONUP, 0, at(60, 60));
    dropper.SetFocus();
    for (const WPARAM key : {VK_SPACE, VK_DOWN, VK_ESCAPE})
        dropper.SendMessage(WM_KEYDOWN, key, 1);
}

void dropColours(CWnd& parent)
{
    CColourButton button;
    button.Create(L"Pen", kChild, CRect(0, 0, 80, 24), &parent, 1);
    button.SetFocus();
    for (const WPARAM key : {VK_DOWN, VK_RIGHT, VK_RETURN})
        button.SendMessage(WM_KEYDOWN, key, 1);
    paint(button);
}

// Drawings

void makeDrawings(CWnd&)
{
    const TemporaryFiles files({L"drawing.svg"}); // an empty file, which is none
    const auto sun = ovosvg::SvgDrawing::fromResource(IDR_DRAWING_SUN);
    ::DeleteObject(sun.draw(16, 16));
    ::DeleteObject(ovosvg::svgStrip({sun, sun}, 16));
    ovosvg::SvgDrawing::fromFile(files.path(L"drawing.svg"));
}

// Folders and the machine

void askForFolder(CWnd& parent)
{
    wchar_t folder[MAX_PATH] = L"C:\\windows";
    const NextDialogAnswered answered(IDOK);
    BrowseForDir(&parent, L"Where to?", folder);
}

void tellOfMachine(CWnd&)
{
    machineAsText(machineInfo());
}

} // namespace

const std::vector<Life>& uses()
{
    static const std::vector<Life> all{Life{"Reader", beRead},         Life{"CopyAndSort", copyAndSort},
                                       Life{"Images", showImages},     Life{"Tree", askTree},
                                       Life{"DragInTree", dragInTree}, Life{"Screen", pickFromScreen},
                                       Life{"Palette", dropColours},   Life{"Machine", tellOfMachine},
                                       Life{"Drawings", makeDrawings}, Life{"Folder", askForFolder}};
    return all;
}
