// Whatever the text and however it is cut: the same records or the same error, and what was read can be
// written and read again. The first byte is the size of the pieces; the first line of the rest is the header.
#include "Check.h"

#include <ovocor/CsvParser.h>
#include <ovocor/OvoError.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace
{

struct Field
{
    std::wstring text;
    bool supplied;

    bool operator==(const Field& other) const { return text == other.text && supplied == other.supplied; }
};

struct Result
{
    std::vector<std::vector<Field>> records;
    std::wstring error;
};

void take(OVO::CSVParser& parser, Result& result)
{
    while (const OVO::CSVRecord* record = parser.next()) {
        demand(record->fields.size() == parser.columns().size(), "a field for each column");
        std::vector<Field> fields;
        for (const OVO::CSVField& field : record->fields) {
            demand(field.supplied || field.text.empty(), "no text in a field that is missing");
            fields.push_back({std::wstring(field.text), field.supplied});
        }
        demand(fields.front().supplied, "no record without a field");
        result.records.push_back(fields);
    }
}

Result parse(const std::wstring& header, std::wstring_view text, std::size_t piece)
{
    Result result;
    try {
        OVO::CSVParser parser(header);
        for (std::size_t at = 0; at < text.size(); at += piece) {
            parser.feed(text.substr(at, piece));
            take(parser, result);
        }
        parser.finish();
        take(parser, result);
    } catch (const OvoError& error) {
        result.error = error.wwhat();
        demand(!result.error.empty(), "an error has a text");
    }
    return result;
}

std::wstring written(const std::vector<std::vector<Field>>& records)
{
    std::wstring text;
    for (const std::vector<Field>& record : records) {
        for (const Field& field : record) {
            if (!field.supplied)
                continue;
            text += &field == &record.front() ? L"\"" : L",\"";
            for (const wchar_t c : field.text)
                text += c == L'"' ? std::wstring(L"\"\"") : std::wstring(1, c);
            text += L'"';
        }
        text += L"\r\n";
    }
    return text;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const std::size_t piece = 1 + data[0] % 16;
    const std::wstring all(data + 1, data + size);
    const std::size_t headerEnd = std::min(all.find(L'\n'), all.size());
    const std::wstring header = all.substr(0, headerEnd);
    const std::wstring text = all.substr(headerEnd);

    const Result whole = parse(header, text, text.size() + 1);
    const Result pieces = parse(header, text, piece);
    demand(whole.records == pieces.records, "the same records");
    demand(whole.error == pieces.error, "the same error");

    if (!whole.records.empty()) {
        const Result again = parse(header, written(whole.records), piece);
        demand(again.error.empty(), "what was read can be read again");
        demand(again.records == whole.records, "as the same records");
    }
    return 0;
}
