#include "Lives.h"

#include "LeafTree.h"

#include <support/NextDialog.h>
#include <testkit/GuiThread.h>

#include <ovoui/ovoui.h>
#include <ovouires/resource.h>

#include <gallery/resource.h>

#include <afxdlgs.h>
#include <shlobj.h>

#include <ostream>

namespace
{

constexpr DWORD kChild = WS_CHILD | WS_VISIBLE;
constexpr int kColumn = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT | LVCF_SUBITEM;

void paint(CWnd& wnd)
{
    wnd.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
}

void clickAndType(CWnd& wnd, CPoint point = {5, 5})
{
    const LPARAM at = MAKELPARAM(point.x, point.y);
    wnd.SendMessage(WM_MOUSEMOVE, 0, at);
    wnd.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, at);
    wnd.SendMessage(WM_LBUTTONUP, 0, at);
    wnd.SendMessage(WM_KEYDOWN, VK_DOWN, 1);
    wnd.SendMessage(WM_KEYUP, VK_DOWN, 0xC0000001);
}

void liveTree(CWnd& parent)
{
    LeafTree tree;
    tree.Create(kChild | TVS_HASBUTTONS, CRect(0, 0, 200, 100), &parent, 1);
    const HTREEITEM first = (new Leaf)->insert(tree, TVI_ROOT, TVI_LAST);
    (new Leaf)->insert(tree, TVI_ROOT, TVI_LAST);
    tree.Expand(first, TVE_EXPAND);
    tree.SendMessage(WM_KEYDOWN, VK_DOWN, 1);
    tree.selectPath(L"/leaf");
    paint(tree);
}

void liveList(CWnd& parent)
{
    COVOListCtrlEx list;
    COVOListSorter sorter;
    COVOListFinder finder;
    COVOListCopier copier;
    COVOListCellTips tips;
    list.Create(kChild, CRect(0, 0, 200, 100), &parent, 1);
    list.UseRowColours(TRUE);
    list.AddColumn(L"Name", 0, -1, true, kColumn, LVCFMT_LEFT);
    sorter.Attach(list);
    finder.Attach(list);
    copier.Attach(list, true);
    tips.Attach(list);
    for (int row = 0; row < 3; ++row)
        list.AddItem(row, 0, L"a row of the list", 0xFF0000FF, -1);
    sorter.Sort(0, true);
    finder.Find(L"row");
    list.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(20, 30));
    paint(list);
}

void liveCombo(CWnd& parent)
{
    COVOComboBox combo;
    combo.Create(kChild | CBS_DROPDOWN | WS_VSCROLL, CRect(0, 0, 150, 200), &parent, 1);
    for (const wchar_t* item : {L"Anise", L"Basil"})
        combo.AddString(item);
    combo.SetWindowText(L"Basil");
    combo.SelectListboxFromText();
    combo.ShowDropDown(TRUE);
    combo.ShowDropDown(FALSE);
    paint(combo);
}

/// Opens the flyout of the second button, and closes it without a choice.
void dragFromFirstToSecondButton(CVantorToolBar& bar)
{
    const auto middleOf = [&](int button) {
        CRect rect;
        bar.GetItemRect(button, &rect);
        return MAKELPARAM(rect.CenterPoint().x, rect.CenterPoint().y);
    };
    bar.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, middleOf(0));
    bar.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, middleOf(1));
    bar.SendMessage(WM_LBUTTONUP, 0, middleOf(1));
}

void liveToolBar(CWnd& parent)
{
    CVantorToolBar bar;
    bar.CreateEx(&parent, TBSTYLE_FLAT, kChild | CBRS_TOP | CBRS_TOOLTIPS);
    TBBUTTON button{};
    button.iBitmap = I_IMAGENONE;
    button.idCommand = 100;
    button.fsState = TBSTATE_ENABLED;
    for (int i = 0; i < 3; ++i, ++button.idCommand)
        bar.InsertButton(i, &button);
    bar.AttachBar(0, 16, {100, 101}, {}, {}, {Quark(L"one"), Quark(L"two")}, false, false);
    bar.AttachBar(1, 16, {101, 102}, {}, {}, {Quark(L"two"), Quark(L"three")}, false, false);
    bar.ShowFlyoutMarks(true);
    bar.GetToolBarCtrl().AutoSize();
    paint(bar);
    dragFromFirstToSecondButton(bar);
    bar.DestroyWindow();
}

template <class Slider>
void turn(Slider& slider, CWnd& parent)
{
    slider.Create(kChild, CRect(0, 0, 120, 30), &parent, 1);
    slider.UseKeyboard(true);
    slider.SetPos(30);
    clickAndType(slider);
    paint(slider);
}

void liveSliderButton(CWnd& parent)
{
    CEdit edit;
    edit.Create(kChild | WS_BORDER, CRect(0, 0, 80, 20), &parent, 2);
    edit.SetWindowText(L"50");
    CUnitNumbers numbers{L""};
    CSliderButton button{numbers};
    button.Create(nullptr, kChild | SS_NOTIFY, CRect(90, 0, 110, 20), &parent, 1);
    button.SetBuddy(edit);
    clickAndType(button);
    button.cancelPopup();
    paint(button);
}

void liveColours(CWnd& parent)
{
    CColourButton button;
    button.Create(L"Pen", kChild, CRect(0, 0, 80, 24), &parent, 1);
    button.SetColour(Colour::rgb(1, 0, 0));
    button.DropDown();
    button.CloseUp();
    paint(button);
    CColourGrid grid;
    grid.Create(kChild, CRect(0, 30, 80, 60), &parent, 2);
    grid.SetColours({RGB(1, 2, 3), RGB(200, 100, 50)}, 2);
    clickAndType(grid);
    paint(grid);
    CColourDropper dropper;
    dropper.Create(L"From the screen", kChild, CRect(0, 70, 80, 90), &parent, 3);
    paint(dropper);
}

void liveTabs(CWnd& parent)
{
    CShadedTabCtrl tabs;
    tabs.Create(kChild, CRect(0, 0, 200, 100), &parent, 1);
    tabs.InsertItem(0, L"One");
    tabs.InsertItem(1, L"Two");
    CStatic label;
    label.Create(L"on the page", kChild, CRect(10, 40, 100, 60), &tabs, 2);
    HBRUSH brush = nullptr;
    CPoint origin;
    CShadedTabCtrl::GetBackgroundBrush(&label, brush, origin);
    paint(tabs);
}

void liveImages(CWnd& parent)
{
    CAlphaImageList images;
    images.Create(24, 24, 4);
    images.AddBitmap(IDB_TOOLBAR_16, false, -1, CSize(16, 16), CSize(24, 24), nullptr, nullptr);
    CAlphaImageButton button;
    button.Create(L"", kChild | BS_BITMAP, CRect(0, 0, 40, 40), &parent, 1);
    button.setSize(16);
    button.loadImage(IDB_ADD_16);
    paint(button);
    button.DestroyWindow();
}

/// They go, the window that they follow stays.
void liveStrips(CWnd& parent)
{
    CImageStrips strips({{IDB_TOOLBAR_16, 16}}, 16);
    strips.Load(parent);
    strips.UseDisabledImages(true);
    strips.Follow(parent, nullptr);
    parent.SendMessage(WM_SYSCOLORCHANGE);
}

void livePicker(CWnd& parent)
{
    ColPickerDlg dialog(*AfxGetApp(), ColPickerModeHLS, Colour::rgba(0.2, 0.4, 0.6, 0.5), nullptr, &parent);
    dialog.useKeyboard(true);
    dialog.createColPickerDlgBase();
    paint(dialog);
    clickAndType(dialog, {60, 60});
    dialog.DestroyWindow();
}

INT_PTR CALLBACK doNothing(HWND, UINT, WPARAM, LPARAM)
{
    return FALSE;
}

/// A template as the system alone shows it, and `use` of it.
template <int id>
void usePlainDialog(CWnd& parent, const std::function<void(HWND)>& use)
{
    const LPCWSTR name = MAKEINTRESOURCEW(id);
    const HWND dialog =
        ::CreateDialogParamW(AfxFindResourceHandle(name, RT_DIALOG), name, parent, &doNothing, 0);
    if (use)
        use(dialog);
    ::ShowWindow(dialog, SW_SHOW);
    ::UpdateWindow(dialog);
    ::DestroyWindow(dialog);
}

template <int id>
void livePlainDialog(CWnd& parent)
{
    usePlainDialog<id>(parent, nullptr);
}

/// Wine keeps the tab stops of an edit.
void livePlainSystemInfo(CWnd& parent)
{
    usePlainDialog<IDD_SYSTEM_INFO>(parent, [](HWND dialog) {
        const int stop = 92;
        ::SendDlgItemMessageW(dialog, IDC_SYSTEM_INFO_TEXT, EM_SETTABSTOPS, 1,
                              reinterpret_cast<LPARAM>(&stop));
    });
}

void liveProgress(CWnd& parent)
{
    COVOProgressBox box(parent, L"Copying the plans");
    box.Advance(1, 2);
    box.SetText(L"Nearly done");
}

void liveMessageBox(CWnd& parent)
{
    COVOMessageDialog box(parent, L"The text of a box.", L"Caption", MB_YESNO | MB_ICONQUESTION);
    box.SetDetails(L"Details");
    const NextDialogAnswered answered(IDYES);
    box.DoModal();
}

template <class Dialog>
void liveDialog(CWnd& parent)
{
    Dialog dialog(&parent);
    const NextDialogAnswered answered(IDCANCEL);
    dialog.DoModal();
}

void livePalette(CWnd& parent)
{
    ColPickerPaletteDlg dialog(*AfxGetApp(), ColPickerModeHLS, Colour::rgb(0.2, 0.4, 0.6), nullptr, &parent);
    const NextDialogAnswered answered(IDCANCEL);
    dialog.DoModal();
}

template <bool newStyle>
void liveFileDialog(CWnd& parent)
{
    COVOFileDialog dialog(TRUE, L".txt", nullptr, OFN_NOCHANGEDIR, L"Text|*.txt||", &parent, newStyle);
    const NextDialogAnswered answered(IDCANCEL);
    dialog.DoModal();
}

/// That of the system, as it is used without the library.
template <bool newStyle>
void livePlainFileDialog(CWnd& parent)
{
    CFileDialog dialog(TRUE, L".txt", nullptr, OFN_NOCHANGEDIR, L"Text|*.txt||", &parent, 0, newStyle);
    const NextDialogAnswered answered(IDCANCEL);
    dialog.DoModal();
}

void liveFolderDialog(CWnd& parent)
{
    wchar_t folder[MAX_PATH] = L"C:\\windows";
    const NextDialogAnswered answered(IDCANCEL);
    BrowseForDir(&parent, L"Where to?", folder);
}

void livePlainFolderDialog(CWnd& parent)
{
    const NextDialogAnswered answered(IDCANCEL);
    BROWSEINFOW browse{};
    browse.hwndOwner = parent;
    browse.lpszTitle = L"Where to?";
    browse.ulFlags = BIF_RETURNONLYFSDIRS | BIF_NEWDIALOGSTYLE;
    ::SHBrowseForFolderW(&browse);
}

void liveToolWindow(CWnd&)
{
    auto* const frame = new CFrameWnd; // deletes itself with its window
    frame->Create(nullptr, L"Host", WS_OVERLAPPEDWINDOW, CRect(50, 50, 450, 350));
    {
        CVantorToolWnd bar;
        bar.Create(frame, IDD_FRAME_PALETTE, WS_CHILD | WS_VISIBLE | CBRS_LEFT | CBRS_GRIPPER,
                   IDS_FRAME_PALETTE, AFX_IDW_CONTROLBAR_FIRST + 0x30);
        frame->ShowWindow(SW_SHOWNOACTIVATE);
        if (bar.m_hWnd)
            paint(bar);
    }
    if (frame->m_hWnd)
        frame->DestroyWindow();
    else
        delete frame;
}

} // namespace

std::string liveOnce(const Life& life, CWnd& parent)
{
    try {
        life.live(parent);
        ovo::testkit::GuiThread::settle();
    } catch (const std::exception&) {
    } catch (CException* error) {
        error->Delete();
    } catch (...) {
        return "an exception of no known kind";
    }
    return "";
}

void PrintTo(const Life& life, std::ostream* out)
{
    *out << life.name;
}

const std::vector<Life>& lives()
{
    static const std::vector<Life> all{
        Life{"Tree", liveTree},
        Life{"List", liveList},
        Life{"Combo", liveCombo},
        Life{"ToolBar", liveToolBar},
        Life{"RoundSlider",
             [](CWnd& parent) {
                 CRoundSlider slider(false);
                 turn(slider, parent);
             }},
        Life{"WheelSlider",
             [](CWnd& parent) {
                 CWheelSlider slider(false);
                 turn(slider, parent);
             }},
        Life{"DialSlider",
             [](CWnd& parent) {
                 CDialSlider slider;
                 turn(slider, parent);
             }},
        Life{"SliderButton", liveSliderButton},
        Life{"Colours", liveColours},
        Life{"ShadedTabs", liveTabs},
        Life{"Images", liveImages},
        Life{"ImageStrips", liveStrips},
        Life{"Picker", livePicker, livePlainDialog<IDD_COLOUR_PICKER>},
        Life{"Palette", livePalette, livePlainDialog<IDD_COLOUR_PALETTE>},
        Life{"ToolWindow", liveToolWindow, livePlainDialog<IDD_FRAME_PALETTE>},
        Life{"ModuleList", liveDialog<CModuleListDlg>, livePlainDialog<IDD_MODULE_LIST>},
        Life{"SystemInfo", liveDialog<CSystemInfoDlg>, livePlainSystemInfo},
        Life{"ProgressBox", liveProgress},
        Life{"MessageBox", liveMessageBox}};
    return all;
}

const std::vector<Life>& livesOfFileDialogs()
{
    static const std::vector<Life> all{
        Life{"FileDialog", liveFileDialog<true>, livePlainFileDialog<true>},
        Life{"ClassicFileDialog", liveFileDialog<false>, livePlainFileDialog<false>},
        Life{"FolderDialog", liveFolderDialog, livePlainFolderDialog}};
    return all;
}
