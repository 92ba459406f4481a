// How the filter is made fast:
//
// The bytes of a row are widened to words, where sums of nine bytes are exact, and turned into floats only
// for the weighting. The order of operations there, a product and then a sum, decides the last bit: it must
// not be changed, and no fused multiplication may be used. Neither clamp appears, since the instructions that
// narrow the results to bytes saturate.
//
// A step makes several pixels of a row from the three rows around it. Steps need all neighbours within the
// row; the last one overlaps the step before it, which does no harm because sources are never overwritten.
// The first and the last column are made one by one.
//
// The block is filtered in place: of what has been overwritten only the row above is needed again, so the
// unfiltered row and the one above it are kept in two scratch rows.
#include <ovoui/images/core/SharpenFilter.h>

#include <cstring>
#include <memory>
#include <utility>

#include <immintrin.h>

namespace ovoui::images
{

namespace
{

/// Differences are weighted 65536 times too large: a power of two, which changes no bit of the product's
/// mantissa.
constexpr float kWeight = 0.075F / 65536.0F;
constexpr float kHalf = 0.5F;

/// Rows up to this width need no allocation: two of them are 4 KB.
constexpr int kStackWidth = 512;

/// The unfiltered rows around the one being made.
struct Rows
{
    const std::uint32_t* above;
    const std::uint32_t* centre;
    const std::uint32_t* below;
};

// SSE2: four pixels a step, two in a register of words

constexpr int kSse2Step = 4;
constexpr int kSse2MinWidth = kSse2Step + 2;

__m128i load(const std::uint32_t* pixels)
{
    return _mm_loadu_si128(reinterpret_cast<const __m128i*>(pixels));
}

__m128i lowWords(__m128i bytes)
{
    return _mm_unpacklo_epi8(bytes, _mm_setzero_si128());
}

__m128i highWords(__m128i bytes)
{
    return _mm_unpackhi_epi8(bytes, _mm_setzero_si128());
}

__m128i sum(__m128i a, __m128i b, __m128i c)
{
    return _mm_add_epi16(_mm_add_epi16(a, b), c);
}

/// The words that two registers of two pixels have in the middle.
__m128i middle(__m128i low, __m128i high)
{
    return _mm_castpd_si128(_mm_shuffle_pd(_mm_castsi128_pd(low), _mm_castsi128_pd(high), 1));
}

/// From the centre's values and the differences in the upper half of each lane.
__m128i weighted(__m128i difference, __m128i centre)
{
    const __m128 change = _mm_mul_ps(_mm_set1_ps(kWeight), _mm_cvtepi32_ps(difference));
    const __m128 value = _mm_add_ps(_mm_cvtepi32_ps(centre), change);
    return _mm_cvttps_epi32(_mm_add_ps(value, _mm_set1_ps(kHalf)));
}

/// Sharpened words, from the centre's and the sum of all nine.
__m128i sharpened(__m128i centre, __m128i nine)
{
    const __m128i ninefold = _mm_add_epi16(_mm_slli_epi16(centre, 3), centre);
    const __m128i difference = _mm_sub_epi16(ninefold, nine);
    const __m128i zero = _mm_setzero_si128();
    const __m128i low = weighted(_mm_unpacklo_epi16(zero, difference), _mm_unpacklo_epi16(centre, zero));
    const __m128i high = weighted(_mm_unpackhi_epi16(zero, difference), _mm_unpackhi_epi16(centre, zero));
    return _mm_packs_epi32(low, high);
}

void stepSse2(const Rows& rows, int x, std::uint32_t* target)
{
    const __m128i aboveLeft = load(rows.above + x - 1);
    const __m128i centreLeft = load(rows.centre + x - 1);
    const __m128i belowLeft = load(rows.below + x - 1);
    // Sums of columns, two at a time: x - 1 and x, x + 1 and x + 2, x + 3 and x + 4.
    const __m128i first = sum(lowWords(aboveLeft), lowWords(centreLeft), lowWords(belowLeft));
    const __m128i second = sum(highWords(aboveLeft), highWords(centreLeft), highWords(belowLeft));
    const __m128i third = sum(highWords(load(rows.above + x + 1)), highWords(load(rows.centre + x + 1)),
                              highWords(load(rows.below + x + 1)));

    const __m128i centre = load(rows.centre + x);
    const __m128i low = sharpened(lowWords(centre), sum(first, middle(first, second), second));
    const __m128i high = sharpened(highWords(centre), sum(second, middle(second, third), third));
    _mm_storeu_si128(reinterpret_cast<__m128i*>(target + x), _mm_packus_epi16(low, high));
}

// AVX2: the same in registers twice as wide, each half of which is a step of its own

constexpr int kAvx2Step = 8;
constexpr int kAvx2MinWidth = kAvx2Step + 2;

[[gnu::target("avx2")]] __m256i loadWide(const std::uint32_t* pixels)
{
    return _mm256_loadu_si256(reinterpret_cast<const __m256i*>(pixels));
}

[[gnu::target("avx2")]] __m256i lowWords(__m256i bytes)
{
    return _mm256_unpacklo_epi8(bytes, _mm256_setzero_si256());
}

[[gnu::target("avx2")]] __m256i highWords(__m256i bytes)
{
    return _mm256_unpackhi_epi8(bytes, _mm256_setzero_si256());
}

[[gnu::target("avx2")]] __m256i sum(__m256i a, __m256i b, __m256i c)
{
    return _mm256_add_epi16(_mm256_add_epi16(a, b), c);
}

[[gnu::target("avx2")]] __m256i middle(__m256i low, __m256i high)
{
    return _mm256_castpd_si256(_mm256_shuffle_pd(_mm256_castsi256_pd(low), _mm256_castsi256_pd(high), 5));
}

[[gnu::target("avx2")]] __m256i weighted(__m256i difference, __m256i centre)
{
    const __m256 change = _mm256_mul_ps(_mm256_set1_ps(kWeight), _mm256_cvtepi32_ps(difference));
    const __m256 value = _mm256_add_ps(_mm256_cvtepi32_ps(centre), change);
    return _mm256_cvttps_epi32(_mm256_add_ps(value, _mm256_set1_ps(kHalf)));
}

[[gnu::target("avx2")]] __m256i sharpened(__m256i centre, __m256i nine)
{
    const __m256i ninefold = _mm256_add_epi16(_mm256_slli_epi16(centre, 3), centre);
    const __m256i difference = _mm256_sub_epi16(ninefold, nine);
    const __m256i zero = _mm256_setzero_si256();
    const __m256i low =
        weighted(_mm256_unpacklo_epi16(zero, difference), _mm256_unpacklo_epi16(centre, zero));
    const __m256i high =
        weighted(_mm256_unpackhi_epi16(zero, difference), _mm256_unpackhi_epi16(centre, zero));
    return _mm256_packs_epi32(low, high);
}

[[gnu::target("avx2")]] void stepAvx2(const Rows& rows, int x, std::uint32_t* target)
{
    const __m256i aboveLeft = loadWide(rows.above + x - 1);
    const __m256i centreLeft = loadWide(rows.centre + x - 1);
    const __m256i belowLeft = loadWide(rows.below + x - 1);
    const __m256i first = sum(lowWords(aboveLeft), lowWords(centreLeft), lowWords(belowLeft));
    const __m256i second = sum(highWords(aboveLeft), highWords(centreLeft), highWords(belowLeft));
    const __m256i third =
        sum(highWords(loadWide(rows.above + x + 1)), highWords(loadWide(rows.centre + x + 1)),
            highWords(loadWide(rows.below + x + 1)));

    const __m256i centre = loadWide(rows.centre + x);
    const __m256i low = sharpened(lowWords(centre), sum(first, middle(first, second), second));
    const __m256i high = sharpened(highWords(centre), sum(second, middle(second, third), third));
    _mm256_storeu_si256(reinterpret_cast<__m256i*>(target + x), _mm256_packus_epi16(low, high));
}

// Rows

/// The four channels of a pixel as words.
__m128i wordsOf(std::uint32_t pixel)
{
    return lowWords(_mm_cvtsi32_si128(static_cast<int>(pixel)));
}

std::uint32_t sharpenedPixel(std::uint32_t centre, __m128i nine)
{
    const __m128i words = sharpened(wordsOf(centre), nine);
    return static_cast<std::uint32_t>(_mm_cvtsi128_si32(_mm_packus_epi16(words, words)));
}

__m128i columnSum(const Rows& rows, int x)
{
    return sum(wordsOf(rows.above[x]), wordsOf(rows.centre[x]), wordsOf(rows.below[x]));
}

__m128i twice(__m128i words)
{
    return _mm_add_epi16(words, words);
}

void sharpenFirstColumn(const Rows& rows, int width, std::uint32_t* target)
{
    const __m128i right = columnSum(rows, width > 1 ? 1 : 0);
    target[0] = sharpenedPixel(rows.centre[0], _mm_add_epi16(twice(columnSum(rows, 0)), right));
}

// The left neighbours beside and below come from the row above: images have always been sharpened so, and
// must stay the same.
void sharpenLastColumn(const Rows& rows, int width, std::uint32_t* target)
{
    const int last = width - 1;
    const __m128i left = wordsOf(rows.above[last - 1]);
    const __m128i column = columnSum(rows, last);
    target[last] = sharpenedPixel(rows.centre[last], _mm_add_epi16(twice(column), sum(left, left, left)));
}

void sharpenOneByOne(const Rows& rows, int width, std::uint32_t* target)
{
    for (int x = 1; x < width - 1; ++x) {
        const __m128i nine = sum(columnSum(rows, x - 1), columnSum(rows, x), columnSum(rows, x + 1));
        target[x] = sharpenedPixel(rows.centre[x], nine);
    }
}

void sharpenInteriorSse2(const Rows& rows, int width, std::uint32_t* target)
{
    if (width < kSse2MinWidth) {
        sharpenOneByOne(rows, width, target);
        return;
    }
    const int last = width - 1 - kSse2Step;
    for (int x = 1; x < last; x += kSse2Step)
        stepSse2(rows, x, target);
    stepSse2(rows, last, target);
}

[[gnu::target("avx2")]] void sharpenInteriorAvx2(const Rows& rows, int width, std::uint32_t* target)
{
    if (width < kAvx2MinWidth) {
        sharpenInteriorSse2(rows, width, target);
        return;
    }
    const int last = width - 1 - kAvx2Step;
    for (int x = 1; x < last; x += kAvx2Step)
        stepAvx2(rows, x, target);
    stepAvx2(rows, last, target);
    _mm256_zeroupper(); // or what follows, written for SSE, would be slowed down
}

void sharpenInterior(const Rows& rows, int width, std::uint32_t* target, SharpenCode code)
{
    switch (code) {
    case SharpenCode::OnePixel:
        sharpenOneByOne(rows, width, target);
        break;
    case SharpenCode::Sse2:
        sharpenInteriorSse2(rows, width, target);
        break;
    case SharpenCode::Avx2:
        sharpenInteriorAvx2(rows, width, target);
        break;
    }
}

void sharpenRow(const Rows& rows, int width, std::uint32_t* target, SharpenCode code)
{
    sharpenFirstColumn(rows, width, target);
    if (width == 1)
        return;
    sharpenInterior(rows, width, target, code);
    sharpenLastColumn(rows, width, target);
}

/// Room for two rows of unfiltered pixels: on the stack for the size of a toolbar's images.
class ScratchRows
{
public:
    explicit ScratchRows(int width)
        : m_width(static_cast<std::size_t>(width))
    {
        if (width > kStackWidth)
            m_allocated = std::make_unique_for_overwrite<std::uint32_t[]>(2 * m_width);
    }

    std::uint32_t* first() { return m_allocated ? m_allocated.get() : m_own; }
    std::uint32_t* second() { return first() + m_width; }

private:
    const std::size_t m_width;
    std::unique_ptr<std::uint32_t[]> m_allocated;
    std::uint32_t m_own[2 * kStackWidth];
};

} // namespace

SharpenCode fastestSharpenCode()
{
    static const bool avx2 = __builtin_cpu_supports("avx2") != 0;
    return avx2 ? SharpenCode::Avx2 : SharpenCode::Sse2;
}

void sharpen(const PixelBlock& block)
{
    sharpen(block, fastestSharpenCode());
}

void sharpen(const PixelBlock& block, SharpenCode code)
{
    if (block.width <= 0 || block.height <= 0)
        return;
    const std::size_t rowBytes = static_cast<std::size_t>(block.width) * sizeof *block.pixels;
    ScratchRows scratch(block.width);
    std::uint32_t* above = scratch.first();
    std::uint32_t* centre = scratch.second();
    std::memcpy(above, block.pixels, rowBytes);
    for (int y = 0; y < block.height; ++y) {
        std::uint32_t* const row = block.pixels + y * block.stride;
        std::memcpy(centre, row, rowBytes);
        const std::uint32_t* const below = y + 1 < block.height ? row + block.stride : centre;
        sharpenRow({above, centre, below}, block.width, row, code);
        std::swap(above, centre);
    }
}

} // namespace ovoui::images
