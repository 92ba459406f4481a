#include <ovoui/frame/core/MessageBoxLayout.h>

#include <ovoui/frame/core/Scaling.h>

#include <algorithm>

namespace ovoui::frame
{
namespace
{

constexpr int kMaxLines = 15; // more lines than this are scrolled

// Pixels at 96 dots per inch
constexpr Point kIconPlace{10, 8};
constexpr Point kTextPlace{52, 8};
constexpr int kButtonGap = 10;   // between buttons, and beside the last
constexpr int kButtonBottom = 8; // below the buttons
constexpr int kBesideText = 62;  // icon and margins beside the text control
constexpr int kAroundText = 24;  // above the text, between text and buttons, below the buttons
constexpr int kIconRow = 56;     // the least height that the icon and the margins take

Point scaled(const Point& point, const BoxMetrics& metrics)
{
    return {scaled(point.x, metrics), scaled(point.y, metrics)};
}

} // namespace

int scaled(int pixels, const BoxMetrics& metrics)
{
    return scaledTo(metrics.dotsPerInch, pixels);
}

Extent buttonSize(int fontHeight, int averageCharWidth, const std::vector<int>& labelWidths,
                  const BoxMetrics& metrics)
{
    int width = averageCharWidth * 50 / 4;
    for (const int label : labelWidths)
        width = std::max(width, label + 2 * metrics.edgeWidth);
    return {width, fontHeight * 14 / 8};
}

TextArea textArea(const Extent& text, int lineHeight, int margins, int widthLimit, const BoxMetrics& metrics)
{
    TextArea area{{text.width + margins, text.height}};
    if (text.height / lineHeight <= kMaxLines)
        return area;

    area.vertical = true;
    area.client.height = kMaxLines * lineHeight;
    area.client.width += metrics.scrollBarWidth;
    area.horizontal = area.client.width > widthLimit;
    return area;
}

Box grownTextControl(const Box& window, const Extent& from, const TextArea& to, const BoxMetrics& metrics)
{
    Box grown = window;
    grown.right += to.client.width - from.width + 2 * metrics.borderWidth;
    grown.bottom += to.client.height - from.height + 2 * metrics.borderHeight;
    if (to.horizontal)
        grown.bottom -= metrics.scrollBarHeight;
    return grown;
}

std::optional<Box> formatToAsk(const Box& wanted, const Box& got)
{
    if (got.width() >= wanted.width())
        return std::nullopt;
    const int edge = got.top - wanted.top; // the same below
    return Box{2 * wanted.left - got.left, wanted.top - edge, 2 * wanted.right - got.right,
               wanted.bottom + edge};
}

Extent dialogSize(int textControlWidth, int textHeight, const Extent& button, int buttonCount,
                  const BoxMetrics& metrics)
{
    const int gap = scaled(kButtonGap, metrics);
    const int forText = textControlWidth + 2 * metrics.frameWidth + scaled(kBesideText, metrics);
    const int forButtons = (button.width + gap) * buttonCount + 2 * metrics.frameWidth + gap;
    const int frame = metrics.captionHeight + 2 * metrics.frameHeight;
    const int aboveButtons = std::max(scaled(kAroundText, metrics) + textHeight, scaled(kIconRow, metrics));
    return {std::max(forText, forButtons), frame + button.height + aboveButtons};
}

Box areaToCentreIn(const Box& parentClient, const std::optional<Box>& workArea)
{
    constexpr Box kUnknown{0, 0, 1280, 1024};
    return parentClient.empty() ? workArea.value_or(kUnknown) : parentClient;
}

Box startPlace(const SavedPosition& saved, const Extent& dialog, const Box& area)
{
    if (!saved.remembered())
        return centredIn(area, dialog.width, dialog.height);
    return {saved.x, saved.y, saved.x + dialog.width, saved.y + dialog.height};
}

Extent withExtras(const Extent& dialog, const BoxExtras& extras, const BoxMetrics& metrics)
{
    return {std::max(dialog.width, extras.width + 2 * metrics.frameWidth),
            dialog.height + extras.above + extras.below};
}

Point iconPlace(const BoxMetrics& metrics)
{
    return scaled(kIconPlace, metrics);
}

Point textPlace(const BoxMetrics& metrics)
{
    return scaled(kTextPlace, metrics);
}

Box buttonBox(int position, int count, const Extent& button, const Extent& client, const BoxMetrics& metrics)
{
    const int left = client.width - (count - position) * (button.width + scaled(kButtonGap, metrics));
    const int top = client.height - button.height - scaled(kButtonBottom, metrics);
    return {left, top, left + button.width, top + button.height};
}

std::wstring joinLines(const std::vector<std::wstring>& lines)
{
    std::wstring joined;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (i > 0)
            joined += L"\r\n";
        joined += lines[i];
    }
    return joined;
}

} // namespace ovoui::frame
