/// Where the lines of a text end when it is given a certain width. Plain values, no windows.
#pragma once

#include <cstddef>
#include <functional>
#include <string_view>
#include <vector>

namespace ovoui::frame
{

/// Blanks of a text that are not shown; in place of them a new line begins, or nothing when they stand at the
/// end of a paragraph. Without blanks (`begin` equal to `end`) the line is broken between two characters.
struct SoftBreak
{
    std::size_t begin;
    std::size_t end;
    bool newLine;

    friend bool operator==(const SoftBreak&, const SoftBreak&) = default;
};

/// How wide texts are, in pixels.
struct TextRuler
{
    std::function<int(std::wstring_view)> extent; ///< of a text without tabs
    int tabWidth;                                 ///< between two tab stops
};

/// What happens to a word that is wider than a line.
enum class LongWords
{
    Broken, ///< it goes on in the next line
    Whole   ///< it makes its line wider
};

/// What the platform knows of a character.
struct CharacterBreak
{
    bool before = false;  ///< the language allows a line to begin with it
    bool isSpace = false; ///< it belongs to the end of a line rather than to a beginning
};

/// For each character whether a line may begin with it: behind blanks, and where else the platform allows it.
/// `known` is empty where it does not tell.
std::vector<bool> lineStarts(std::wstring_view text, const std::vector<CharacterBreak>& known);

/// The breaks that keep the lines of `text` within `width` pixels. Paragraphs end with CR LF.
/// `mayBreakBefore` holds for each character whether a line may begin with it. A word that is kept whole is
/// broken all the same at 16384 pixels, since controls count in 16 bits.
std::vector<SoftBreak> softBreaks(std::wstring_view text, const std::vector<bool>& mayBreakBefore, int width,
                                  LongWords longWords, const TextRuler& ruler);

} // namespace ovoui::frame
