// Whatever stands in a file: it is no drawing, or it is drawn, the same way each time, within its limits.
#include "Check.h"

#include <ovosvg/core/Drawing.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <optional>
#include <string_view>
#include <vector>

using namespace ovosvg;

namespace
{

constexpr std::int64_t kWork = 300'000; // more would keep the fuzzer from trying much
constexpr std::size_t kMostNotes = 100;

struct Result
{
    std::vector<std::uint32_t> premultiplied;
    std::vector<std::uint32_t> straight;
    std::vector<SvgNote> notes;
    friend bool operator==(const Result&, const Result&) = default;
};

void checkPlace(const SvgNote& note, std::string_view text)
{
    const auto lines = std::count(text.begin(), text.end(), '\n') + 1;
    demand(note.line >= 1 && note.line <= lines, "the line is there");
    demand(note.column >= 1 && note.column <= static_cast<int>(text.size()) + 1, "the column is there");
    demand(!note.what.empty(), "it says what is the matter");
}

/// What is too large as a whole has no place.
bool isAboutAll(const SvgNote& note)
{
    constexpr std::string_view kLimits[] = {"bytes", "layers", "size", "work"};
    return note.issue == SvgIssue::TooLarge && note.line == 0 && note.column == 0 &&
           std::find(std::begin(kLimits), std::end(kLimits), note.what) != std::end(kLimits);
}

/// None when it is no drawing or too intricate.
std::optional<Result> drawn(std::string_view text, int width, int height)
{
    Result result;
    try {
        const Canvas canvas = Drawing(text).draw(width, height, 0xFF336699, result.notes, Budget(kWork));
        result.premultiplied = canvas.premultiplied();
        result.straight = canvas.straight();
        return result;
    } catch (const SvgFailure& failure) {
        demand(failure.note.issue <= SvgIssue::TooLarge, "a failure");
        if (!isAboutAll(failure.note))
            checkPlace(failure.note, text);
        return std::nullopt;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const int width = 1 + static_cast<int>(size % 20);
    const int height = 1 + static_cast<int>(size / 20 % 20);
    const std::optional<Result> result = drawn(text, width, height);
    demand(result == drawn(text, width, height), "the same each time");
    if (!result)
        return 0;
    demand(result->premultiplied.size() == static_cast<std::size_t>(width * height), "every pixel");
    for (std::size_t i = 0; i < result->premultiplied.size(); ++i) {
        const std::uint32_t pixel = result->premultiplied[i];
        for (int shift = 0; shift < 24; shift += 8)
            demand((pixel >> shift & 0xFF) <= pixel >> 24, "no colour exceeds alpha");
        demand(result->straight[i] >> 24 == pixel >> 24, "one alpha");
    }
    demand(result->notes.size() <= kMostNotes, "few notes");
    for (const SvgNote& note : result->notes) {
        demand(note.issue >= SvgIssue::BadValue, "a remark");
        checkPlace(note, text);
    }
    return 0;
}
