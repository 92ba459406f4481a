#include <ovoui/sysinfo/ModuleListDlg.h>

#include <ovoui/frame/ClipboardText.h>
#include <ovoui/frame/MenuBelow.h>
#include <ovoui/frame/Module.h>
#include <ovoui/sysinfo/LoadedModules.h>
#include <ovoui/sysinfo/StretchedControls.h>
#include <ovoui/sysinfo/core/ModuleView.h>

#include <ovouires/resource.h>

#include <ovocor/Text.h>

#include <algorithm>
#include <iterator>

using namespace ovoui::sysinfo;

IMPLEMENT_DYNAMIC(CModuleListDlg, COVOModalDialog)

BEGIN_MESSAGE_MAP(CModuleListDlg, COVOModalDialog)
    ON_EN_CHANGE(IDC_MODULES_FILTER, &CModuleListDlg::OnFilterChange)
    ON_NOTIFY(LVN_COLUMNCLICK, IDC_MODULES_LIST, &CModuleListDlg::OnColumnClick)
    ON_NOTIFY(LVN_GETDISPINFO, IDC_MODULES_LIST, &CModuleListDlg::OnGetDispInfo)
    ON_NOTIFY(LVN_ODFINDITEM, IDC_MODULES_LIST, &CModuleListDlg::OnFindItem)
    ON_NOTIFY(NM_CUSTOMDRAW, IDC_MODULES_LIST, &CModuleListDlg::OnCustomDraw)
    ON_BN_CLICKED(IDC_MODULES_COPY, &CModuleListDlg::OnCopyAs)
    ON_BN_CLICKED(IDC_MODULES_REFRESH, &CModuleListDlg::OnRefresh)
    ON_COMMAND_RANGE(ID_MODULES_COPY_TEXT, ID_MODULES_COPY_JSON, &CModuleListDlg::OnCopyAsFormat)
    ON_WM_SIZE()
    ON_WM_GETMINMAXINFO()
END_MESSAGE_MAP()

namespace
{

struct Heading
{
    ModuleColumn column;
    UINT text; // a string
    int width; // in dialog units
};

constexpr Heading kHeadings[] = {
    {ModuleColumn::Name, IDS_MODULES_NAME, 70},
    {ModuleColumn::Remark, IDS_MODULES_REMARK, 100},
    {ModuleColumn::FileVersion, IDS_MODULES_FILE_VERSION, 80},
    {ModuleColumn::ProductVersion, IDS_MODULES_PRODUCT_VERSION, 86},
    {ModuleColumn::Description, IDS_MODULES_DESCRIPTION, 100},
    {ModuleColumn::Path, IDS_MODULES_PATH, 140},
    {ModuleColumn::LinkTime, IDS_MODULES_LINKED, 90},
    {ModuleColumn::Address, IDS_MODULES_ADDRESS, 72},
    {ModuleColumn::Size, IDS_MODULES_SIZE, 40},
    {ModuleColumn::Type, IDS_MODULES_TYPE, 40},
    {ModuleColumn::Flags, IDS_MODULES_FLAGS, 50},
    {ModuleColumn::System, IDS_MODULES_SYSTEM, 60},
};
static_assert(std::size(kHeadings) == static_cast<std::size_t>(ModuleColumn::Count));

RemarkTexts remarkTexts()
{
    return {std::wstring(), ovoui::resourceString(IDS_MODULES_NO_VERSION),
            ovoui::resourceString(IDS_MODULES_ELSEWHERE),
            ovoui::resourceString(IDS_MODULES_NO_VERSION_ELSEWHERE)};
}

COLORREF remarkColour()
{
    const COLORREF window = ::GetSysColor(COLOR_WINDOW);
    const Ink ink = remarkInk({GetRValue(window), GetGValue(window), GetBValue(window)});
    return RGB(ink.red, ink.green, ink.blue);
}

int formatOf(SortMark mark)
{
    switch (mark) {
    case SortMark::Up:
        return HDF_SORTUP;
    case SortMark::Down:
        return HDF_SORTDOWN;
    case SortMark::None:
        break;
    }
    return 0;
}

/// The commands of the menu, and what each copies.
struct CopyFormat
{
    UINT command;
    std::wstring (*textOf)(const std::vector<LoadedModule>& modules);
};

constexpr CopyFormat kCopyFormats[] = {{ID_MODULES_COPY_TEXT, &modulesAsText},
                                       {ID_MODULES_COPY_MARKDOWN, &modulesAsMarkdown},
                                       {ID_MODULES_COPY_JSON, &modulesAsJson}};

} // namespace

CModuleListDlg::CModuleListDlg(CWnd* pParent)
    : COVOModalDialog(IDD_MODULE_LIST, pParent)
    , m_controls(std::make_unique<StretchedControls>())
    , m_order(std::make_unique<ModuleOrder>())
{
}

CModuleListDlg::~CModuleListDlg() = default;

void CModuleListDlg::DoDataExchange(CDataExchange* exchange)
{
    COVOModalDialog::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_MODULES_LIST, m_list);
    DDX_Control(exchange, IDC_MODULES_FILTER, m_filter);
}

BOOL CModuleListDlg::OnInitDialog()
{
    COVOModalDialog::OnInitDialog();
    m_controls->begin(*this);
    m_controls->add(IDC_MODULES_FILTER, Stretch::GrowWide);
    m_controls->add(IDC_MODULES_LIST, Stretch::Grow);
    m_controls->add(IDC_MODULES_COUNT, Stretch::MoveDown);
    for (const int id : {IDC_MODULES_REFRESH, IDC_MODULES_COPY, IDCANCEL})
        m_controls->add(id, Stretch::MoveBoth);
    m_list.SetExtendedStyle(LVS_EX_FULLROWSELECT | LVS_EX_HEADERDRAGDROP | LVS_EX_LABELTIP);
    addColumns();
    OnRefresh();
    return TRUE;
}

void CModuleListDlg::addColumns()
{
    for (const Heading& heading : kHeadings) {
        CRect width(0, 0, heading.width, 0);
        MapDialogRect(&width);
        m_list.InsertColumn(static_cast<int>(heading.column), ovoui::resourceString(heading.text).c_str(),
                            LVCFMT_LEFT, width.Width());
    }
}

// What is shown

void CModuleListDlg::OnRefresh()
{
    m_modules = loadedModules();
    showVisible();
}

void CModuleListDlg::OnFilterChange()
{
    showVisible();
}

void CModuleListDlg::OnColumnClick(NMHDR* header, LRESULT* result)
{
    const int column = reinterpret_cast<const NMLISTVIEW*>(header)->iSubItem;
    *m_order = afterClick(*m_order, static_cast<ModuleColumn>(column));
    showVisible();
    *result = 0;
}

void CModuleListDlg::showVisible()
{
    CString filter;
    m_filter.GetWindowText(filter);
    m_visible = visibleModules(m_modules, filter.GetString(), *m_order, remarkTexts());
    m_list.SetItemState(-1, 0, LVIS_SELECTED | LVIS_FOCUSED); // rows are other modules now
    m_list.SetItemCountEx(static_cast<int>(m_visible.size()));
    if (!m_visible.empty())
        m_list.SetItemState(0, LVIS_FOCUSED, LVIS_FOCUSED); // so that the focus in the list is seen
    m_list.Invalidate();
    showOrder();
    SetDlgItemText(IDC_MODULES_COUNT, stringPrintf(ovoui::resourceString(IDS_MODULES_COUNT).c_str(),
                                                   m_visible.size(), m_modules.size())
                                          .c_str());
}

void CModuleListDlg::showOrder()
{
    CHeaderCtrl* const header = m_list.GetHeaderCtrl();
    for (int column = 0; column < static_cast<int>(ModuleColumn::Count); ++column) {
        HDITEM item{};
        item.mask = HDI_FORMAT;
        header->GetItem(column, &item);
        item.fmt &= ~(HDF_SORTUP | HDF_SORTDOWN);
        item.fmt |= formatOf(markOf(*m_order, static_cast<ModuleColumn>(column)));
        header->SetItem(column, &item);
    }
}

void CModuleListDlg::OnGetDispInfo(NMHDR* header, LRESULT* result)
{
    LVITEM& item = reinterpret_cast<NMLVDISPINFO*>(header)->item;
    const auto row = static_cast<std::size_t>(item.iItem);
    if ((item.mask & LVIF_TEXT) && row < m_visible.size())
        packTo(
            item.pszText, static_cast<std::size_t>(item.cchTextMax),
            columnText(m_modules[m_visible[row]], static_cast<ModuleColumn>(item.iSubItem), remarkTexts()));
    *result = 0;
}

/// For what the user types in the list. Without an answer the list would take its first row for the one that
/// was found.
void CModuleListDlg::OnFindItem(NMHDR* header, LRESULT* result)
{
    const auto& wanted = *reinterpret_cast<const NMLVFINDITEM*>(header);
    *result = -1;
    if (!(wanted.lvfi.flags & (LVFI_STRING | LVFI_PARTIAL)) || !wanted.lvfi.psz)
        return;
    const auto start = static_cast<std::size_t>(std::max(wanted.iStart, 0));
    if (const auto row = rowNamed(m_modules, m_visible, wanted.lvfi.psz, start))
        *result = static_cast<LRESULT>(*row);
}

void CModuleListDlg::OnCustomDraw(NMHDR* header, LRESULT* result)
{
    auto& draw = *reinterpret_cast<NMLVCUSTOMDRAW*>(header);
    *result = CDRF_DODEFAULT;
    if (draw.nmcd.dwDrawStage == CDDS_PREPAINT) {
        *result = CDRF_NOTIFYITEMDRAW;
    } else if (draw.nmcd.dwDrawStage == CDDS_ITEMPREPAINT) {
        const std::size_t row = draw.nmcd.dwItemSpec;
        if (row < m_visible.size() && remarkOn(m_modules[m_visible[row]]) != Remark::None)
            draw.clrText = remarkColour();
    }
}

// Copying

std::vector<LoadedModule> CModuleListDlg::chosen() const
{
    const auto isSelected = [this](std::size_t row) {
        return m_list.GetItemState(static_cast<int>(row), LVIS_SELECTED) != 0;
    };
    std::vector<LoadedModule> modules;
    for (const std::size_t module : modulesToCopy(m_visible, isSelected))
        modules.push_back(m_modules[module]);
    return modules;
}

void CModuleListDlg::OnCopyAs()
{
    CMenu menu;
    if (!menu.LoadMenu(IDR_MODULES_COPY_MENU))
        return;
    ovoui::frame::openBelow(*menu.GetSubMenu(0), TPM_LEFTBUTTON, GetDlgItem(IDC_MODULES_COPY)->m_hWnd, *this);
}

void CModuleListDlg::OnCopyAsFormat(UINT id)
{
    const auto* const format = std::ranges::find(kCopyFormats, id, &CopyFormat::command);
    if (format != std::end(kCopyFormats))
        ovoui::frame::copyByOle(format->textOf(chosen()));
}

// Size

void CModuleListDlg::OnSize(UINT type, int width, int height)
{
    COVOModalDialog::OnSize(type, width, height);
    m_controls->apply(type, CSize(width, height));
}

void CModuleListDlg::OnGetMinMaxInfo(MINMAXINFO* info)
{
    COVOModalDialog::OnGetMinMaxInfo(info);
    m_controls->limit(*info);
}
