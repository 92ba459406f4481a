#include <ovoui/images/core/StripScaling.h>

#include <algorithm>

namespace ovoui::images
{

namespace
{

using Sum = std::uint64_t;

/// How much a source pixel counts for a target pixel.
struct Tap
{
    int source;
    Sum weight;
};

/// For each pixel along one side of the target the pixels of the source that it is made of. The weights of a
/// pixel add up to `total`.
struct Taps
{
    std::vector<std::vector<Tap>> of;
    Sum total;
};

/// Source pixel j reaches from j to j + 1 times `to`, target pixel i from i to i + 1 times `from`.
Taps areaTaps(int from, int to)
{
    Taps taps{{}, static_cast<Sum>(from)};
    for (std::int64_t i = 0; i < to; ++i) {
        const std::int64_t begin = i * from;
        const std::int64_t end = begin + from;
        std::vector<Tap> own;
        for (std::int64_t j = begin / to; j * to < end; ++j) {
            const std::int64_t covered = std::min(end, (j + 1) * to) - std::max(begin, j * to);
            own.push_back({static_cast<int>(j), static_cast<Sum>(covered)});
        }
        taps.of.push_back(std::move(own));
    }
    return taps;
}

/// In units of half a target pixel the centre of target pixel i lies at (2 i + 1) times `from`, that of
/// source pixel j at (2 j + 1) times `to`; neighbouring source pixels are 2 `to` apart.
Taps linearTaps(int from, int to)
{
    const std::int64_t apart = 2 * std::int64_t{to};
    Taps taps{{}, static_cast<Sum>(apart)};
    for (std::int64_t i = 0; i < to; ++i) {
        const std::int64_t behindFirst = std::max<std::int64_t>(0, (2 * i + 1) * from - to);
        const auto left = static_cast<int>(behindFirst / apart);
        const int right = std::min(left + 1, from - 1);
        const std::int64_t share = behindFirst % apart;
        taps.of.push_back({{left, static_cast<Sum>(apart - share)}, {right, static_cast<Sum>(share)}});
    }
    return taps;
}

Taps tapsFor(int from, int to)
{
    return to > from ? linearTaps(from, to) : areaTaps(from, to);
}

/// Weighted sums of the channels; the colours are weighted by alpha as well.
struct Mixture
{
    void add(std::uint32_t pixel, Sum weight)
    {
        const Sum alphaWeight = weight * (pixel >> 24);
        alpha += alphaWeight;
        red += alphaWeight * ((pixel >> 16) & 0xFF);
        green += alphaWeight * ((pixel >> 8) & 0xFF);
        blue += alphaWeight * (pixel & 0xFF);
    }

    std::uint32_t pixel(Sum total) const
    {
        const Sum opacity = rounded(alpha, total);
        if (opacity == 0)
            return 0;
        return static_cast<std::uint32_t>(opacity << 24 | rounded(red, alpha) << 16 |
                                          rounded(green, alpha) << 8 | rounded(blue, alpha));
    }

    static Sum rounded(Sum value, Sum by) { return (value + by / 2) / by; }

    Sum alpha = 0;
    Sum red = 0;
    Sum green = 0;
    Sum blue = 0;
};

} // namespace

StripPixels scaledStrip(const StripPixels& strip, const ImageSize& target)
{
    const Taps columns = tapsFor(strip.image.width, target.width);
    const Taps rows = tapsFor(strip.image.height, target.height);
    StripPixels result(target, strip.count);
    std::size_t next = 0;
    for (const std::vector<Tap>& row : rows.of)
        for (int image = 0; image < strip.count; ++image)
            for (const std::vector<Tap>& column : columns.of) {
                Mixture mixture;
                for (const Tap& y : row)
                    for (const Tap& x : column)
                        mixture.add(
                            strip.pixels[static_cast<std::size_t>(y.source) *
                                             static_cast<std::size_t>(strip.width()) +
                                         static_cast<std::size_t>(image * strip.image.width + x.source)],
                            y.weight * x.weight);
                result.pixels[next++] = mixture.pixel(columns.total * rows.total);
            }
    return result;
}

} // namespace ovoui::images
