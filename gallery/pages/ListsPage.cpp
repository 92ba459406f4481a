#include "ListsPage.h"

#include "ColumnWidth.h"
#include "ImageStrip.h"
#include "model/ColourTable.h"
#include "resource.h"

#include <ovoui/lists/ListLayout.h>

#include <algorithm>
#include <array>
#include <initializer_list>

BEGIN_MESSAGE_MAP(ListsPage, GalleryPage)
    ON_BN_CLICKED(IDC_LISTS_ROW_COLOURS, &ListsPage::OnRowColours)
    ON_EN_CHANGE(IDC_LISTS_FILTER, &ListsPage::OnFilter)
    ON_BN_CLICKED(IDC_LISTS_SAVE, &ListsPage::OnSaveLayout)
    ON_BN_CLICKED(IDC_LISTS_RESTORE, &ListsPage::OnRestoreLayout)
END_MESSAGE_MAP()

namespace
{

constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP | LVS_SHOWSELALWAYS | LVS_SHAREIMAGELISTS;
constexpr const wchar_t* kSection = L"Lists";
constexpr const wchar_t* kLayout = L"Colours";
constexpr int kColumn = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT | LVCF_SUBITEM;

/// "12 345 678"
std::wstring grouped(unsigned long number)
{
    std::wstring digits = std::to_wstring(number);
    for (int place = static_cast<int>(digits.size()) - 3; place > 0; place -= 3)
        digits.insert(static_cast<std::size_t>(place), 1, L'\u00A0');
    return digits;
}

struct Process
{
    const wchar_t* name;
    unsigned long memory; ///< bytes
    const wchar_t* owner;
    int state; ///< 1 runs, 2 waits, 3 has ended
    bool isLocked;
    bool isLink; ///< started by another program
};

constexpr Process kProcesses[] = {
    {L"indexer", 184320000, L"system", 1, true, false},
    {L"mail", 73400320, L"gardener", 2, false, false},
    {L"a program with a name that is longer than its column", 912384, L"gardener", 1, false, true},
    {L"spooler", 5242880, L"system", 2, true, false},
    {L"plan editor", 268435456, L"gardener", 1, false, false},
    {L"updater", 0, L"system", 3, true, true},
    {L"weather", 1048576, L"someone with a long name", 2, false, false},
};

constexpr unsigned long kMostMemory = std::ranges::max(kProcesses, {}, &Process::memory).memory;

// Images of the strip, and the overlay that one of them is made.
constexpr int kPlain = 2;
constexpr int kLocked = 3;
constexpr int kLink = 5;
constexpr int kLinkOverlay = 1;

/// A disc with a dark edge.
void drawState(CDC& dc, const CRect& place, COLORREF colour)
{
    CBrush brush(colour);
    CPen pen(PS_SOLID, 1, RGB(70, 70, 70));
    CBrush* const oldBrush = dc.SelectObject(&brush);
    CPen* const oldPen = dc.SelectObject(&pen);
    dc.Ellipse(&place);
    dc.SelectObject(oldPen);
    dc.SelectObject(oldBrush);
}

} // namespace

ListsPage::ListsPage()
    : GalleryPage(IDD_PAGE_LISTS)
{
}

ListsPage::~ListsPage() = default;

BOOL ListsPage::OnInitDialog()
{
    GalleryPage::OnInitDialog();
    createColours();
    createProcesses();
    addHelpers();
    if (m_million.create(*this)) {
        m_million.fill();
        replace(IDC_LISTS_MILLION, m_million);
        m_millionFinder.Attach(m_million);
    }
    CheckDlgButton(IDC_LISTS_ROW_COLOURS, BST_CHECKED);
    for (CListCtrl* const list : std::initializer_list<CListCtrl*>{&m_colours, &m_processes, &m_million})
        list->SetItemState(0, LVIS_FOCUSED, LVIS_FOCUSED); // so that the focus is seen when Tab leads there
    arrange();
    return FALSE;
}

void ListsPage::arrange()
{
    stretch(IDC_LISTS_COLOURS, {.growX = 60, .growY = 60});
    stretch(IDC_LISTS_PROCESSES_LABEL, {.moveX = 60});
    stretch(IDC_LISTS_PROCESSES, {.moveX = 60, .growX = 40, .growY = 60});
    stretch(IDC_LISTS_MILLION_LABEL, {.moveY = 60});
    stretch(IDC_LISTS_MILLION, {.moveY = 60, .growX = 100, .growY = 40});
    for (const int left : {IDC_LISTS_ROW_COLOURS, IDC_LISTS_SAVE, IDC_LISTS_RESTORE})
        stretch(left, {.moveY = 100});
    for (const int right : {IDC_LISTS_FILTER_LABEL, IDC_LISTS_FILTER})
        stretch(right, {.moveX = 100, .moveY = 100});
}

void ListsPage::createColours()
{
    if (!m_colours.CreateEx(WS_EX_CLIENTEDGE, kStyle, CRect(), this, 1))
        return;
    m_colours.UseRowColours(TRUE);
    m_colours.AddColumn(L"Name", 0, -1, false, kColumn, LVCFMT_LEFT);
    m_colours.AddColumn(L"Colour", 1, -1, true, kColumn, LVCFMT_LEFT);
    m_colours.AddColumn(L"Opacity", 2, -1, false, kColumn, LVCFMT_RIGHT);
    m_colours.SetColumnWidth(0, columnWidth(m_colours, 110, L"Misty malachite"));
    m_colours.SetColumnWidth(1, scaled(110));
    m_colours.SetColumnWidth(2, columnWidth(m_colours, 60, L"Opacity"));
    fillColours(L"");
    replace(IDC_LISTS_COLOURS, m_colours);
}

/// The colours that have a part of a text in their names or numbers.
void ListsPage::fillColours(const std::wstring& part)
{
    m_colours.SetRedraw(FALSE);
    m_colours.DeleteAllItems();
    int row = 0;
    for (const auto& [name, entry] : namedColours()) {
        const std::wstring opacity = std::to_wstring((entry >> 24) * 100 / 255) + L" %";
        if (!containsText(name, part) && !containsText(hexOf(entry), part) && !containsText(opacity, part))
            continue;
        m_colours.AddItem(row, 0, name, entry, -1);
        m_colours.AddItem(row, 1, hexOf(entry), 0, -1);
        m_colours.AddItem(row++, 2, opacity, 0, -1);
    }
    m_colours.SetRedraw(TRUE);
    if (m_colourSorter.Column() >= 0)
        m_colourSorter.Sort(m_colourSorter.Column(), m_colourSorter.Ascending());
    m_colours.EmphasiseText(part);
}

void ListsPage::createProcesses()
{
    if (!m_processes.CreateEx(WS_EX_CLIENTEDGE, kStyle, CRect(), this, 1))
        return;
    createStates();
    createIcons();
    m_processes.AddColumn(L"Process", 0, -1, false, kColumn, LVCFMT_LEFT);
    m_processes.AddColumn(L"Memory", 1, -1, false, kColumn, LVCFMT_RIGHT);
    m_processes.AddColumn(L"Owner", 2, -1, false, kColumn, LVCFMT_CENTER);
    m_processes.SetColumnWidth(0, scaled(130));
    m_processes.SetColumnWidth(1, columnWidth(m_processes, 75, grouped(kMostMemory).c_str()));
    m_processes.SetColumnWidth(2, columnWidth(m_processes, 70, L"gardener"));
    int row = 0;
    for (const Process& process : kProcesses) {
        m_processes.AddItem(row, 0, process.name, 0, process.isLocked ? kLocked : kPlain);
        m_processes.AddItem(row, 1, process.memory ? grouped(process.memory) : L"", 0, -1);
        m_processes.AddItem(row, 2, process.owner, 0, -1);
        const int overlay = process.isLink ? kLinkOverlay : 0;
        m_processes.SetItemState(
            row++, static_cast<UINT>(INDEXTOSTATEIMAGEMASK(process.state) | INDEXTOOVERLAYMASK(overlay)),
            LVIS_STATEIMAGEMASK | LVIS_OVERLAYMASK);
    }
    replace(IDC_LISTS_PROCESSES, m_processes);
}

/// Clicks on headings sort, headings can be moved, typing finds, Ctrl+C copies, and cut texts have tips.
void ListsPage::addHelpers()
{
    m_colourSorter.Attach(m_colours);
    m_colourSorter.SetKind(2, COVOListSorter::Kind::Number);
    m_processSorter.Attach(m_processes);
    m_processSorter.SetKind(1, COVOListSorter::Kind::Number);
    m_colourFinder.Attach(m_colours);
    m_processFinder.Attach(m_processes);
    m_colourTips.Attach(m_colours);
    m_processTips.Attach(m_processes);
    m_colourCopier.Attach(m_colours, true);
    m_processCopier.Attach(m_processes, true);
    for (COVOListCtrlEx* const list : {&m_colours, &m_processes}) {
        list->SetExtendedStyle(LVS_EX_HEADERDRAGDROP);
        list->FollowColumnOrder(true);
    }
}

void ListsPage::createStates()
{
    constexpr COLORREF kMask = RGB(255, 0, 255);
    const int side = scaled(16);
    m_states.Create(side, side, ILC_COLOR24 | ILC_MASK, 3, 1);
    for (const COLORREF colour : {RGB(60, 170, 60), RGB(240, 200, 60), RGB(160, 160, 160)}) {
        CClientDC screen(this);
        CDC memory;
        memory.CreateCompatibleDC(&screen);
        CBitmap bitmap;
        bitmap.CreateCompatibleBitmap(&screen, side, side);
        CBitmap* const old = memory.SelectObject(&bitmap);
        memory.FillSolidRect(0, 0, side, side, kMask);
        const int margin = scaled(3);
        drawState(memory, CRect(margin, margin, side - margin, side - margin), colour);
        memory.SelectObject(old);
        m_states.Add(&bitmap, kMask);
    }
    m_processes.SetImageList(&m_states, LVSIL_STATE);
}

void ListsPage::createIcons()
{
    createImages(m_icons, {IDB_PROJECT_16, IDB_PROJECT_24, IDB_PROJECT_32}, m_hWnd);
    m_icons.ImageList()->SetOverlayImage(kLink, kLinkOverlay);
    m_processes.SetImageList(m_icons.ImageList(), LVSIL_SMALL);
}

void ListsPage::OnRowColours()
{
    const bool use = IsDlgButtonChecked(IDC_LISTS_ROW_COLOURS) == BST_CHECKED;
    m_colours.UseRowColours(use);
    m_million.UseRowColours(use);
    m_colours.Invalidate();
    m_million.Invalidate();
}

void ListsPage::OnFilter()
{
    CString part;
    GetDlgItemText(IDC_LISTS_FILTER, part);
    fillColours(part.GetString());
}

void ListsPage::OnSaveLayout()
{
    saveColumnLayout(m_colours, kSection, kLayout, &m_colourSorter);
    log(L"the order, the widths and the sorting of the colours' columns are in the profile");
}

void ListsPage::OnRestoreLayout()
{
    log(restoreColumnLayout(m_colours, kSection, kLayout, &m_colourSorter)
            ? L"the columns are as they were saved"
            : L"no layout was saved");
}

// Pictures

std::vector<std::wstring> ListsPage::poses() const
{
    return {L"selection", L"unfocused", L"shortened", L"alpha", L"sorted", L"found", L"filtered", L"empty"};
}

bool ListsPage::pose(const std::wstring& name)
{
    if (name == L"selection" || name == L"unfocused") {
        for (const int row : {1, 2, 4})
            m_colours.SetItemState(row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
        m_processes.SetItemState(1, LVIS_DROPHILITED, LVIS_DROPHILITED);
        (name == L"selection" ? m_colours : m_processes).SetFocus();
        return true;
    }
    if (name == L"shortened") {
        for (int column = 0; column < 3; ++column) {
            m_colours.SetColumnWidth(column, scaled(45 - 10 * column));
            m_processes.SetColumnWidth(column, scaled(column == 0 ? 85 : 60));
        }
        m_processes.Invalidate(); // the platform may leave a label that is cut differently now
        return true;
    }
    if (name == L"alpha") {
        m_colours.SetColumnWidth(1, scaled(135)); // all columns are seen beside the names
        return m_colours.EnsureVisible(m_colours.GetItemCount() - 1, FALSE) &&
               m_colours.EnsureVisible(80, FALSE);
    }
    if (name == L"sorted") {
        int order[] = {1, 0, 2};
        m_colours.SetColumnOrderArray(3, order);
        return m_colourSorter.Sort(0, true) && m_processSorter.Sort(1, false);
    }
    if (name == L"found") {
        m_colours.SetFocus();
        return m_colourFinder.Find(L"am") && m_processFinder.Find(L"pla") && m_millionFinder.Find(L"500");
    }
    if (name == L"filtered") {
        SetDlgItemText(IDC_LISTS_FILTER, L"sky");
        return true;
    }
    return name == L"empty" && m_colours.DeleteAllItems() && m_processes.DeleteAllItems();
}
