/// Not exported: parts of a drawn text that stand out.
#pragma once

#include <ovoui/frame/DrawnState.h>
#include <ovoui/lists/core/TextSearch.h>

#include <afxwin.h>

#include <string>
#include <string_view>
#include <vector>

namespace ovoui::lists
{

/// In lower case character by character, so that places in it are places in the text.
std::wstring folded(std::wstring_view text);

/// The places of `foldedPart` in a text of which `shown` was drawn: the text itself, or its beginning, with
/// or without dots.
std::vector<TextRange> placesShown(const std::wstring& foldedPart, std::wstring_view text,
                                   std::wstring_view shown);

/// The colours of parts in a row: those of a selection, and within a selection those of a window.
struct EmphasisColours
{
    explicit EmphasisColours(bool selected)
        : text(frame::colorrefOf(frame::itemColours(!selected).text))
        , background(frame::colorrefOf(frame::itemColours(!selected).background))
    {
    }

    COLORREF text;
    COLORREF background;
};

/// Draws a text with `places` that stand out where CDC::DrawText would draw it in one line, centred
/// vertically; `alignment` is DT_LEFT, DT_RIGHT or DT_CENTER. Each letter stands where the measured extents
/// have it, so that it is the letters that stand out.
void drawEmphasised(CDC& dc, std::wstring_view shown, const CRect& place, UINT alignment,
                    const std::vector<TextRange>& places, const EmphasisColours& colours);

} // namespace ovoui::lists
