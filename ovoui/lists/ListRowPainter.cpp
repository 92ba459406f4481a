#include <ovoui/lists/ListRowPainter.h>

#include <ovoui/frame/BoxRect.h>
#include <ovoui/frame/DrawnState.h>
#include <ovoui/frame/Lifeline.h>
#include <ovoui/lists/EmphasisedText.h>
#include <ovoui/lists/ListCells.h>
#include <ovoui/lists/RowData.h>
#include <ovoui/lists/SolidFill.h>
#include <ovoui/lists/core/RowLayout.h>
#include <ovoui/lists/core/RowLooks.h>

using ovoui::frame::toRect;

namespace ovoui::lists
{

namespace
{

constexpr UINT kTextFormat = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_NOCLIP;
constexpr int kItemTextRoom = 260;
constexpr int kNarrowestForIcon = 2; // pixels

wchar_t s_itemText[kItemTextRoom];

/// A context's text and background colours and background mode, which return at the end of the scope.
class TextLook
{
public:
    TextLook(CDC& dc, COLORREF text, COLORREF background)
        : m_dc(dc)
        , m_oldText(dc.SetTextColor(text))
        , m_oldBackground(dc.SetBkColor(background))
        , m_oldMode(dc.GetBkMode())
    {
    }
    ~TextLook()
    {
        m_dc.SetBkMode(m_oldMode);
        m_dc.SetBkColor(m_oldBackground);
        m_dc.SetTextColor(m_oldText);
    }
    TextLook(const TextLook&) = delete;
    TextLook& operator=(const TextLook&) = delete;

private:
    CDC& m_dc;
    const COLORREF m_oldText;
    const COLORREF m_oldBackground;
    const int m_oldMode;
};

/// For the text of a cell that shows a colour: whichever of black and white can be read, over what is there.
class OverSwatch
{
public:
    OverSwatch(CDC& dc, COLORREF text)
        : m_dc(dc)
        , m_oldText(dc.SetTextColor(text))
        , m_oldMode(dc.SetBkMode(TRANSPARENT))
    {
    }
    ~OverSwatch()
    {
        m_dc.SetBkMode(m_oldMode);
        m_dc.SetTextColor(m_oldText);
    }
    OverSwatch(const OverSwatch&) = delete;
    OverSwatch& operator=(const OverSwatch&) = delete;

private:
    CDC& m_dc;
    const COLORREF m_oldText;
    const int m_oldMode;
};

UINT alignmentOf(int format)
{
    switch (format & LVCFMT_JUSTIFYMASK) {
    case LVCFMT_RIGHT:
        return DT_RIGHT;
    case LVCFMT_CENTER:
        return DT_CENTER;
    default:
        return DT_LEFT;
    }
}

/// Empty where the platform has no text.
LPCWSTR textOf(const LVITEM& item)
{
    return item.pszText && item.pszText != LPSTR_TEXTCALLBACKW ? item.pszText : L"";
}

} // namespace

ListRowPainter::ListRowPainter(COVOListCtrlEx& list, const DRAWITEMSTRUCT& draw, const RowLook& look)
    : m_list(list)
    , m_draw(draw)
    , m_look(look)
    , m_dc(*CDC::FromHandle(draw.hDC))
    , m_index(static_cast<int>(draw.itemID))
{
}

void ListRowPainter::paint()
{
    if (!findPlaces() || !readItem())
        return;
    chooseColours();

    const TextLook kept(m_dc, m_text, m_background);
    fillRow();
    paintLabel();
    paintSubItems();
    if ((m_item.state & LVIS_FOCUSED) && m_look.list.focused) {
        const RECT edge = toRect(m_row);
        m_dc.DrawFocusRect(&edge);
    }
}

/// Some platforms ask the host for a label's text to tell where the label is, and for the indent of a virtual
/// list's item for each of its places. The host may delete the list then: false when it has gone. Or draw
/// another list, whose texts are read into the same buffer: so the places come before the text.
bool ListRowPainter::findPlaces()
{
    const Lifeline::Watch watch(m_list);
    m_label = itemBox(m_list, m_index, LVIR_LABEL);
    if (!watch.alive())
        return false;
    const frame::Box bounds = itemBox(m_list, m_index, LVIR_BOUNDS);
    if (!watch.alive())
        return false;
    m_row = rowBoxOf(bounds);
    if (watch.alive() && m_look.list.icons)
        m_icon = itemBox(m_list, m_index, LVIR_ICON);
    return watch.alive();
}

/// By a brush: filling with a text's background leaves out a column of pixels in mirrored lists of some
/// platforms.
void ListRowPainter::fillRow()
{
    SolidFill fill(m_dc);
    fill.setColour(m_background);
    fill(m_row);
}

/// Other cells may lie before the label: the row begins with the first one shown.
frame::Box ListRowPainter::rowBoxOf(const frame::Box& bounds) const
{
    frame::Box row = rowBox(bounds, m_label, m_look.clientWidth);
    const CHeaderCtrl* const header = m_look.followsOrder ? m_list.GetHeaderCtrl() : nullptr;
    if (header)
        row.left = cellOf(header->OrderToIndex(0), 0, m_label).left;
    return row;
}

bool ListRowPainter::readItem()
{
    s_itemText[0] = 0;
    m_item.mask = LVIF_TEXT | LVIF_IMAGE | LVIF_STATE;
    m_item.iItem = m_index;
    m_item.stateMask = 0xFFFF;
    m_item.pszText = s_itemText;
    m_item.cchTextMax = kItemTextRoom;
    const Lifeline::Watch watch(m_list);
    return DirectList::ask(m_list, LVM_GETITEMW, 0, m_item) && watch.alive();
}

void ListRowPainter::chooseColours()
{
    const bool selected = looksSelected();
    const frame::ItemColours usual = frame::itemColours(selected);
    m_text = frame::colorrefOf(usual.text);
    m_background = selected ? frame::colorrefOf(usual.background) : m_look.list.background;
    m_colours = m_look.colour ? coloursOf(*m_look.colour)
                              : EntryColours{m_background, m_background, m_background, m_text};
}

bool ListRowPainter::looksSelected() const
{
    return lists::looksSelected({.selected = (m_item.state & LVIS_SELECTED) != 0,
                                 .dropTarget = (m_item.state & LVIS_DROPHILITED) != 0,
                                 .listFocused = m_look.list.focused,
                                 .alwaysShown = (m_list.GetStyle() & LVS_SHOWSELALWAYS) != 0});
}

bool ListRowPainter::isColourColumn(int column) const
{
    const auto at = static_cast<std::size_t>(column);
    return at < m_look.colourColumns.size() && m_look.colourColumns[at];
}

void ListRowPainter::paintSwatch(const frame::Box& box)
{
    fillColourEntryBgd(m_dc, m_colours.solid, m_colours.overBlack, m_colours.overWhite, toRect(box));
}

// Column 0

void ListRowPainter::paintLabel()
{
    std::optional<OverSwatch> readable;
    if (isColourColumn(0)) {
        readable.emplace(m_dc, m_colours.text);
        paintSwatch(m_label);
    }
    if (m_draw.itemAction != ODA_FOCUS) { // else they are there, and would be blended with themselves
        paintStateImage();
        paintIcon();
    }
    const frame::Box area = labelTextBox(m_label, m_look.stateImageWidth);
    const LPCWSTR text = textOf(m_item);
    const LPCWSTR shown = COVOListCtrlEx::MakeShortString(&m_dc, text, area.width(), kLabelOffset);
    drawText(text, shown, textBox(area, kLabelInset), DT_LEFT);
}

void ListRowPainter::drawText(LPCWSTR text, LPCWSTR shown, const frame::Box& box, UINT alignment)
{
    CRect place = toRect(box);
    const std::vector<TextRange> places =
        m_look.emphasised.empty() ? std::vector<TextRange>() : placesShown(m_look.emphasised, text, shown);
    if (places.empty())
        m_dc.DrawText(shown, -1, &place, kTextFormat | alignment);
    else
        drawEmphasised(m_dc, shown, place, alignment, places, EmphasisColours(looksSelected()));
}

void ListRowPainter::paintStateImage()
{
    const int image = static_cast<int>((m_item.state & LVIS_STATEIMAGEMASK) >> 12) - 1;
    if (image < 0)
        return;
    if (CImageList* const images = m_list.GetImageList(LVSIL_STATE))
        images->Draw(&m_dc, image, CRect(m_draw.rcItem).TopLeft(), ILD_TRANSPARENT);
}

void ListRowPainter::paintIcon()
{
    if (!m_look.list.icons || CRect(m_draw.rcItem).Width() < kNarrowestForIcon)
        return;
    ::ImageList_Draw(m_look.list.icons, m_item.iImage, m_dc, m_icon.left, m_icon.top,
                     ILD_TRANSPARENT | (m_item.state & LVIS_OVERLAYMASK));
}

// The other columns

frame::Box ListRowPainter::cellOf(int column, int width, const frame::Box& before) const
{
    return cellBox(m_list, m_index, column, width, before, m_look.followsOrder);
}

void ListRowPainter::paintSubItems()
{
    frame::Box box = m_label;
    const Lifeline::Watch watch(m_list);
    const int count = static_cast<int>(m_look.list.columns.size());
    // The platform may ask the host for a text, who may destroy the list instead.
    for (int i = 1; i < count && watch.alive(); ++i) {
        const ColumnShape& column = m_look.list.columns[static_cast<std::size_t>(i)];
        box = cellOf(i, column.width, box);
        s_itemText[0] = 0;
        LVITEM item{};
        item.mask = LVIF_TEXT;
        item.iItem = m_index;
        item.iSubItem = i;
        item.pszText = s_itemText;
        item.cchTextMax = kItemTextRoom;
        if (DirectList::ask(m_list, LVM_GETITEMW, 0, item) && watch.alive())
            paintSubItem(textOf(item), box, column.format, isColourColumn(i));
    }
}

/// An empty cell shows nothing, not even its colour.
void ListRowPainter::paintSubItem(LPCWSTR text, const frame::Box& box, int format, bool isColour)
{
    if (!*text)
        return;
    const LPCWSTR shown = COVOListCtrlEx::MakeShortString(&m_dc, text, box.width(), kCellOffset);
    const UINT alignment = shown == text ? alignmentOf(format) : DT_LEFT;
    std::optional<OverSwatch> readable;
    if (isColour) {
        readable.emplace(m_dc, m_colours.text);
        paintSwatch(box);
    }
    drawText(text, shown, textBox(box, kCellInset), alignment);
}

} // namespace ovoui::lists
