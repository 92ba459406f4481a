/// A grid of colours from which the user picks one.
///
///     m_grid.createInPlace(*this, IDC_LEAF_COLOURS); // a static control of the template
///     m_grid.SetColours({RGB(84, 130, 53), RGB(190, 49, 26)}, 9);
///
///     ON_CONTROL(CColourGrid::kChosen, IDC_LEAF_COLOURS, &LeafDlg::OnLeafColour)
#pragma once

#include <ovoui/export.h>
#include <ovoui/frame/Lifeline.h>

#include <afxwin.h>

#include <memory>
#include <vector>

namespace ovoui::colour
{
struct CellLayout;
struct ColourIdentity;
} // namespace ovoui::colour

/// Cells of one size fill the client area. Arrows, Home, End and the page keys move the mark; a click, Space
/// and Enter choose a colour. Accessibility sees a list with the window's text for its name and the colours'
/// names.
///
/// The parent is sent WM_COMMAND with the codes below, and may destroy the grid in it.
class OVOUI_API CColourGrid : public CWnd
{
    DECLARE_DYNAMIC(CColourGrid)

public:
    static constexpr UINT kChosen = 0x50;  ///< the user has chosen the colour with the mark
    static constexpr UINT kPointed = 0x51; ///< the user has moved the mark

    CColourGrid();
    ~CColourGrid() override;

    /// A child window of `parent` with the number `id`, at `rect` in its client coordinates. `style` has WS_
    /// bits. FALSE when the system refuses.
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    /// Takes the place of the control `id` of a dialog, which is destroyed: its number, rectangle, order in
    /// Tab, and text for the name; with a tab stop. False when there is no such control.
    bool createInPlace(CWnd& dialog, UINT id);

    /// `columns` is at least 1. The mark goes to the first colour. Tells no one.
    void SetColours(std::vector<COLORREF> colours, int columns);
    /// The colours, in the order of the cells.
    const std::vector<COLORREF>& Colours() const { return m_colours; }

    /// The index of the colour with the mark; -1 without colours.
    int Current() const { return m_colours.empty() ? -1 : m_current; }
    /// Moves the mark to a colour; an `index` beyond the ends is ignored. Tells no one.
    void SetCurrent(int index);

    /// Where the colour `index` is shown, in client coordinates.
    CRect CellRect(int index) const;

protected:
    afx_msg void OnDestroy();
    afx_msg void OnEnable(BOOL enable);
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg UINT OnGetDlgCode();
    afx_msg LRESULT OnGetObject(WPARAM wParam, LPARAM lParam);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnKillFocus(CWnd* other);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnPaint();
    afx_msg void OnSetFocus(CWnd* other);
    afx_msg void OnSize(UINT type, int width, int height);
    DECLARE_MESSAGE_MAP()

private:
    ovoui::colour::CellLayout layout() const;
    int cellAt(CPoint point) const;
    bool point(int index);
    void choose(int index);
    bool tell(UINT code);

    std::vector<COLORREF> m_colours;
    int m_columns = 1;
    int m_current = 0;
    int m_pressed = -1; // the cell that the left button went down on
    std::shared_ptr<ovoui::colour::ColourIdentity> m_identity;
    Lifeline m_lifeline;
};
