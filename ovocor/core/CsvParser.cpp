#include <ovocor/CsvParser.h>

#include <ovocor/OvoError.h>
#include <ovocor/core/CatalogueText.h>

#include <algorithm>
#include <limits>
#include <stdexcept>

namespace OVO
{

namespace
{

constexpr wchar_t kComma = L',';
constexpr wchar_t kQuote = L'"';

[[noreturn]] void fail(OvoMessageId reason, std::size_t line)
{
    throw OvoError(catalogueText(OVOMSG_CSV_LINE, {std::to_wstring(line), catalogueText(reason)}));
}

/// Whether a character ends a run of plain ones. All of these lie at or below the comma, which decides for
/// most characters at once.
bool stopsPlain(wchar_t c)
{
    return c <= kComma && (c == kComma || c == kQuote || c == L'\n' || c == L'\r');
}

} // namespace

CSVParser::CSVParser(std::size_t columnLimit)
    : m_columnLimit(columnLimit)
{
}

CSVParser::CSVParser(std::wstring_view header)
{
    CSVParser rows(std::numeric_limits<std::size_t>::max());
    rows.feed(header);
    rows.finish();
    const CSVRecord* names = rows.next();
    if (!names)
        throw OvoError(catalogueText(OVOMSG_CSV_NO_COLUMNS));
    for (const CSVField& name : names->fields)
        m_columns.emplace_back(name.text);
    if (rows.next())
        throw OvoError(catalogueText(OVOMSG_CSV_HEADER_ROWS));
    m_columnLimit = m_columns.size();
}

CSVParser::~CSVParser() = default;

void CSVParser::feed(std::wstring_view text)
{
    if (m_finished)
        throw std::logic_error("text after the end of the comma-separated text");
    discardDelivered();
    m_text += text;
}

void CSVParser::finish()
{
    m_finished = true;
}

const CSVRecord* CSVParser::next()
{
    if (m_delivered)
        beginRow();
    while (true) {
        const Ended ended = scanField();
        if (ended == Ended::Nothing)
            return nullptr;
        const bool blank = ended == Ended::Row && m_fieldCount == 0 && m_state != State::QuoteClosed &&
                           m_field.begin == m_field.end;
        keepField();
        if (blank)
            beginRow();
        else if (ended == Ended::Row)
            return deliver();
    }
}

void CSVParser::beginRow()
{
    m_delivered = false;
    m_fields.clear();
    m_fieldCount = 0;
    m_rowBegin = m_position;
    m_rowLine = m_line;
}

/// Takes the delivered rows out of the text once they are the larger part of it: moving the rest then costs
/// no more than reading them did.
void CSVParser::discardDelivered()
{
    if (m_delivered)
        beginRow();
    const std::size_t done = m_rowBegin;
    if (done < m_text.size() - done)
        return;
    m_text.erase(0, done);
    for (Span& field : m_fields) {
        field.begin -= done;
        field.end -= done;
    }
    m_field.begin -= done;
    m_field.end -= done;
    m_position -= done;
    m_rowBegin = 0;
}

CSVParser::Ended CSVParser::scanField()
{
    if (m_state == State::FieldStart)
        beginField();
    if (m_state == State::Plain)
        scanPlain();
    else if (m_state == State::Quoted)
        scanQuoted();
    return m_position < m_text.size() ? takeSeparator() : takeEndOfText();
}

void CSVParser::beginField()
{
    if (m_position < m_text.size()) {
        m_state = m_text[m_position] == kQuote ? State::Quoted : State::Plain;
        m_quoteLine = m_line;
        if (m_state == State::Quoted)
            ++m_position;
    }
    m_field = {m_position, m_position};
}

void CSVParser::scanPlain()
{
    const std::size_t size = m_text.size();
    const wchar_t* const text = m_text.data();
    std::size_t at = m_position;
    while (true) {
        while (at < size && !stopsPlain(text[at]))
            ++at;
        // A return belongs to the field when something else than a line feed follows.
        if (at + 1 >= size || text[at] != L'\r' || text[at + 1] == L'\n')
            break;
        ++at;
    }
    m_position = at;
    m_field.end = at;
}

void CSVParser::scanQuoted()
{
    while (m_position < m_text.size()) {
        unfold(std::min(m_text.find(kQuote, m_position), m_text.size()));
        const bool followed = m_position + 1 < m_text.size();
        if (m_position == m_text.size() || (!followed && !m_finished))
            return; // what follows the quote tells whether it closes the field
        if (!followed || m_text[m_position + 1] != kQuote) {
            m_state = State::QuoteClosed;
            ++m_position;
            return;
        }
        m_text[m_field.end++] = kQuote;
        m_position += 2;
    }
}

/// Adds the characters up to `end` to the field. They only move when a doubled quote came before them.
void CSVParser::unfold(std::size_t end)
{
    const auto first = m_text.begin() + static_cast<std::ptrdiff_t>(m_position);
    const auto last = m_text.begin() + static_cast<std::ptrdiff_t>(end);
    m_line += static_cast<std::size_t>(std::count(first, last, L'\n'));
    if (m_field.end != m_position)
        std::copy(first, last, m_text.begin() + static_cast<std::ptrdiff_t>(m_field.end));
    m_field.end += end - m_position;
    m_position = end;
}

CSVParser::Ended CSVParser::takeSeparator()
{
    if (m_state == State::Quoted)
        return Ended::Nothing;
    const wchar_t c = m_text[m_position];
    if (c == kComma) {
        ++m_position;
        return Ended::Field;
    }
    if (c == L'\r' && m_position + 1 == m_text.size()) {
        if (!m_finished)
            return Ended::Nothing;
        ++m_position; // a line end cut in half
        return Ended::Row;
    }
    if (c == L'\n' || (c == L'\r' && m_text[m_position + 1] == L'\n')) {
        m_position += c == L'\n' ? 1 : 2;
        ++m_line;
        return Ended::Row;
    }
    fail(m_state == State::QuoteClosed ? OVOMSG_CSV_QUOTE_CONTINUES : OVOMSG_CSV_QUOTE_INSIDE, m_line);
}

CSVParser::Ended CSVParser::takeEndOfText()
{
    if (!m_finished)
        return Ended::Nothing;
    if (m_state == State::Quoted)
        fail(OVOMSG_CSV_QUOTE_OPEN, m_quoteLine);
    const bool rowBegun = m_fieldCount > 0 || m_state != State::FieldStart;
    return rowBegun ? Ended::Row : Ended::Nothing;
}

void CSVParser::keepField()
{
    if (m_fields.size() < m_columnLimit)
        m_fields.push_back(m_field);
    ++m_fieldCount;
    m_state = State::FieldStart;
}

const CSVRecord* CSVParser::deliver()
{
    m_record.line = m_rowLine;
    m_record.fields.assign(std::max(m_columns.size(), m_fields.size()), CSVField{});
    for (std::size_t i = 0; i < m_fields.size(); ++i) {
        const Span& field = m_fields[i];
        m_record.fields[i] = {std::wstring_view(m_text).substr(field.begin, field.end - field.begin), true};
    }
    m_delivered = true;
    return &m_record;
}

} // namespace OVO
