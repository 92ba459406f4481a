/// Comma-separated values, fed in pieces.
///
///     OVO::CSVParser parser(L"Name,Size");
///     while (reader.readLine(line)) {
///         parser.feed(line);
///         parser.feed(L"\n");
///         while (const OVO::CSVRecord* record = parser.next())
///             add((*record)[0].text, (*record)[1].text);
///     }
///     parser.finish();
///     while (const OVO::CSVRecord* record = parser.next()) ...
#pragma once

#include <ovocor/export.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace OVO
{

/// One field of a record.
struct CSVField
{
    std::wstring_view text; ///< without the quotes around it; valid as long as its record
    bool supplied = false;  ///< the row has this field, empty or not
};

/// One row: as many fields as the header has columns, in the header's order.
struct CSVRecord
{
    std::vector<CSVField> fields; ///< one a column
    std::size_t line = 0;         ///< where the row begins, counted from 1

    /// The field of a `column`, counted from 0, which the header must have.
    const CSVField& operator[](std::size_t column) const { return fields[column]; }
};

/// Splits text into records, as RFC 4180 says.
///
/// Fields are separated by commas; a field in double quotes may hold commas, line breaks and doubled quotes.
/// Spaces belong to the field. Rows end with LF or CRLF; a CR elsewhere in an unquoted field is a character
/// like others. Empty lines are skipped. A short row supplies fewer fields; fields beyond the last column are
/// ignored.
///
/// The pieces may be cut anywhere, also within a quoted field or a CRLF. Memory: the text that was fed and
/// not asked for yet, and one record.
class OVOCOR_API CSVParser
{
public:
    /// `header` names the columns, in the form of a row. Throws OvoError when it names none, is more than one
    /// row, or is not a valid row.
    explicit CSVParser(std::wstring_view header);
    CSVParser(const CSVParser&) = delete;
    CSVParser& operator=(const CSVParser&) = delete;
    ~CSVParser();

    /// The names that the header gave, in its order.
    const std::vector<std::wstring>& columns() const { return m_columns; }

    /// Adds text. Not to be called after `finish` (std::logic_error).
    void feed(std::wstring_view text);

    /// Says that the text is complete: its last row needs no line end.
    void finish();

    /// The next complete record, or null when more text is needed or, after `finish`, when there is none. It
    /// is valid until this parser is used again.
    ///
    /// Throws OvoError, naming the line, for a quote in the wrong place and, after `finish`, for text that
    /// ends inside quotes (the line is the one with the opening quote). The parser stays at the place of the
    /// error.
    const CSVRecord* next();

private:
    struct Span
    {
        std::size_t begin;
        std::size_t end;
    };
    enum class State
    {
        FieldStart,
        Plain,
        Quoted,
        QuoteClosed
    };
    enum class Ended
    {
        Nothing, ///< more text is needed, or there is none
        Field,
        Row
    };

    explicit CSVParser(std::size_t columnLimit);

    void beginRow();
    void discardDelivered();
    Ended scanField();
    void beginField();
    void scanPlain();
    void scanQuoted();
    void unfold(std::size_t end);
    Ended takeSeparator();
    Ended takeEndOfText();
    void keepField();
    const CSVRecord* deliver();

    std::vector<std::wstring> m_columns;
    std::size_t m_columnLimit = 0;
    CSVRecord m_record;
    bool m_delivered = false; // m_record is the current row
    bool m_finished = false;

    std::wstring m_text;        // quoted fields are unfolded in place
    std::size_t m_position = 0; // of the next character to look at
    std::size_t m_line = 1;

    std::size_t m_rowBegin = 0;
    std::size_t m_rowLine = 1;
    std::vector<Span> m_fields; // of the current row, as far as there are columns
    std::size_t m_fieldCount = 0;

    State m_state = State::FieldStart;
    Span m_field{};
    std::size_t m_quoteLine = 1;
};

} // namespace OVO
