#include <ovoui/lists/EmphasisedText.h>

#include <ovoui/frame/DcScopes.h>
#include <ovoui/lists/TextExtents.h>

#include <numeric>

namespace ovoui::lists
{

namespace
{

/// The top left corner of a text.
CPoint cornerOf(CDC& dc, int textWidth, const CRect& place, UINT alignment)
{
    TEXTMETRIC metrics{};
    dc.GetTextMetrics(&metrics);
    const int room = place.Width() - textWidth;
    const int left = (alignment & DT_RIGHT) ? room : (alignment & DT_CENTER) ? room / 2 : 0;
    return {place.left + left, place.top + place.Height() / 2 - metrics.tmHeight / 2};
}

/// From each character to the next one.
std::vector<int> stepsOf(std::span<const int> beginnings)
{
    std::vector<int> steps(beginnings.size());
    std::adjacent_difference(beginnings.begin(), beginnings.end(), steps.begin());
    return steps;
}

} // namespace

std::wstring folded(std::wstring_view text)
{
    std::wstring result(text);
    ::CharLowerBuffW(result.data(), static_cast<DWORD>(result.size()));
    return result;
}

std::vector<TextRange> placesShown(const std::wstring& foldedPart, std::wstring_view text,
                                   std::wstring_view shown)
{
    return shownOf(placesOf(foldedPart, folded(text)), text, shown);
}

void drawEmphasised(CDC& dc, std::wstring_view shown, const CRect& place, UINT alignment,
                    const std::vector<TextRange>& places, const EmphasisColours& colours)
{
    const TextExtents extents(dc, shown.data(), shown.size());
    const std::vector<int> steps = stepsOf(extents.beginnings());
    const CPoint corner = cornerOf(dc, extents.whole(), place, alignment);
    const auto draw = [&] {
        ::ExtTextOutW(dc, corner.x, corner.y, 0, nullptr, shown.data(), static_cast<UINT>(shown.size()),
                      steps.data());
    };
    draw();
    const bool mirrored = (dc.GetLayout() & LAYOUT_RTL) != 0;
    for (const TextRange& range : places) {
        const frame::SavedContext saved(dc);
        const Reach reach = reachOf(range, extents.beginnings(), mirrored);
        const CRect part(corner.x + reach.left, place.top, corner.x + reach.right, place.bottom);
        dc.IntersectClipRect(&part);
        dc.FillSolidRect(&part, colours.background);
        dc.SetTextColor(colours.text);
        draw();
    }
}

} // namespace ovoui::lists
