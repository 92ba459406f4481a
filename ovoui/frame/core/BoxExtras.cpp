#include <ovoui/frame/core/BoxExtras.h>

#include <algorithm>

namespace ovoui::frame
{
namespace
{

// Pixels at 96 dots per inch
constexpr int kSide = 10;      // beside the controls, and between check box and button
constexpr int kBelow = 8;      // below each row
constexpr int kBarWidth = 240; // at least

int rowHeight(const ExtraControls& controls)
{
    return std::max(controls.check.height, controls.detailsButton.height);
}

/// A row with what is below it; nothing for a row that is not there.
int withGap(int height, const BoxMetrics& metrics)
{
    return height > 0 ? height + scaled(kBelow, metrics) : 0;
}

} // namespace

BoxExtras boxExtras(const ExtraControls& controls, const BoxMetrics& metrics)
{
    const int side = scaled(kSide, metrics);
    const int row = 3 * side + controls.check.width + controls.detailsButton.width;
    const int bar = 2 * side + scaled(kBarWidth, metrics);
    BoxExtras extras;
    extras.width = std::max(rowHeight(controls) > 0 ? row : 0, controls.barHeight > 0 ? bar : 0);
    extras.above = withGap(controls.barHeight, metrics);
    extras.below = withGap(rowHeight(controls), metrics) + withGap(controls.detailsHeight, metrics);
    return extras;
}

ExtraPlaces extraPlaces(const ExtraControls& controls, const Extent& client, int buttonHeight,
                        const BoxMetrics& metrics)
{
    const int side = scaled(kSide, metrics);
    const int gap = scaled(kBelow, metrics);
    const int right = client.width - side;
    const int row = client.height - boxExtras(controls, metrics).below;
    const auto inRow = [&](int left, const Extent& size) {
        const int top = row + (rowHeight(controls) - size.height) / 2;
        return Box{left, top, left + size.width, top + size.height};
    };
    const int barBottom = row - gap - buttonHeight - gap;

    ExtraPlaces places;
    places.bar = {side, barBottom - controls.barHeight, right, barBottom};
    places.check = inRow(side, controls.check);
    places.detailsButton = inRow(right - controls.detailsButton.width, controls.detailsButton);
    places.details = {side, client.height - gap - controls.detailsHeight, right, client.height - gap};
    return places;
}

} // namespace ovoui::frame
