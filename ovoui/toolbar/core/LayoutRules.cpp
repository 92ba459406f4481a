#include <ovoui/toolbar/core/LayoutRules.h>

namespace ovoui::toolbar
{

bool asksForUsualSize(const LayoutAsked& asked)
{
    return asked.length == kNoLength && !asked.asLast && !asked.forCertain && (asked.atTop || asked.atSide);
}

RowsAsked rowsFor(const LayoutAsked& asked, const BarSettings& settings, const Around& around)
{
    if (settings.fixed)
        return {};
    if (settings.dynamic && asked.asLast)
        return {RowLimit::Width, settings.lastWidth};
    if (settings.dynamic && asked.length != kNoLength)
        return asked.byHeight ? RowsAsked{RowLimit::Height, asked.length - around.height}
                              : RowsAsked{RowLimit::Width, asked.length - around.width};
    return {RowLimit::Width, asked.horizontal ? kLong : 0};
}

bool takesLayout(const LayoutAsked& asked)
{
    return asked.length == kNoLength || asked.forCertain;
}

RowsSize barSize(const RowsSize& rows, const LayoutAsked& asked, const BarSettings& settings,
                 const Around& around)
{
    RowsSize size{rows.width + around.width, rows.height + around.height};
    if (asked.horizontal && settings.height > 0)
        size.height = settings.height;
    if (asked.stretched)
        (asked.horizontal ? size.width : size.height) = kLong;
    return size;
}

ControlChange controlChange(bool horizontal, bool visible, bool putAway)
{
    if (horizontal)
        return putAway ? ControlChange::PlaceShow : ControlChange::Place;
    return visible ? ControlChange::PutAway : ControlChange::Hide;
}

} // namespace ovoui::toolbar
