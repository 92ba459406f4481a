// The filter in three forms that give the same bits: one pixel at a time for the edges, and for all others
// eight or sixteen channels at once, with SSE2, which every x86-64 processor has, or with AVX2. Sums of bytes
// are taken in whole numbers of 16 bits, in which they are exact; the rest is single-precision arithmetic in
// the order of the formula. Rounding differences are visible where a result lies between two bytes, so fused
// operations, which round once less, must not be used here.
#include <ovoui/images/core/SharpenFilter.h>

#include <immintrin.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <vector>

namespace ovoui::images
{

namespace
{

constexpr int kChannels = 4;
constexpr short kCentreTimes =
    9; ///< the sum of all nine holds the centre once more than the eight neighbours do
constexpr float kStrength = 0.075f;
constexpr float kHalf = 0.5f; ///< rounds half up, together with the truncation

/// Three rows as bytes, not yet sharpened; `count` is the number of channels in each.
struct Rows
{
    const std::uint8_t* above;
    const std::uint8_t* centre;
    const std::uint8_t* below;
    int count;
};

/// Adds the three rows, channel by channel. The compiler makes vector instructions of it.
[[gnu::always_inline]] inline void addRows(const Rows& rows, std::uint16_t* __restrict sums)
{
    for (int i = 0; i < rows.count; ++i)
        sums[i] = static_cast<std::uint16_t>(rows.above[i] + rows.centre[i] + rows.below[i]);
}

/// A new value from the old one and the sum of it and its eight neighbours.
std::uint8_t sharpened(int centre, int sumOfNine)
{
    const float value =
        static_cast<float>(centre) + kStrength * static_cast<float>(kCentreTimes * centre - sumOfNine);
    return static_cast<std::uint8_t>(std::clamp(value, 0.0f, 255.0f) + kHalf);
}

/// From `from` to the last but one pixel, one channel at a time.
void sharpenOneByOne(const Rows& rows, const std::uint16_t* sums, std::uint8_t* out, int from)
{
    for (int i = from; i < rows.count - kChannels; ++i)
        out[i] = sharpened(rows.centre[i], sums[i - kChannels] + sums[i] + sums[i + kChannels]);
}

// SSE2. Values out of range need no care: packing limits them to 0 to 255.

__m128i sharpenedFour(__m128i centre, __m128i difference)
{
    const __m128 value =
        _mm_add_ps(_mm_cvtepi32_ps(centre), _mm_mul_ps(_mm_set1_ps(kStrength), _mm_cvtepi32_ps(difference)));
    return _mm_cvttps_epi32(_mm_add_ps(value, _mm_set1_ps(kHalf)));
}

__m128i sharpenedEight(const std::uint8_t* centre, const std::uint16_t* sums)
{
    const auto load = [](const void* from) { return _mm_loadu_si128(static_cast<const __m128i*>(from)); };
    const __m128i zero = _mm_setzero_si128();
    const __m128i c = _mm_unpacklo_epi8(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(centre)), zero);
    const __m128i sum =
        _mm_add_epi16(_mm_add_epi16(load(sums - kChannels), load(sums)), load(sums + kChannels));
    const __m128i d = _mm_sub_epi16(_mm_mullo_epi16(c, _mm_set1_epi16(kCentreTimes)), sum);
    const __m128i low =
        sharpenedFour(_mm_unpacklo_epi16(c, zero), _mm_srai_epi32(_mm_unpacklo_epi16(d, d), 16));
    const __m128i high =
        sharpenedFour(_mm_unpackhi_epi16(c, zero), _mm_srai_epi32(_mm_unpackhi_epi16(d, d), 16));
    return _mm_packs_epi32(low, high);
}

void sharpenInnerBaseline(const Rows& rows, std::uint16_t* sums, std::uint8_t* out)
{
    addRows(rows, sums);
    int i = kChannels;
    for (; i + 8 <= rows.count - kChannels; i += 8) {
        const __m128i words = sharpenedEight(rows.centre + i, sums + i);
        _mm_storel_epi64(reinterpret_cast<__m128i*>(out + i), _mm_packus_epi16(words, words));
    }
    sharpenOneByOne(rows, sums, out, i);
}

// AVX2: the same, twice as wide.

[[gnu::target("avx2")]] __m256i sharpenedEightWide(__m256i centre, __m256i difference)
{
    const __m256 value = _mm256_add_ps(
        _mm256_cvtepi32_ps(centre), _mm256_mul_ps(_mm256_set1_ps(kStrength), _mm256_cvtepi32_ps(difference)));
    return _mm256_cvttps_epi32(_mm256_add_ps(value, _mm256_set1_ps(kHalf)));
}

[[gnu::target("avx2")]] void sharpenInnerAvx2(const Rows& rows, std::uint16_t* sums, std::uint8_t* out)
{
    addRows(rows, sums);
    const __m256i zero = _mm256_setzero_si256();
    const int end = rows.count - kChannels;
    int i = kChannels;
    while (i + 16 <= end) {
        const auto* at = reinterpret_cast<const __m256i*>(sums + i);
        const auto* left = reinterpret_cast<const __m256i*>(sums + i - kChannels);
        const auto* right = reinterpret_cast<const __m256i*>(sums + i + kChannels);
        const __m256i c =
            _mm256_cvtepu8_epi16(_mm_loadu_si128(reinterpret_cast<const __m128i*>(rows.centre + i)));
        const __m256i sum = _mm256_add_epi16(
            _mm256_add_epi16(_mm256_loadu_si256(left), _mm256_loadu_si256(at)), _mm256_loadu_si256(right));
        const __m256i d = _mm256_sub_epi16(_mm256_mullo_epi16(c, _mm256_set1_epi16(kCentreTimes)), sum);
        const __m256i low = sharpenedEightWide(_mm256_unpacklo_epi16(c, zero),
                                               _mm256_srai_epi32(_mm256_unpacklo_epi16(d, d), 16));
        const __m256i high = sharpenedEightWide(_mm256_unpackhi_epi16(c, zero),
                                                _mm256_srai_epi32(_mm256_unpackhi_epi16(d, d), 16));
        const __m256i words = _mm256_packs_epi32(low, high);
        _mm_storeu_si128(reinterpret_cast<__m128i*>(out + i),
                         _mm_packus_epi16(_mm256_castsi256_si128(words), _mm256_extracti128_si256(words, 1)));
        i += 16;
        if (i < end && i + 16 > end)
            i = end - 16; // the last one overlaps the one before
    }
    _mm256_zeroupper(); // or what follows, written for SSE, would be slowed down
    sharpenOneByOne(rows, sums, out, i);
}

void sharpenFirstPixel(const Rows& rows, const std::uint16_t* sums, std::uint8_t* out)
{
    for (int i = 0; i < kChannels; ++i)
        out[i] = sharpened(rows.centre[i], static_cast<std::uint16_t>(2 * sums[i] + sums[i + kChannels]));
}

void sharpenLastPixel(const Rows& rows, std::uint8_t* out)
{
    const int last = rows.count - kChannels;
    const int left = std::max(last - kChannels, 0);
    for (int i = 0; i < kChannels; ++i) {
        const int sum = 3 * rows.above[left + i] + 2 * rows.above[last + i] + 2 * rows.centre[last + i] +
                        2 * rows.below[last + i];
        out[last + i] = sharpened(rows.centre[last + i], static_cast<std::uint16_t>(sum));
    }
}

/// The rows that are needed unsharpened while the block changes: on the stack for the size of a toolbar's
/// images.
class Scratch
{
public:
    explicit Scratch(int width)
        : m_width(static_cast<std::size_t>(width))
    {
        if (m_width > kOnStack)
            m_allocated.resize(kParts * m_width);
    }

    std::uint32_t* row(int which) { return data() + static_cast<std::size_t>(which) * m_width; }
    std::uint16_t* sums() { return reinterpret_cast<std::uint16_t*>(data() + 2 * m_width); }

private:
    static constexpr std::size_t kOnStack = 256; ///< pixels in a row, which makes 4 KB in all
    static constexpr std::size_t kParts = 4;     ///< two rows, and the sums, which take two bytes a channel

    std::uint32_t* data() { return m_allocated.empty() ? m_stack.data() : m_allocated.data(); }

    std::size_t m_width;
    std::array<std::uint32_t, kParts * kOnStack> m_stack;
    std::vector<std::uint32_t> m_allocated;
};

const std::uint8_t* bytes(const std::uint32_t* pixels)
{
    return reinterpret_cast<const std::uint8_t*>(pixels);
}

} // namespace

SharpenCode fastestSharpenCode()
{
    static const bool avx2 = __builtin_cpu_supports("avx2") != 0;
    return avx2 ? SharpenCode::Avx2 : SharpenCode::Baseline;
}

void sharpen(const PixelBlock& block)
{
    sharpen(block, fastestSharpenCode());
}

void sharpen(const PixelBlock& block, SharpenCode code)
{
    if (block.width <= 0 || block.height <= 0)
        return;
    const auto inner = code == SharpenCode::Avx2 ? &sharpenInnerAvx2 : &sharpenInnerBaseline;
    const std::size_t rowSize = static_cast<std::size_t>(block.width) * sizeof(std::uint32_t);
    Scratch scratch(block.width);
    std::memcpy(scratch.row(1), block.pixels, rowSize); // above the first row is that row itself
    for (int y = 0; y < block.height; ++y) {
        std::uint32_t* const pixels = block.pixels + y * block.stride;
        std::uint32_t* const centre = scratch.row(y % 2);
        std::memcpy(centre, pixels, rowSize);
        const bool last = y + 1 == block.height;
        const Rows rows{bytes(scratch.row((y + 1) % 2)), bytes(centre),
                        bytes(last ? centre : pixels + block.stride), block.width * kChannels};
        auto* const out = reinterpret_cast<std::uint8_t*>(pixels);
        inner(rows, scratch.sums(), out);
        if (block.width > 1)
            sharpenFirstPixel(rows, scratch.sums(), out);
        sharpenLastPixel(rows, out);
    }
}

} // namespace ovoui::images
