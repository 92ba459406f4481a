/// Not exported: the list of items that have what was typed anywhere in their texts.
#pragma once

#include <afxwin.h>

#include <functional>
#include <string>
#include <vector>

class COVOComboBox;

namespace ovoui::lists
{

/// A list that leaves the focus where it is: a click is told when the button goes up.
class HitList : public CListBox
{
public:
    std::function<void(LPDRAWITEMSTRUCT)> draws;
    std::function<void(int)> clicked;

protected:
    void DrawItem(LPDRAWITEMSTRUCT item) override;
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    int itemAt(CPoint point);
};

/// A popup window below a combo box, or above it. It never becomes active.
class ComboHits : public CWnd
{
public:
    /// `taken` gets the item of the combo box that was clicked, at the end of the click.
    ComboHits(COVOComboBox& combo, std::function<void(int)> taken);
    ~ComboHits() override;

    /// Shows items of the combo box, given by their indices, with a part of their texts emphasised. None is
    /// selected.
    void show(std::vector<int> items, const std::wstring& foldedPart);
    void hide();
    bool isShown() const;
    /// All hits that are in sight, which are few.
    void repaint();

    int count() const { return static_cast<int>(m_items.size()); }
    /// Among the items shown; -1 for none.
    int selected() const { return m_list.GetCurSel(); }
    void select(int index);
    int itemAt(int index) const { return m_items[static_cast<std::size_t>(index)]; }
    int page() const;

protected:
    afx_msg int OnMouseActivate(CWnd* top, UINT hitTest, UINT message);
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    static LRESULT CALLBACK topProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                         DWORD_PTR hits);
    bool create();
    void place();
    void draw(const DRAWITEMSTRUCT& item);

    COVOComboBox& m_combo;
    std::function<void(int)> m_taken;
    HitList m_list;
    HWND m_top = nullptr; ///< the window that the combo box is in; it takes the hits away when it moves
    std::vector<int> m_items;
    std::wstring m_part;
};

} // namespace ovoui::lists
