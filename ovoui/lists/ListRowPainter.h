/// Not exported: draws a row of an extended list.
#pragma once

#include <ovoui/frame/core/Placement.h>
#include <ovoui/lists/ListLook.h>
#include <ovoui/lists/core/EntryColours.h>

#include <afxcmn.h>

#include <optional>
#include <string>
#include <vector>

class COVOListCtrlEx;

namespace ovoui::lists
{

/// What the list knows about a row and the platform does not.
struct RowLook
{
    const ListLook& list;
    int clientWidth;
    int stateImageWidth;
    const std::vector<bool>& colourColumns;
    bool followsOrder;                 ///< cells lie under their headings
    const std::wstring& emphasised;    ///< folded; empty for none
    std::optional<ColourEntry> colour; ///< none when rows have no colours of their own
};

class ListRowPainter
{
public:
    /// Everything given must live as long as this object.
    ListRowPainter(COVOListCtrlEx& list, const DRAWITEMSTRUCT& draw, const RowLook& look);

    /// Draws nothing when the row is gone. The device context's colours and modes are those of before
    /// afterwards.
    void paint();

private:
    bool findPlaces();
    bool readItem();
    void chooseColours();
    bool looksSelected() const;
    bool isColourColumn(int column) const;

    frame::Box rowBoxOf(const frame::Box& bounds) const;
    frame::Box cellOf(int column, int width, const frame::Box& before) const;
    void fillRow();
    void paintSwatch(const frame::Box& box);
    void paintStateImage();
    void paintIcon();
    void paintLabel();
    void paintSubItems();
    void paintSubItem(LPCWSTR text, const frame::Box& box, int format, bool isColour);
    void drawText(LPCWSTR text, LPCWSTR shown, const frame::Box& box, UINT alignment);

    COVOListCtrlEx& m_list;
    const DRAWITEMSTRUCT& m_draw;
    const RowLook& m_look;
    CDC& m_dc;
    const int m_index;
    frame::Box m_label{};
    frame::Box m_row{};
    frame::Box m_icon{};
    LVITEM m_item{};
    COLORREF m_text = 0;
    COLORREF m_background = 0;
    EntryColours m_colours{};
};

} // namespace ovoui::lists
