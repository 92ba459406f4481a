/// A report list that draws its rows itself: colour swatches, cut texts, a selection across the whole window.
///
///     COVOListCtrlEx list; // a member of the parent
///     list.Create(WS_CHILD | WS_VISIBLE | LVS_SHOWSELALWAYS, rect, this, IDC_COLOURS);
///     list.UseRowColours(TRUE);
///     list.AddColumn(L"Name", 0, -1, false, LVCF_TEXT | LVCF_WIDTH | LVCF_FMT | LVCF_SUBITEM, LVCFMT_LEFT);
///     list.AddColumn(L"Colour", 1, -1, true, LVCF_TEXT | LVCF_WIDTH | LVCF_FMT | LVCF_SUBITEM, LVCFMT_LEFT);
///     list.AddItem(0, 0, L"Amber", 0xFF000000 | RGB(255, 191, 0), -1);
///     list.AddItem(0, 1, L"#FFBF00", 0, -1);
#pragma once

#include <ovoui/export.h>
#include <ovoui/lists/ColourEntry.h>

#include <afxcmn.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace ovoui::lists
{
class ColumnFit;
class DirectList;
class ListCells;
struct ColumnShape;
struct ListLook;
} // namespace ovoui::lists

/// The control makes itself an owner-drawn report list when it is created. On a dialog item the template must
/// have LVS_REPORT and LVS_OWNERDRAWFIXED.
///
/// A row's colour is a COLORREF with the alpha in its highest byte, 255 for opaque: a plain COLORREF is fully
/// transparent. It is kept under the row's item data, which AddItem sets to the index that was asked for. So
/// a row keeps its colour when the list is sorted. Colours and the columns' flags stay when rows and columns
/// are deleted.
///
/// Drawing uses buffers that all lists share: lists belong to one thread.
class OVOUI_API COVOListCtrlEx : public CListCtrl
{
    DECLARE_DYNCREATE(COVOListCtrlEx)

public:
    COVOListCtrlEx();
    ~COVOListCtrlEx() override;

    // Contents

    /// Whether rows have colours of their own: the next ones added, and all when drawn next. Repaints
    /// nothing.
    void UseRowColours(BOOL use);

    /// Inserts a column as wide as its heading with a margin, and gives its index, or -1. `mask` holds LVCF_
    /// bits, of which LVCF_TEXT, LVCF_FMT, LVCF_WIDTH and LVCF_SUBITEM count; `fmt` is LVCFMT_LEFT, _RIGHT or
    /// _CENTER. An `nSubItem` of -1 stands for `nCol`.
    ///
    /// Cells of a colour column show the row's colour behind their text. The flag belongs to the index: it
    /// does not move when another column is inserted in front.
    int AddColumn(const std::wstring& heading, int nCol, int nSubItem, bool colourColumn, int mask, int fmt);

    /// For `nSubItem` 0 inserts a row with a colour and gives its index, or -1; else sets the text of a cell
    /// and gives `nItem`. An `image` of -1 leaves the image out. Sets the item data of row `nItem` to
    /// `nItem`.
    int AddItem(int nItem, int nSubItem, const std::wstring& text, DWORD colour, int image);

    /// Takes the list `pImageList` for an LVSIL_ type, `nImageListType`, and gives the list of before. A null
    /// pointer takes the list away.
    CImageList* SetImageList(CImageList* pImageList, int nImageListType);

    // Selection

    /// Stores the indices of the first `nMaxItems` selected rows in `rgIndex` and gives their number. At
    /// least one is stored when any is selected, even for an `nMaxItems` of 0.
    int GetSelItems(int nMaxItems, int* rgIndex);

    /// The index of the one selected row; -1 when none or several are selected.
    int GetCurSel();

    /// The text if it fits into `width` less `offset`, both in pixels, in the font of `pDC`; else as much of
    /// it as fits with dots behind it, in a buffer that the next call overwrites, of at most 263 characters.
    /// Empty when `width` is less than 1 or not even the first of several characters fits; a single one is
    /// never cut.
    static LPCWSTR MakeShortString(CDC* pDC, LPCWSTR text, int width, int offset);

    // Off unless asked for

    /// Whether the cells follow their headings when columns are moved. Off at first: then the cells of
    /// columns 1, 2 and so on are drawn side by side from column 0 on, wherever the headings are. Repaints
    /// the list.
    void FollowColumnOrder(bool follow);

    /// Every place where a cell shows this text, capitals and small letters alike, stands out from then on;
    /// dots stand out when the text is in what was cut off. An empty text ends it. Repaints the list.
    void EmphasiseText(const std::wstring& text);

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    /// The colour of the row `item`, as AddItem takes it; asked for while drawing, when row colours are in
    /// use. By default the one given to AddItem, or 0. Lists with LVS_OWNERDATA, which have no AddItem,
    /// override it.
    virtual DWORD rowColour(int item);

    /// Paints the rows anew that look different with and without the focus.
    void RepaintSelectedItems();

    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnPaint();
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg LRESULT OnSetImageList(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    friend class ovoui::lists::DirectList;
    friend class ovoui::lists::ListCells;

    bool inReportView() const;
    LRESULT fitColumn(const ovoui::lists::ColumnFit& fit, UINT message, WPARAM wParam, LPARAM lParam);
    ovoui::lists::ListLook lookNow() const;
    std::vector<ovoui::lists::ColumnShape> columnShapes() const;
    bool isOurs(const CWnd* window) const;
    void repaintRow(int item);
    bool labelComesFirst();
    void repaintSelectionUnless(bool inOurChild);
    void setColourColumn(int column, bool isColour);

    int m_clientWidth = 0; ///< as WM_SIZE said last
    BOOL m_useRowColours = FALSE;
    int m_stateImageWidth = 0;
    std::vector<bool> m_colourColumns;
    std::map<int, DWORD> m_rowColours; ///< by item data
    bool m_followsOrder = false;
    std::wstring m_emphasised; ///< in lower case

    std::shared_ptr<const ovoui::lists::ListLook> m_painted; ///< counts while m_painting
    bool m_painting = false;                                 ///< within OnPaint
};
