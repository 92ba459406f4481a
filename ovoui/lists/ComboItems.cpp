#include <ovoui/lists/ComboItems.h>

#include <ovoui/frame/BoxRect.h>
#include <ovoui/frame/DcScopes.h>
#include <ovoui/frame/DrawnState.h>
#include <ovoui/lists/ColourEntry.h>
#include <ovoui/lists/EmphasisedText.h>
#include <ovoui/lists/core/ComboItemLayout.h>
#include <ovoui/lists/core/EntryColours.h>

using ovoui::frame::toBox;
using ovoui::frame::toRect;

namespace ovoui::lists
{

namespace
{

void drawSwatch(CDC& dc, const frame::Box& box, ColourEntry entry)
{
    const EntryColours colours = coloursOf(entry);
    CRect rect = toRect(box);
    dc.FillSolidRect(&rect, ::GetSysColor(COLOR_GRAYTEXT)); // the frame
    rect.DeflateRect(1, 1);
    if (!rect.IsRectEmpty())
        fillColourEntryBgd(dc, colours.solid, colours.overBlack, colours.overWhite, rect);
}

} // namespace

CSize ComboItems::imageSize() const
{
    int width = 0;
    int height = 0;
    if (images)
        ::ImageList_GetIconSize(*images, &width, &height);
    return {width, height};
}

int ComboItems::heightFor(CDC& dc) const
{
    TEXTMETRIC metrics{};
    dc.GetTextMetrics(&metrics);
    return comboItemHeight(metrics.tmHeight, imageSize().cy, dc.GetDeviceCaps(LOGPIXELSY));
}

void ComboItems::draw(CDC& dc, const ComboItem& item) const
{
    const CSize size = imageSize();
    const ComboItemLayout layout = layOutComboItem(toBox(item.place), looks.haveColours(), size.cx, size.cy,
                                                   dc.GetDeviceCaps(LOGPIXELSY));
    const bool selected = (item.state & ODS_SELECTED) != 0;
    const frame::ItemColours colours = frame::itemColoursOf(item.state);
    const frame::SavedContext saved(dc);
    dc.FillSolidRect(&item.place, frame::colorrefOf(colours.background));
    if (item.look.colour)
        drawSwatch(dc, layout.swatch, *item.look.colour);
    if (images && item.look.image >= 0)
        images->Draw(&dc, item.look.image, CPoint(layout.image.left, layout.image.top), ILD_TRANSPARENT);
    dc.SetTextColor(frame::colorrefOf(colours.text));
    dc.SetBkMode(TRANSPARENT);
    CRect text = toRect(layout.text);
    dc.IntersectClipRect(&item.place);
    const std::vector<TextRange> places = placesOf(item.foldedFound, folded(item.text));
    if (places.empty())
        dc.DrawText(item.text.c_str(), -1, &text, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
    else
        drawEmphasised(dc, item.text, text, DT_LEFT, places, EmphasisColours(selected));
    if (frame::showsFocus(item.state))
        dc.DrawFocusRect(&item.place);
}

} // namespace ovoui::lists
