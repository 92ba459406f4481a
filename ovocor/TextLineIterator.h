/// The lines of a text in memory.
///
///     for (TextLineIterator line(text); line; ++line)
///         show(*line);
///     for (const std::wstring_view line : TextLineIterator(text))
///         show(line);
#pragma once

#include <ovocor/export.h>

#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>

/// Goes through the lines of a text, without their line ends.
///
/// A line ends with CRLF, LF, CR, the Unicode line separator (U+2028) or paragraph separator (U+2029). A line
/// end closes a line and does not open another: "a\n" is one line, "\n" one empty line, the empty text none.
class OVOCOR_API TextLineIterator
{
public:
    /// For the standard library: lines are read once, from the first to the last.
    using iterator_concept = std::input_iterator_tag;
    /// For the standard library.
    using difference_type = std::ptrdiff_t;
    /// A line, borrowed from the text.
    using value_type = std::wstring_view;

    /// At the end.
    TextLineIterator() = default;

    /// At the first line. The text is borrowed: it must stay until the lines have been used.
    explicit TextLineIterator(std::wstring_view text);
    explicit TextLineIterator(const wchar_t* text);
    explicit TextLineIterator(std::wstring&&) = delete;

    /// Whether there is a line here.
    explicit operator bool() const { return m_hasLine; }

    /// The current line.
    std::wstring_view operator*() const { return m_line; }
    /// The current line.
    const std::wstring_view* operator->() const { return &m_line; }

    /// To the next line, or to the end. Not at the end.
    TextLineIterator& operator++();
    /// To the next line, or to the end. Not at the end.
    void operator++(int) { ++*this; }

    /// Whether `line` is at the end.
    friend bool operator==(const TextLineIterator& line, std::default_sentinel_t) { return !line; }
    /// For loops over the lines: `line` itself, wherever it is.
    friend TextLineIterator begin(const TextLineIterator& line) { return line; }
    /// For loops over the lines.
    friend std::default_sentinel_t end(const TextLineIterator&) { return {}; }

private:
    void take();

    std::wstring_view m_line;
    std::wstring_view m_rest;
    bool m_hasLine = false;
};
