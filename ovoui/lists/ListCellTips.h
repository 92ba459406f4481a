/// Shows the whole text of a cell that has no room for it.
///
///     COVOListCellTips tips;      // a member beside the list
///     tips.Attach(m_list);
#pragma once

#include <ovoui/export.h>
#include <ovoui/lists/ListCtrlEx.h>
#include <ovoui/lists/ListHelper.h>

#include <memory>
#include <string>

namespace ovoui::frame
{
class Tip;
}

/// While the pointer rests on a cell whose text is cut, a tip with the whole text lies over the cell, in its
/// font. It goes when the pointer leaves the cell, and with a key, a click or scrolling, by code as well.
class OVOUI_API COVOListCellTips : private ovoui::lists::ListHelper
{
public:
    COVOListCellTips();
    ~COVOListCellTips() override;

    /// The list must have its window. It may be destroyed before this object. Replaces the list of before.
    void Attach(COVOListCtrlEx& list);
    /// No tips any more; nothing happens without a list.
    void Detach();

    /// The tip's window: null before the first tip. Hidden while no tip is shown.
    HWND Window() const;

private:
    struct Cell
    {
        int item = -1;
        int column = -1;
        friend bool operator==(const Cell&, const Cell&) = default;
    };

    bool takes(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) override;
    void heard(UINT message, WPARAM wParam, LPARAM lParam) override;
    void left() override;
    static Cell cellAt(COVOListCtrlEx& list, CPoint point);
    void pointerAt(CPoint point);
    void show(const Cell& cell);
    void hide();
    bool liesElsewhere() const;
    std::wstring cutText(const Cell& cell, CRect& textPlace) const;

    COVOListCtrlEx* m_list = nullptr;
    std::unique_ptr<ovoui::frame::Tip> m_tip;
    Cell m_cell; ///< under the pointer; a tip that went by a key or a click comes back in another cell only
};
