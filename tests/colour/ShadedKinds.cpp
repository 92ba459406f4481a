#include "ShadedKinds.h"

#include <ostream>

namespace ovo::testkit
{

namespace
{

void giveIcon(CWnd& wnd)
{
    wnd.SendMessage(STM_SETICON, reinterpret_cast<WPARAM>(::LoadIconW(nullptr, IDI_APPLICATION)));
}

void giveBitmap(CWnd& wnd)
{
    static const HBITMAP bitmap = [] {
        const std::vector<BYTE> bits(16 * 16 / 8, 0x5A);
        return ::CreateBitmap(16, 16, 1, 1, bits.data());
    }();
    wnd.SendMessage(STM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(bitmap));
}

void giveLines(CWnd& wnd)
{
    for (const wchar_t* text : {L"Ash", L"Elm"})
        wnd.SendMessage(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
}

void giveChoices(CWnd& wnd)
{
    for (const wchar_t* text : {L"Ash", L"Elm"})
        wnd.SendMessage(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
    wnd.SendMessage(CB_SETCURSEL, 1);
}

void giveRow(CWnd& wnd)
{
    wchar_t text[] = L"Ash";
    LVCOLUMN column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH;
    column.cx = 50;
    column.pszText = text;
    wnd.SendMessage(LVM_INSERTCOLUMN, 0, reinterpret_cast<LPARAM>(&column));
    LVITEM item{};
    item.mask = LVIF_TEXT;
    item.pszText = text;
    wnd.SendMessage(LVM_INSERTITEM, 0, reinterpret_cast<LPARAM>(&item));
}

void giveNode(CWnd& wnd)
{
    wchar_t text[] = L"Ash";
    TVINSERTSTRUCT node{};
    node.item.mask = TVIF_TEXT;
    node.item.pszText = text;
    wnd.SendMessage(TVM_INSERTITEM, 0, reinterpret_cast<LPARAM>(&node));
}

void giveTab(CWnd& wnd)
{
    wchar_t text[] = L"Ash";
    TCITEM tab{};
    tab.mask = TCIF_TEXT;
    tab.pszText = text;
    wnd.SendMessage(TCM_INSERTITEM, 0, reinterpret_cast<LPARAM>(&tab));
}

void giveButton(CWnd& wnd)
{
    wnd.SendMessage(TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON));
    TBBUTTON button{};
    button.idCommand = 7;
    button.fsState = TBSTATE_ENABLED;
    wnd.SendMessage(TB_ADDBUTTONS, 1, reinterpret_cast<LPARAM>(&button));
}

void goHalfWay(CWnd& wnd)
{
    wnd.SendMessage(PBM_SETPOS, 50);
}

void check(CWnd& wnd)
{
    wnd.SendMessage(BM_SETCHECK, BST_CHECKED);
}

constexpr int kAll = 90 * 60;

} // namespace

const std::vector<ControlKind>& controlKinds()
{
    constexpr DWORD kStaysWhereItIs = CCS_NOPARENTALIGN | CCS_NORESIZE | CCS_NODIVIDER;
    static const std::vector<ControlKind> kinds{
        // texts and pictures
        {"Text", WC_STATICW, SS_LEFT, 4500},
        {"CentredText", WC_STATICW, SS_CENTER, 4500},
        {"RightText", WC_STATICW, SS_RIGHT, 4500},
        {"PlainText", WC_STATICW, SS_SIMPLE, 4500},
        {"UnwrappedText", WC_STATICW, SS_LEFTNOWORDWRAP, 4500},
        {"DisabledText", WC_STATICW, SS_LEFT | WS_DISABLED, 4500},
        {"EmptyText", WC_STATICW, SS_LEFT, kAll, nullptr, L""},
        {"Icon", WC_STATICW, SS_ICON | SS_CENTERIMAGE | SS_REALSIZECONTROL, 2000, giveIcon},
        {"Bitmap", WC_STATICW, SS_BITMAP | SS_CENTERIMAGE, kAll - 16 * 16, giveBitmap},
        {"EtchedFrame", WC_STATICW, SS_ETCHEDFRAME, 4500},
        {"EtchedLine", WC_STATICW, SS_ETCHEDHORZ, 0}, // which is no higher than the line
        {"BlackFrame", WC_STATICW, SS_BLACKFRAME, 4500},
        {"OwnerDrawnText", WC_STATICW, SS_OWNERDRAW, kAll},
        // buttons
        {"PushButton", WC_BUTTONW, BS_PUSHBUTTON, 0},
        {"DefaultButton", WC_BUTTONW, BS_DEFPUSHBUTTON, 0},
        {"DisabledButton", WC_BUTTONW, BS_PUSHBUTTON | WS_DISABLED, 0},
        {"FlatButton", WC_BUTTONW, BS_PUSHBUTTON | BS_FLAT, 0},
        {"SplitButton", WC_BUTTONW, BS_SPLITBUTTON, 0},
        {"CommandLink", WC_BUTTONW, BS_COMMANDLINK, 0},
        {"CheckBox", WC_BUTTONW, BS_AUTOCHECKBOX, 4500},
        {"CheckedBox", WC_BUTTONW, BS_AUTOCHECKBOX, 4500, check},
        {"DisabledCheckBox", WC_BUTTONW, BS_AUTOCHECKBOX | WS_DISABLED, 4500},
        {"CheckBoxAtTheRight", WC_BUTTONW, BS_AUTOCHECKBOX | BS_LEFTTEXT, 4500},
        {"CheckBoxAsButton", WC_BUTTONW, BS_AUTOCHECKBOX | BS_PUSHLIKE, 0},
        {"ThreeStates", WC_BUTTONW, BS_AUTO3STATE, 4500},
        {"RadioButton", WC_BUTTONW, BS_AUTORADIOBUTTON, 4500},
        {"CheckedRadioButton", WC_BUTTONW, BS_AUTORADIOBUTTON, 4500, check},
        {"GroupBox", WC_BUTTONW, BS_GROUPBOX, 4000, nullptr, L""},
        // fields and lists
        {"Edit", WC_EDITW, WS_BORDER, 0},
        {"ReadOnlyEdit", WC_EDITW, ES_READONLY, 4500},
        {"ReadOnlyLines", WC_EDITW, ES_READONLY | ES_MULTILINE, 4500},
        {"DisabledEdit", WC_EDITW, WS_DISABLED, 4500},
        // Wine's list box paints itself white, whatever brush it is given.
        {"ListBox", WC_LISTBOXW, LBS_NOINTEGRALHEIGHT, 0},
        {"ListBoxWithLines", WC_LISTBOXW, LBS_NOINTEGRALHEIGHT, 0, giveLines},
        {"ComboBox", WC_COMBOBOXW, CBS_DROPDOWN, 0, giveChoices},
        {"ComboBoxWithoutEdit", WC_COMBOBOXW, CBS_DROPDOWNLIST, 0, giveChoices},
        {"OpenComboBox", WC_COMBOBOXW, CBS_SIMPLE, 0, giveChoices},
        {"ListView", WC_LISTVIEWW, LVS_REPORT, 0, giveRow},
        {"TreeView", WC_TREEVIEWW, TVS_HASLINES, 0, giveNode},
        {"DateField", DATETIMEPICK_CLASSW, DTS_SHORTDATEFORMAT, 0},
        {"Month", MONTHCAL_CLASSW, 0, 0},
        {"HotKey", HOTKEY_CLASSW, 0, 0},
        {"IpAddress", WC_IPADDRESSW, 0, 0},
        // the rest
        {"Slider", TRACKBAR_CLASSW, TBS_HORZ | TBS_NOTICKS, 3500},
        {"SliderWithTics", TRACKBAR_CLASSW, TBS_HORZ | TBS_AUTOTICKS, 3500},
        {"UprightSlider", TRACKBAR_CLASSW, TBS_VERT | TBS_BOTH, 3000},
        {"DisabledSlider", TRACKBAR_CLASSW, TBS_HORZ | WS_DISABLED, 3500},
        {"Progress", PROGRESS_CLASSW, 0, 0, goHalfWay},
        {"ScrollBar", WC_SCROLLBARW, SBS_HORZ, 0},
        {"Spin", UPDOWN_CLASSW, 0, 0},
        {"Header", WC_HEADERW, 0, 0},
        {"ToolBar", TOOLBARCLASSNAMEW, TBSTYLE_FLAT | TBSTYLE_TRANSPARENT | kStaysWhereItIs, 3500,
         giveButton},
        {"TabsOnTheTab", WC_TABCONTROLW, 0, 0, giveTab},
    };
    return kinds;
}

void PrintTo(const ControlKind& kind, std::ostream* out)
{
    *out << kind.name;
}

void createControl(CWnd& wnd, const ControlKind& kind, CWnd& parent, CPoint at)
{
    wnd.CreateEx(0, kind.windowClass, kind.text, WS_CHILD | WS_VISIBLE | kind.style, CRect(at, CSize(90, 60)),
                 &parent, 9);
    if (kind.fill)
        kind.fill(wnd);
}

} // namespace ovo::testkit
