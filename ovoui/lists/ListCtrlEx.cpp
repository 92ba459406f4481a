#include <ovoui/lists/ListCtrlEx.h>

#include <ovoui/frame/Exceptions.h>
#include <ovoui/frame/Lifeline.h>
#include <ovoui/frame/TellParent.h>
#include <ovoui/lists/ColumnFit.h>
#include <ovoui/lists/EmphasisedText.h>
#include <ovoui/lists/ListRowPainter.h>
#include <ovoui/lists/OwnChange.h>
#include <ovoui/lists/RangeInput.h>
#include <ovoui/lists/TextExtents.h>
#include <ovoui/lists/core/RowLayout.h>
#include <ovoui/lists/core/ShortText.h>

#include <algorithm>
#include <cwchar>

using namespace ovoui::lists;
using ovoui::frame::keepFirst;
using ovoui::frame::raise;

IMPLEMENT_DYNCREATE(COVOListCtrlEx, CListCtrl)

BEGIN_MESSAGE_MAP(COVOListCtrlEx, CListCtrl)
    ON_WM_SIZE()
    ON_WM_PAINT()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_MESSAGE(LVM_SETIMAGELIST, &COVOListCtrlEx::OnSetImageList)
END_MESSAGE_MAP()

namespace
{

constexpr int kHeadingMargin = 15;

wchar_t s_shortText[kShortTextRoom];

} // namespace

COVOListCtrlEx::COVOListCtrlEx() = default;

COVOListCtrlEx::~COVOListCtrlEx() = default;

BOOL COVOListCtrlEx::PreCreateWindow(CREATESTRUCT& cs)
{
    cs.style &= ~static_cast<LONG>(LVS_SMALLICON);
    cs.style |= LVS_REPORT | LVS_OWNERDRAWFIXED;
    return CWnd::PreCreateWindow(cs);
}

LRESULT COVOListCtrlEx::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const RangeInput input(*this, message);
    return CListCtrl::WindowProc(message, wParam, lParam);
}

/// Gets the messages that neither the host nor a handler has answered.
LRESULT COVOListCtrlEx::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (const auto fit = ColumnFit::wanted(*this, message, wParam, lParam))
        return fitColumn(*fit, message, wParam, lParam);
    return CListCtrl::DefWindowProc(message, wParam, lParam);
}

/// The parent hears of a double click as it does from the platform: afterwards.
LRESULT COVOListCtrlEx::fitColumn(const ColumnFit& fit, UINT message, WPARAM wParam, LPARAM lParam)
{
    const Lifeline::Watch watch(*this);
    LRESULT done = FALSE;
    if (const std::optional<int> width = fit.width(*this, m_stateImageWidth))
        done = CListCtrl::DefWindowProc(LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(fit.column()),
                                        MAKELPARAM(*width, 0));
    if (message != WM_NOTIFY || !watch.alive())
        return done;
    return ovoui::frame::sendToHost(::GetParent(m_hWnd), message, wParam, lParam);
}

// Contents

void COVOListCtrlEx::UseRowColours(BOOL use)
{
    m_useRowColours = use;
}

int COVOListCtrlEx::AddColumn(const std::wstring& heading, int nCol, int nSubItem, bool colourColumn,
                              int mask, int fmt)
{
    LVCOLUMN column{};
    column.mask = static_cast<UINT>(mask);
    column.fmt = fmt;
    column.pszText = const_cast<LPWSTR>(heading.c_str());
    column.cx = GetStringWidth(heading.c_str()) + kHeadingMargin;
    if (mask & LVCF_SUBITEM)
        column.iSubItem = nSubItem == -1 ? nCol : nSubItem;
    const int index = InsertColumn(nCol, &column);
    if (index >= 0)
        setColourColumn(index, colourColumn);
    return index;
}

void COVOListCtrlEx::setColourColumn(int column, bool isColour)
{
    const auto at = static_cast<std::size_t>(column);
    if (m_colourColumns.size() <= at)
        m_colourColumns.resize(at + 1);
    m_colourColumns[at] = isColour;
}

int COVOListCtrlEx::AddItem(int nItem, int nSubItem, const std::wstring& text, DWORD colour, int image)
{
    LVITEM item{};
    item.mask = LVIF_TEXT;
    item.iItem = nItem;
    item.iSubItem = nSubItem;
    item.pszText = const_cast<LPWSTR>(text.c_str());
    if (image != -1) {
        item.mask |= LVIF_IMAGE;
        item.iImage = image;
    }
    // The parent hears of the row, and may delete the list. What it raises does not leave the row without its
    // colour and data.
    const Lifeline::Watch watch(*this);
    std::exception_ptr raised;
    int index = nItem;
    keepFirst(raised, [&] {
        if (nSubItem != 0)
            SetItem(&item);
        else
            index = InsertItem(&item);
    });
    if (watch.alive() && nSubItem == 0 && index != -1 && m_useRowColours)
        m_rowColours[nItem] = colour;
    if (watch.alive())
        keepFirst(raised, [&] { SetItemData(nItem, static_cast<DWORD_PTR>(nItem)); });
    raise(raised);
    return index;
}

CImageList* COVOListCtrlEx::SetImageList(CImageList* pImageList, int nImageListType)
{
    return CListCtrl::SetImageList(pImageList, nImageListType);
}

LRESULT COVOListCtrlEx::OnSetImageList(WPARAM wParam, LPARAM lParam)
{
    if (wParam == LVSIL_STATE) {
        int width = 0;
        int height = 0;
        const bool known = ::ImageList_GetIconSize(reinterpret_cast<HIMAGELIST>(lParam), &width, &height);
        m_stateImageWidth = known ? width : 0;
    }
    return Default();
}

// Selection

int COVOListCtrlEx::GetSelItems(int nMaxItems, int* rgIndex)
{
    const int limit = std::min(nMaxItems, static_cast<int>(GetSelectedCount()));
    int count = 0;
    for (int item = GetNextItem(-1, LVNI_SELECTED); item != -1; item = GetNextItem(item, LVNI_SELECTED)) {
        rgIndex[count++] = item;
        if (count >= limit)
            break;
    }
    return count;
}

int COVOListCtrlEx::GetCurSel()
{
    if (GetSelectedCount() != 1)
        return -1;
    const int focused = GetNextItem(-1, LVNI_FOCUSED | LVNI_SELECTED); // found without going through the rows
    return focused != -1 ? focused : GetNextItem(-1, LVNI_SELECTED);
}

// Drawing

LPCWSTR COVOListCtrlEx::MakeShortString(CDC* pDC, LPCWSTR text, int width, int offset)
{
    const std::size_t length = std::wcslen(text);
    if (length == 0)
        return text;
    const TextExtents extents(*pDC, text, length);
    if (fits(extents.whole(), width, offset))
        return text;
    const int dots = width < 1 ? 0 : pDC->GetTextExtent(kDots.data(), kMeasuredDots).cx;
    ShortText result = shorten(
        length, [&](std::size_t count) { return extents.beginnings()[count - 1]; }, dots, width, offset);
    if (changesShape({text, length})) {
        const auto extentOf = [&](std::size_t count) {
            return pDC->GetTextExtent(text, static_cast<int>(count)).cx;
        };
        result = shortenNear(result.length, length, extentOf, dots, width, offset);
    }
    std::wmemmove(s_shortText, text, result.length); // the text may be an earlier result
    std::wcscpy(s_shortText + result.length, result.dots ? kDots.data() : L"");
    return s_shortText;
}

void COVOListCtrlEx::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    // Kept here, since the list may be gone when the host has been asked for a text.
    const std::shared_ptr<const ListLook> shared =
        m_painting ? m_painted : std::make_shared<const ListLook>(lookNow());
    RowLook look{*shared,        m_clientWidth, m_stateImageWidth, m_colourColumns,
                 m_followsOrder, m_emphasised,  std::nullopt};
    const Lifeline::Watch watch(*this);
    if (m_useRowColours)
        look.colour = rowColour(static_cast<int>(lpDrawItemStruct->itemID));
    if (watch.alive())
        ListRowPainter(*this, *lpDrawItemStruct, look).paint();
}

DWORD COVOListCtrlEx::rowColour(int item)
{
    return m_rowColours[static_cast<int>(GetItemData(item))];
}

void COVOListCtrlEx::FollowColumnOrder(bool follow)
{
    m_followsOrder = follow;
    if (m_hWnd)
        Invalidate();
}

void COVOListCtrlEx::EmphasiseText(const std::wstring& text)
{
    m_emphasised = folded(text);
    if (m_hWnd)
        Invalidate();
}

bool COVOListCtrlEx::inReportView() const
{
    return (GetStyle() & LVS_TYPEMASK) == LVS_REPORT;
}

/// What is right of the last column belongs to the rows: it is painted with whatever needs painting. The
/// header does not: it is left out, since it takes longer to paint than all the rows.
///
/// Some platforms ask the host of a virtual list for the indent of an item to tell where it is.
void COVOListCtrlEx::OnPaint()
{
    const Lifeline::Watch watch(*this);
    CRect bounds;
    CRect update;
    const bool hasRows = inReportView() && GetItemRect(0, &bounds, LVIR_BOUNDS);
    if (!watch.alive())
        return;
    if (hasRows && bounds.right < m_clientWidth && GetUpdateRect(&update)) {
        update.left = std::min(update.left, bounds.right - 1);
        update.right = m_clientWidth;
        RedrawWindow(&update, nullptr, RDW_INVALIDATE | RDW_NOCHILDREN);
    }
    m_painted = std::make_shared<const ListLook>(lookNow());
    const OwnChange painting(*this, m_painting);
    CWnd::OnPaint();
}

/// Asked once for all rows that are painted together: some platforms take as long for it as for drawing one.
ListLook COVOListCtrlEx::lookNow() const
{
    return {::GetFocus() == m_hWnd, GetBkColor(), ListView_GetImageList(m_hWnd, LVSIL_SMALL), columnShapes()};
}

std::vector<ColumnShape> COVOListCtrlEx::columnShapes() const
{
    std::vector<ColumnShape> shapes;
    LVCOLUMN column{};
    column.mask = LVCF_FMT | LVCF_WIDTH;
    while (GetColumn(static_cast<int>(shapes.size()), &column))
        shapes.push_back({column.fmt, column.cx});
    return shapes;
}

void COVOListCtrlEx::OnSize(UINT nType, int cx, int cy)
{
    m_clientWidth = cx;
    CWnd::OnSize(nType, cx, cy);
}

// Focus

void COVOListCtrlEx::OnSetFocus(CWnd* pOldWnd)
{
    const Lifeline::Watch watch(*this);
    const bool fromChild = isOurs(pOldWnd);
    CWnd::OnSetFocus(pOldWnd);
    if (watch.alive())
        repaintSelectionUnless(fromChild);
}

void COVOListCtrlEx::OnKillFocus(CWnd* pNewWnd)
{
    const Lifeline::Watch watch(*this);
    const bool toChild = isOurs(pNewWnd);
    CWnd::OnKillFocus(pNewWnd);
    if (watch.alive())
        repaintSelectionUnless(toChild);
}

/// Whether a window is a child of this list, such as the editor of a label.
bool COVOListCtrlEx::isOurs(const CWnd* window) const
{
    return window && ::GetParent(window->m_hWnd) == m_hWnd;
}

void COVOListCtrlEx::repaintSelectionUnless(bool inOurChild)
{
    if (!inOurChild && inReportView())
        RepaintSelectedItems();
}

/// Only rows that are shown are looked at: all of a million may be selected. The host may be asked for the
/// text of a row's label, and delete the list then.
void COVOListCtrlEx::RepaintSelectedItems()
{
    const Lifeline::Watch watch(*this);
    repaintRow(GetNextItem(-1, LVNI_FOCUSED));
    if (watch.alive() && !(GetStyle() & LVS_SHOWSELALWAYS)) {
        const RowRange shown = rowsShown(GetTopIndex(), GetCountPerPage(), GetItemCount());
        for (int item = shown.first; watch.alive() && item < shown.end; ++item)
            if (GetItemState(item, LVIS_SELECTED))
                repaintRow(item);
    }
    if (watch.alive())
        UpdateWindow();
}

void COVOListCtrlEx::repaintRow(int item)
{
    const Lifeline::Watch watch(*this);
    CRect bounds;
    CRect label;
    if (item == -1 || !GetItemRect(item, &bounds, LVIR_BOUNDS) || !watch.alive() ||
        !GetItemRect(item, &label, LVIR_LABEL) || !watch.alive())
        return;
    // What lies before the label is not filled: its image would be blended with itself.
    bounds.left = labelComesFirst() ? label.left : 0;
    InvalidateRect(&bounds, FALSE);
}

/// Whether no cell lies before the label.
bool COVOListCtrlEx::labelComesFirst()
{
    const CHeaderCtrl* const header = m_followsOrder ? GetHeaderCtrl() : nullptr;
    return !header || header->OrderToIndex(0) == 0;
}
