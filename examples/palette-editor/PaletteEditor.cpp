// A palette editor: a list of named colours, a colour picker for each, and a slider that turns the hues of
// many. What the user does in one gesture, such as a drag, is undone at once.
#include "Palette.h"
#include "resource.h"

#include <ovouires/resource.h>

class PaletteEditor : public ColPickerDlgBase
{
public:
    PaletteEditor(CWinApp& app, Palette palette)
        : ColPickerDlgBase(IDD_PALETTE_EDITOR, app, Colour::rgb(0, 0, 0), nullptr, nullptr)
        , m_palette(std::move(palette))
    {
        m_mode = ColPickerModeHLS;
        m_keysEnabled = true;
        m_onlyTypedNumbers = true; // a colour that is only looked at keeps all its digits
    }

private:
    BOOL OnInitDialog() override
    {
        ColPickerDlgBase::OnInitDialog();
        attachList();
        const UINT images[] = {IDB_ADD_16, IDB_REMOVE_16, IDB_UP_16, IDB_DOWN_16};
        for (int i = 0; i < 4; ++i) {
            m_buttons[i].SubclassDlgItem(IDC_ADD + i, this);
            m_buttons[i].setSize(16); // as they are drawn
            m_buttons[i].loadImage(images[i]);
        }
        m_turn.SetTicks(30);
        m_turn.UseKeyboard(true);
        createInPlace(m_turn, *this, IDC_TURN);
        m_grid.createInPlace(*this, IDC_GRID);
        showPalette(0);
        return TRUE;
    }

    void attachList()
    {
        m_list.SubclassDlgItem(IDC_LIST, this);
        m_list.palette = &m_palette;
        m_list.UseRowColours(TRUE);
        addColumns(m_list, {{.heading = L"Name", .sample = L"A short name"},
                            {.heading = L"Colour", .sample = L"#FFBF00 ##", .showsColour = true},
                            {.heading = L"On white", .sample = L"99.9", .format = LVCFMT_RIGHT}});
        m_copier.Attach(m_list, true);
    }

    /// Shows all of it, with one row selected.
    void showPalette(int row)
    {
        m_list.DeleteAllItems();
        for (int i = 0; i < count(); ++i)
            m_list.AddItem(i, 0, m_palette[i].name, 0, -1);
        showColours();
        const int last = std::min(row, count() - 1);
        m_list.SetItemState(last, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
        m_list.EnsureVisible(last, FALSE);
    }

    /// The colours of all rows, which stay as they are otherwise, and that of the focused one in the picker.
    void showColours()
    {
        std::vector<COLORREF> codes;
        for (int i = 0; i < count(); ++i) {
            const Colour& colour = m_palette[i].colour;
            const double contrast = ovoui::colour::contrast(colour, Colour::rgb(1, 1, 1));
            m_list.AddItem(i, 1, ovoui::colour::textOfColour(colour), 0, -1);
            m_list.AddItem(i, 2, stringPrintf(L"%.1f", contrast), 0, -1);
            codes.push_back(colour.colorref());
        }
        m_list.Invalidate(FALSE);
        m_grid.SetColours(codes, 10);
        showCurrent();
        GetDlgItem(IDC_UNDO)->EnableWindow(m_history.canUndo());
        GetDlgItem(IDC_REDO)->EnableWindow(m_history.canRedo());
    }

    /// The picker shows the colour of the focused row.
    void showCurrent()
    {
        if (current() >= 0)
            SetColour(this, m_palette[current()].colour, true);
        m_grid.SetCurrent(current());
    }

    int count() const { return static_cast<int>(m_palette.size()); }
    int current() const { return m_list.GetNextItem(-1, LVNI_FOCUSED); }

    /// The end of a gesture, which is a step to be undone if it has changed anything.
    void keep(int row)
    {
        if (m_palette != m_history.present())
            m_history.keep(m_palette);
        showPalette(row);
    }

    /// The picker has another colour; `final` at the end of a drag.
    void UpdateExternalColours(bool final) override
    {
        if (current() < 0)
            return;
        m_palette[current()].colour = GetColour();
        if (final)
            m_history.keep(m_palette);
        showColours();
    }

    afx_msg void OnHScroll(UINT code, UINT position, CScrollBar* bar)
    {
        if (!bar || bar->m_hWnd != m_turn.m_hWnd)
            return ColPickerDlgBase::OnHScroll(code, position, bar);
        m_palette = m_history.present();
        const bool all = m_list.GetSelectedCount() < 2;
        for (int i = 0; i < count(); ++i)
            if (all || m_list.GetItemState(i, LVIS_SELECTED)) {
                Colour& colour = m_palette[i].colour;
                const double hue = colour.h_hls().degrees() + static_cast<short>(position);
                colour = Colour::hls(Angle::degrees(hue), colour.l_hls(), colour.s_hls());
            }
        if (code == SB_THUMBPOSITION) {
            m_history.keep(m_palette);
            m_turn.SetPos(0); // for the next turn
        }
        showColours();
    }

    afx_msg void OnAdd()
    {
        const int row = current() + 1;
        m_palette.insert(m_palette.begin() + row, {L"New", GetColour()});
        keep(row);
        m_list.SetFocus();
        m_list.EditLabel(row);
    }

    afx_msg void OnRemove()
    {
        for (int i = count(); i-- > 0;)
            if (m_list.GetItemState(i, LVIS_SELECTED))
                m_palette.erase(m_palette.begin() + i);
        keep(current());
    }

    afx_msg void OnMove(UINT command)
    {
        const int from = current(), to = command == IDC_UP ? from - 1 : from + 1;
        if (from < 0 || to < 0 || to >= count())
            return;
        std::swap(m_palette[from], m_palette[to]);
        keep(to);
    }

    afx_msg void OnRenamed(NMHDR* header, LRESULT*)
    {
        const LVITEMW& item = reinterpret_cast<NMLVDISPINFOW*>(header)->item;
        if (!item.pszText)
            return; // given up
        m_palette[item.iItem].name = item.pszText;
        keep(item.iItem);
    }

    afx_msg void OnRowChanged(NMHDR* header, LRESULT*)
    {
        const auto& change = *reinterpret_cast<NMLISTVIEW*>(header);
        if (change.uNewState & ~change.uOldState & LVIS_FOCUSED)
            showCurrent();
    }

    afx_msg void OnGrid() { showPalette(m_grid.Current()); }

    afx_msg void OnHistory(UINT command)
    {
        command == IDC_UNDO ? m_history.undo() : m_history.redo();
        m_palette = m_history.present();
        showPalette(std::max(current(), 0));
        if (const CWnd* const focus = GetFocus(); !focus || !focus->IsWindowEnabled())
            m_list.SetFocus(); // a button with nothing left to do takes no keys
    }

    afx_msg void OnOpen()
    {
        if (const auto path = mayGo() ? pickFile(m_question) : std::nullopt) {
            m_palette = m_saved = readPalette(*path);
            keep(0);
        }
    }

    afx_msg void OnSave()
    {
        if (const auto path = pickFileToSave(m_question)) {
            writePalette(*path, m_palette);
            m_saved = m_palette;
        }
    }

    /// Whether the palette is saved, or the user, whom nothing else asks now, gives up what has changed.
    bool mayGo()
    {
        m_list.SetFocus(); // ends typing
        if (m_palette == m_saved)
            return true;
        const UINT type = MB_YESNOCANCEL | MB_ICONQUESTION;
        const int answer = OVOMessageBox(m_hWnd, L"Save the changes?", nullptr, type, L"SaveChanges", 0);
        if (answer == IDYES)
            OnSave();
        return answer == IDNO || m_palette == m_saved;
    }

    void OnCancel() override
    {
        if (mayGo())
            ColPickerDlgBase::OnCancel();
    }

    afx_msg BOOL OnQueryEndSession() { return IsWindowEnabled() ? mayGo() : m_palette == m_saved; }

    /// Ctrl+Z and Ctrl+Y, unless something is being typed; Delete in the list.
    BOOL PreTranslateMessage(MSG* message) override
    {
        const bool isTyping = ::SendMessageW(::GetFocus(), EM_CANUNDO, 0, 0);
        const UINT command = message->message == WM_KEYDOWN && !isTyping ? commandOf(message->wParam) : 0;
        if (command)
            SendMessage(WM_COMMAND, command);
        return command || ColPickerDlgBase::PreTranslateMessage(message);
    }

    UINT commandOf(WPARAM key)
    {
        if (::GetKeyState(VK_CONTROL) < 0 && ::GetKeyState(VK_MENU) >= 0) // with Alt it is AltGr
            return key == 'Z' ? IDC_UNDO : key == 'Y' ? IDC_REDO : 0;
        return key == VK_DELETE && ::GetFocus() == m_list.m_hWnd ? IDC_REMOVE : 0;
    }

    /// Enter takes over what is typed.
    void OnOK() override { DoKillfocusColpickerValues(this); }

    COLORREF& customCols(int) override { return m_noSwatch; }

    /// A list whose colours come from the palette.
    struct ColourList : COVOListCtrlEx
    {
        DWORD rowColour(int row) override { return 0xFF000000 | (*palette)[row].colour.colorref(); }
        const Palette* palette = nullptr;
    };

    const FileQuestion m_question{.parent = this, .types = {{L"Palettes", {L"*.txt"}}}, .extension = L".txt"};
    Palette m_palette;           // as it is in the middle of a gesture
    Palette m_saved = m_palette; // as in its file
    UndoHistory<Palette> m_history{m_palette};
    ColourList m_list;
    COVOListCopier m_copier;
    CAlphaImageButton m_buttons[4];
    CDialSlider m_turn;
    CColourGrid m_grid;
    COLORREF m_noSwatch = 0;
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(PaletteEditor, ColPickerDlgBase)
    ON_WM_HSCROLL()
    ON_WM_QUERYENDSESSION()
    ON_BN_CLICKED(IDC_ADD, &PaletteEditor::OnAdd)
    ON_BN_CLICKED(IDC_REMOVE, &PaletteEditor::OnRemove)
    ON_COMMAND_RANGE(IDC_UP, IDC_DOWN, &PaletteEditor::OnMove)
    ON_COMMAND_RANGE(IDC_UNDO, IDC_REDO, &PaletteEditor::OnHistory)
    ON_BN_CLICKED(IDC_OPEN, &PaletteEditor::OnOpen)
    ON_BN_CLICKED(IDC_SAVE, &PaletteEditor::OnSave)
    ON_NOTIFY(LVN_ENDLABELEDITW, IDC_LIST, &PaletteEditor::OnRenamed)
    ON_NOTIFY(LVN_ITEMCHANGED, IDC_LIST, &PaletteEditor::OnRowChanged)
    ON_CONTROL(CColourGrid::kChosen, IDC_GRID, &PaletteEditor::OnGrid)
END_MESSAGE_MAP()

class PaletteApp : public CWinApp
{
    BOOL InitInstance() override
    try {
        SetRegistryKey(L"ovoui examples");
        AfxOleInit(); // COM, for accessibility
        const CGdiPlusSession gdiPlus;
        PaletteEditor(*this, __argc > 1 ? readPalette(__wargv[1]) : firstPalette()).DoModal();
        return FALSE;
    } catch (const OvoError& error) {
        AfxMessageBox(error.wwhat()); // of the file that it was to begin with
        return FALSE;
    }
} theApp;
