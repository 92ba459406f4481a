#include "ToolBarPage.h"

#include "Direction.h"
#include "GalleryFrame.h"
#include "resource.h"

#include <ovoui/frame/Geometry.h>
#include <ovoui/toolbar/FlyoutToolbar.h>

#include <ovouires/resource.h>

#include <algorithm>
#include <iterator>
#include <string>

BEGIN_MESSAGE_MAP(ToolBarPage, GalleryPage)
    ON_COMMAND_RANGE(ID_BAR_FIRST, ID_BAR_LAST, &ToolBarPage::OnCommandChosen)
    ON_UPDATE_COMMAND_UI_RANGE(ID_BAR_FIRST, ID_BAR_LAST, &ToolBarPage::OnUpdateCommand)
    ON_MESSAGE(WM_OVO_TOOLBAR_DBLCLK, &ToolBarPage::OnBarDoubleClicked)
    // what bars do besides
    ON_BN_CLICKED(IDC_BARS_MARKS, &ToolBarPage::OnMarks)
    ON_BN_CLICKED(IDC_BARS_HOLD, &ToolBarPage::OnHold)
    ON_BN_CLICKED(IDC_BARS_NAMES, &ToolBarPage::OnNames)
    ON_BN_CLICKED(IDC_BARS_KEYBOARD, &ToolBarPage::OnKeyboard)
    ON_BN_CLICKED(IDC_BARS_SAVE, &ToolBarPage::OnSave)
    ON_BN_CLICKED(IDC_BARS_LOAD, &ToolBarPage::OnLoad)
END_MESSAGE_MAP()

namespace
{

constexpr wchar_t kChoices[] = L"ToolBarPage"; // section of the profile

constexpr int kImage = 16; // pixels at 96 dots per inch
constexpr int kEditWidth = 90;
constexpr int kComboWidth = 100;
constexpr int kTag = 14; // a number beside a part
constexpr int kTagGap = 4;
constexpr int kBesideFlyout = 120;

// Images of the library's strip
enum Image
{
    New,
    Open,
    Save,
    Cut,
    Copy,
    Paste,
    Delete,
    Undo,
    Redo,
    Find,
    Print,
    Help
};

constexpr UINT kCommands[] = {ID_BAR_OPEN,  ID_BAR_PASTE, ID_SEPARATOR, ID_BAR_UNDO, ID_BAR_REDO,
                              ID_SEPARATOR, ID_BAR_EDIT,  ID_SEPARATOR, ID_BAR_COMBO};
constexpr int kCommandImages[] = {Image::Open, Image::Paste, 0, Image::Undo, Image::Redo};
constexpr UINT kShapes[] = {ID_BAR_BOX, ID_BAR_LINE};

/// A toolbar resource and the side of its images, which the framework does not scale.
struct ShapeResource
{
    int id;
    int side; // pixels
};
constexpr ShapeResource kShapeResources[] = {{IDR_SHAPES_32, 32}, {IDR_SHAPES_24, 24}, {IDR_SHAPES_16, 16}};

enum CommandButton
{
    FileButton,
    PasteButton,
    EditPlace = 6,
    ComboPlace = 8
};

std::vector<int> strips(std::size_t count)
{
    return std::vector<int>(count, IDB_TOOLBAR_32);
}

} // namespace

// The bar

void ShownBar::open(int button, int entry)
{
    CRect rect;
    GetItemRect(button, &rect);
    ClientToScreen(&rect);
    CreatePopup(button, rect, 0);
    if (!ms_popupBar)
        return;
    CRect target;
    ms_popupBar->GetItemRect(entry, &target);
    ms_popupBar->ClientToScreen(&target);
    ms_popupBar->track(target.CenterPoint());
}

void ShownBar::showTip()
{
    constexpr WPARAM kTipTimer = 43;
    if (ms_popupBar)
        ms_popupBar->SendMessage(WM_TIMER, kTipTimer);
}

// The page

ToolBarPage::ToolBarPage()
    : GalleryPage(IDD_PAGE_TOOLBARS)
{
}

ToolBarPage::~ToolBarPage() = default;

BOOL ToolBarPage::OnInitDialog()
{
    GalleryPage::OnInitDialog();
    if (createBar(m_commands, CBRS_ALIGN_TOP, IDC_BARS_COMMANDS)) {
        fillCommands(m_commands, static_cast<int>(std::size(kCommands)));
        addControls();
        m_commands.SetControlCallback(&onControl);
        m_commands.calcLayout(LM_HORZ);
    }
    if (createBar(m_mirrored, CBRS_ALIGN_TOP, IDC_BARS_MIRRORED)) {
        m_mirrored.ModifyStyleEx(0, WS_EX_LAYOUTRTL);
        fillCommands(m_mirrored, static_cast<int>(std::size(kCommandImages))); // without the controls
        m_mirrored.calcLayout(LM_HORZ);
    }
    if (createBar(m_shapes, CBRS_ALIGN_LEFT, IDC_BARS_SHAPES)) {
        fillShapes(m_shapes);
        m_shapes.calcLayout(0);
    }
    CheckDlgButton(IDC_BARS_MARKS, BST_CHECKED);
    OnMarks();
    stretch(IDC_BARS_HINT, {.growX = 100});
    stretch(IDC_BARS_MIRRORED_LABEL, {.moveY = 100});
    stretch(IDC_BARS_MIRRORED, {.moveY = 100});
    return FALSE;
}

/// A bar in place of an empty control of the template.
bool ToolBarPage::createBar(ShownBar& bar, DWORD side, int placeholder)
{
    const DWORD style = WS_CHILD | WS_VISIBLE | side | CBRS_TOOLTIPS | CBRS_FLYBY | CBRS_GRIPPER;
    if (!bar.CreateEx(this, TBSTYLE_FLAT, style))
        return false;
    bar.SetOwner(this); // gets the commands, in place of the frame
    replace(placeholder, bar);
    return true;
}

/// The first `count` of the commands.
void ToolBarPage::fillCommands(ShownBar& bar, int count)
{
    const int size = scaled(kImage);
    bar.SetButtons(kCommands, count);
    for (int i = 0; i < static_cast<int>(std::size(kCommandImages)); ++i)
        if (kCommands[i] != ID_SEPARATOR)
            bar.SetButtonInfo(i, kCommands[i], TBBS_BUTTON, kCommandImages[i]);
    bar.UseStrips({{IDB_TOOLBAR_16, 16}, {IDB_TOOLBAR_24, 24}, {IDB_TOOLBAR_32, 32}}, kImage);
    bar.AttachBar(FileButton, size, {ID_BAR_NEW, ID_BAR_OPEN, ID_BAR_SAVE, 0, ID_BAR_PRINT}, strips(5),
                  {Image::New, Image::Open, Image::Save, 0, Image::Print}, {}, false, false);
    bar.AttachBar(PasteButton, size, {ID_BAR_CUT, ID_BAR_COPY, ID_BAR_PASTE, ID_BAR_DELETE}, strips(4),
                  {Image::Cut, Image::Copy, Image::Paste, Image::Delete}, {}, true, false);
}

void ToolBarPage::fillShapes(ShownBar& bar)
{
    // The largest images that are not too large; the last are the smallest.
    const ShapeResource& shapes =
        *std::find_if(std::begin(kShapeResources), std::end(kShapeResources) - 1,
                      [&](const ShapeResource& one) { return one.side <= scaled(kImage); });
    bar.LoadToolBar(static_cast<UINT>(shapes.id));
    bar.SetButtons(kShapes, static_cast<int>(std::size(kShapes)));
    bar.SetButtonInfo(1, ID_BAR_LINE, TBBS_BUTTON, 3);
    bar.AttachBar(0, shapes.id, shapes.side, {0, 1, 2}, false);
    bar.AttachBar(1, shapes.id, shapes.side, {3, 4, 5}, true);
}

void ToolBarPage::addControls()
{
    m_commands.SetButtonInfo(EditPlace, ID_BAR_EDIT, TBBS_SEPARATOR, scaled(kEditWidth));
    m_commands.SetButtonInfo(ComboPlace, ID_BAR_COMBO, TBBS_SEPARATOR, scaled(kComboWidth));
    m_edit.CreateEx(WS_EX_CLIENTEDGE, L"EDIT", L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP | ES_AUTOHSCROLL,
                    CRect(), &m_commands, ID_BAR_EDIT);
    m_combo.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWN,
                   CRect(0, 0, scaled(kComboWidth), scaled(160)), &m_commands, ID_BAR_COMBO);
    for (CWnd* const control : {static_cast<CWnd*>(&m_edit), static_cast<CWnd*>(&m_combo)})
        control->SetFont(GetFont());
    CRect closed; // as high as that, the edit has its text on the same line
    m_combo.GetWindowRect(&closed);
    m_edit.SetWindowPos(nullptr, 0, 0, scaled(kEditWidth), closed.Height(),
                        SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    for (const wchar_t* const zoom : {L"50 %", L"100 %", L"200 %"})
        m_combo.AddString(zoom);
    m_combo.SetCurSel(1);
}

// What bars do besides

/// For both bars of commands and the one of shapes, as the check box says.
template <class Do>
void ToolBarPage::forEachBar(UINT box, Do change)
{
    const bool on = IsDlgButtonChecked(static_cast<int>(box)) == BST_CHECKED;
    for (ShownBar* const bar : {&m_commands, &m_shapes, &m_mirrored})
        change(*bar, on);
}

void ToolBarPage::OnMarks()
{
    forEachBar(IDC_BARS_MARKS, [](ShownBar& bar, bool on) { bar.ShowFlyoutMarks(on); });
}

void ToolBarPage::OnHold()
{
    constexpr UINT kUsual = 200; // milliseconds
    forEachBar(IDC_BARS_HOLD,
               [](ShownBar& bar, bool on) { bar.SetHoldDelay(on ? CVantorToolBar::kMenuDelay : kUsual); });
}

void ToolBarPage::OnNames()
{
    forEachBar(IDC_BARS_NAMES, [](ShownBar& bar, bool on) { bar.UseAccessibleNames(on); });
}

void ToolBarPage::OnKeyboard()
{
    m_commands.FocusButtons();
}

void ToolBarPage::OnSave()
{
    m_commands.SaveChoices(kChoices);
    log(L"SaveChoices");
}

void ToolBarPage::OnLoad()
{
    m_commands.LoadChoices(kChoices);
    log(L"LoadChoices");
}

// Commands

void ToolBarPage::OnCommandChosen(UINT id)
{
    CString text;
    text.LoadString(id);
    CString name;
    AfxExtractSubString(name, text, 1);
    log(L"Command: " + std::wstring(name.GetString()));
}

/// Deleting is not possible here, so that there is a disabled entry to see.
void ToolBarPage::OnUpdateCommand(CCmdUI* ui)
{
    ui->Enable(ui->m_nID != ID_BAR_DELETE);
}

LRESULT ToolBarPage::OnBarDoubleClicked(WPARAM id, LPARAM)
{
    log(L"Double click on the button of command " + std::to_wstring(id));
    return 0;
}

LRESULT ToolBarPage::onControl(CVantorToolBar* bar, UINT code, UINT id, void*)
{
    const auto* const page = static_cast<const ToolBarPage*>(bar->GetOwner());
    page->log(std::wstring(L"Callback: ") +
              (id == ID_BAR_EDIT    ? L"edit"
               : id == ID_BAR_COMBO ? L"combo box"
                                    : L"button") +
              L", code " + std::to_wstring(code));
    return 1;
}

// Pictures

std::vector<std::wstring> ToolBarPage::poses() const
{
    return {L"flyout",   L"disabled", L"tip",   L"vertical", L"right-to-left",
            L"keyboard", L"edge",     L"parts", L"floating", L"palette"};
}

bool ToolBarPage::pose(const std::wstring& name)
{
    auto* const frame = dynamic_cast<GalleryFrame*>(AfxGetMainWnd());
    if (name == L"flyout")
        m_commands.open(FileButton, 2);
    else if (name == L"disabled")
        m_commands.open(PasteButton, 3);
    else if (name == L"tip") {
        m_commands.open(FileButton, 0);
        m_commands.showTip();
    } else if (name == L"vertical")
        m_shapes.open(0, 1);
    else if (name == L"right-to-left")
        m_mirrored.open(FileButton, 1);
    else if (name == L"keyboard") {
        m_commands.FocusButtons();
        m_commands.SendMessage(WM_KEYDOWN, VK_DOWN);
        m_commands.SendMessage(WM_KEYDOWN, VK_RIGHT);
    } else if (name == L"edge")
        showAtScreenEdge();
    else if (name == L"parts")
        nameParts();
    else if (name == L"floating" && frame)
        frame->floatBar(3);
    else if (name == L"palette" && frame)
        frame->floatPalette();
    else
        return false;
    return true;
}

/// The gallery at the edge of the work area where lines of text end, and the bar at its edge, where a flyout
/// has no room.
void ToolBarPage::showAtScreenEdge()
{
    CWnd& frame = *GetTopLevelParent();
    CRect place;
    frame.GetWindowRect(&place);
    const CRect area(GetWorkArea(place));
    const bool mirrored = (frame.GetExStyle() & WS_EX_LAYOUTRTL) != 0;
    frame.SetWindowPos(nullptr, mirrored ? area.left : area.right - place.Width(), place.top, 0, 0,
                       SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    CRect room;
    GetClientRect(&room);
    const CRect bar = placeOf(IDC_BARS_COMMANDS);
    moveChild(m_commands, CRect(CPoint(room.right - scaled(70), bar.top), bar.Size()));
    UpdateWindow();
    m_commands.open(PasteButton, 1);
}

/// Numbers beside the parts of the first bar, which moves down to make room for them.
void ToolBarPage::nameParts()
{
    GetDlgItem(IDC_BARS_HINT)->ShowWindow(SW_HIDE); // what lies where the flyout opens
    m_shapes.ShowWindow(SW_HIDE);
    CRect bar = placeOf(IDC_BARS_COMMANDS);
    bar.OffsetRect(0, scaled(kTag + kTagGap));
    moveChild(m_commands, bar);
    m_commands.open(FileButton, 2);
    const auto above = [&](int x) { return CPoint(x, bar.top - scaled(kTag)); };
    const auto overButton = [&](int index) {
        CRect rect;
        m_commands.GetItemRect(index, &rect);
        m_commands.ClientToScreen(&rect);
        ScreenToClient(&rect);
        return above(rect.left + scaled(kTagGap));
    };
    const CPoint first = overButton(FileButton);
    const int overGripper =
        bar.left + scaled(kTagGap - kTag / 2); // which is narrower than the number's place
    addTag(1, above(std::min<int>(overGripper, first.x - scaled(kTag))));
    addTag(2, first);
    addTag(3, overButton(EditPlace));
    addTag(4, overButton(ComboPlace));
    addTag(5, CPoint(bar.left + scaled(kBesideFlyout), bar.bottom + scaled(kTagGap)));
}

void ToolBarPage::addTag(int number, CPoint place)
{
    auto tag = std::make_unique<CStatic>();
    const CSize size(scaled(kTag), scaled(kTag));
    tag->Create(std::to_wstring(number).c_str(), WS_CHILD | WS_VISIBLE | SS_CENTER | SS_CENTERIMAGE,
                CRect(place, size), this);
    tag->SetFont(GetFont());
    tag->SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0,
                      SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOCOPYBITS); // as in moveChild
    m_tags.push_back(std::move(tag));
}
