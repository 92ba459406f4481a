#include <ovocor/CsvParser.h>

#include <ovocor/OvoError.h>

#include <gtest/gtest.h>

#include <random>
#include <stdexcept>
#include <string>
#include <vector>

using OVO::CSVParser;
using OVO::CSVRecord;

namespace
{

constexpr const wchar_t* kMissing = L"<missing>";

using Record = std::vector<std::wstring>;
using Records = std::vector<Record>;

Record fieldsOf(const CSVRecord& record)
{
    Record fields;
    for (const OVO::CSVField& field : record.fields)
        fields.emplace_back(field.supplied ? field.text : kMissing);
    return fields;
}

void take(CSVParser& parser, Records& records)
{
    while (const CSVRecord* record = parser.next())
        records.push_back(fieldsOf(*record));
}

/// All records of a text that is fed in pieces of one size, each asked for as soon as possible.
Records parse(std::wstring_view text, std::size_t piece = 1 << 20, const wchar_t* header = L"A,B,C")
{
    CSVParser parser(header);
    Records records;
    for (std::size_t at = 0; at < text.size(); at += piece) {
        parser.feed(text.substr(at, piece));
        take(parser, records);
    }
    parser.finish();
    take(parser, records);
    return records;
}

/// The error's text, or nothing.
std::wstring errorOf(std::wstring_view text, std::size_t piece = 1 << 20)
{
    try {
        parse(text, piece);
    } catch (const OvoError& error) {
        return error.wwhat();
    }
    return {};
}

struct Row
{
    const char* what;
    const wchar_t* text;
    Records records;
};

const std::vector<Row>& rows()
{
    static const std::vector<Row> all{
        {"nothing", L"", {}},
        {"one row", L"1,2,3\n", {{L"1", L"2", L"3"}}},
        {"no line end at the end", L"1,2,3", {{L"1", L"2", L"3"}}},
        {"both line ends",
         L"1,2,3\r\n4,5,6\n7,8,9\r\n",
         {{L"1", L"2", L"3"}, {L"4", L"5", L"6"}, {L"7", L"8", L"9"}}},
        {"empty fields", L",,\n", {{L"", L"", L""}}},
        {"an empty last field at the end", L"1,2,", {{L"1", L"2", L""}}},
        {"a short row", L"1,2\n", {{L"1", L"2", kMissing}}},
        {"a shorter row", L"1", {{L"1", kMissing, kMissing}}},
        {"a short row with an empty field", L"1,\n", {{L"1", L"", kMissing}}},
        {"a long row", L"1,2,3,4,\"5\",\n6,7,8\n", {{L"1", L"2", L"3"}, {L"6", L"7", L"8"}}},
        {"empty lines", L"\n\r\n1,2,3\n\n\r\n4,5,6\n\n", {{L"1", L"2", L"3"}, {L"4", L"5", L"6"}}},
        {"spaces belong to the field",
         L" 1 , 2\t,3 \n \n",
         {{L" 1 ", L" 2\t", L"3 "}, {L" ", kMissing, kMissing}}},
        {"quotes", L"\"1\",\"2\",\"3\"\n", {{L"1", L"2", L"3"}}},
        {"an empty quoted field alone is a row", L"\"\"\n", {{L"", kMissing, kMissing}}},
        {"empty quoted fields", L"\"\",2,\"\"\r\n", {{L"", L"2", L""}}},
        {"commas in quotes", L"\"1,2\",\",\",3\n", {{L"1,2", L",", L"3"}}},
        {"doubled quotes", L"\"a\"\"b\",\"\"\"\",\"\"\"\"\"\"\n", {{L"a\"b", L"\"", L"\"\""}}},
        {"doubled quotes at the ends", L"\"\"\"a\"\"\",b,\"\"\"c\"\n", {{L"\"a\"", L"b", L"\"c"}}},
        {"line breaks in quotes",
         L"\"a\nb\",\"c\r\nd\",\"e\rf\"\n1,2,3\n",
         {{L"a\nb", L"c\r\nd", L"e\rf"}, {L"1", L"2", L"3"}}},
        {"a quoted field at the end", L"1,2,\"3\"", {{L"1", L"2", L"3"}}},
        {"a quoted field before half a line end", L"1,2,\"3\"\r", {{L"1", L"2", L"3"}}},
        {"a return inside a field", L"a\rb,\r,\r\n", {{L"a\rb", L"\r", L""}}},
        {"returns before a line end", L"a\r\r\n", {{L"a\r", kMissing, kMissing}}},
        {"half a line end at the end", L"1,2,3\r", {{L"1", L"2", L"3"}}},
        {"half a line end alone", L"1,2,3\n\r", {{L"1", L"2", L"3"}}},
        {"characters around the comma",
         L"!+-.\t\u0101\u20AC,\U0001F333,\u2028\n",
         {{L"!+-.\t\u0101\u20AC", L"\U0001F333", L"\u2028"}}},
    };
    return all;
}

struct BadRow
{
    const char* what;
    const wchar_t* text;
    const wchar_t* line;
};

constexpr BadRow kBadRows[] = {
    {"a quote inside a plain field", L"1,2,3\n1,a\"b,3\n", L"Line 2 "},
    {"a quote after a space", L" \"1\",2,3\n", L"Line 1 "},
    {"text after a closing quote", L"1,2,3\n\n\"1\"x,2,3\n", L"Line 3 "},
    {"a space after a closing quote", L"\"1\" ,2,3\n", L"Line 1 "},
    {"a return after a closing quote", L"\"1\"\r,2,3\n", L"Line 1 "},
    {"a quote behind line breaks in quotes", L"\"a\nb\nc\",x\"\n", L"Line 3 "},
    {"text that ends inside quotes", L"1,2,3\r\n4,\"5\n6\n7", L"Line 2 "},
    {"text that ends behind a doubled quote", L"\"1\"\"", L"Line 1 "},
    {"an opening quote at the end", L"1,2,3\n1,\"", L"Line 2 "},
    {"a quote in a field that no column takes", L"1,2,3,4\"\n", L"Line 1 "},
};

} // namespace

TEST(CsvParser, KnowsItsColumns)
{
    EXPECT_EQ(CSVParser(L"Kind,Name\r\n").columns(), (Record{L"Kind", L"Name"}));
    EXPECT_EQ(CSVParser(L"\"a,b\", c ,").columns(), (Record{L"a,b", L" c ", L""}));
}

TEST(CsvParser, RefusesABadHeader)
{
    for (const wchar_t* header : {L"", L"\n\r\n", L"A,B\nC,D", L"A\"B", L"\"A"})
        EXPECT_THROW(CSVParser{header}, OvoError) << testing::PrintToString(std::wstring(header));
}

TEST(CsvParser, ReadsRecords)
{
    for (const Row& row : rows())
        EXPECT_EQ(parse(row.text), row.records) << row.what;
}

TEST(CsvParser, ReadsTheSameInPiecesOfAnySize)
{
    for (const Row& row : rows())
        for (std::size_t piece = 1; piece <= std::wstring_view(row.text).size(); ++piece)
            ASSERT_EQ(parse(row.text, piece), row.records) << row.what << " in pieces of " << piece;
}

TEST(CsvParser, FindsErrorsAndNamesTheLine)
{
    for (const BadRow& row : kBadRows)
        EXPECT_TRUE(errorOf(row.text).starts_with(row.line))
            << row.what << ": " << testing::PrintToString(errorOf(row.text));
}

TEST(CsvParser, FindsTheSameErrorsInPiecesOfAnySize)
{
    for (const BadRow& row : kBadRows)
        for (std::size_t piece = 1; piece <= std::wstring_view(row.text).size(); ++piece)
            ASSERT_EQ(errorOf(row.text, piece), errorOf(row.text)) << row.what << " in pieces of " << piece;
}

TEST(CsvParser, YieldsTheRecordsBeforeAnError)
{
    CSVParser parser(L"A,B");
    parser.feed(L"1,2\n3,\"4\"x\n5,6\n");
    const CSVRecord* record = parser.next();
    ASSERT_TRUE(record);
    EXPECT_EQ(fieldsOf(*record), (Record{L"1", L"2"}));
    EXPECT_THROW(parser.next(), OvoError);
    EXPECT_THROW(parser.next(), OvoError) << "it stays where it is";
}

TEST(CsvParser, YieldsARecordAsSoonAsItIsComplete)
{
    CSVParser parser(L"A,B");
    parser.feed(L"1,2");
    EXPECT_EQ(parser.next(), nullptr);
    parser.feed(L"\n3");
    const CSVRecord* record = parser.next();
    ASSERT_TRUE(record);
    EXPECT_EQ(fieldsOf(*record), (Record{L"1", L"2"}));
    EXPECT_EQ(parser.next(), nullptr);
    EXPECT_EQ(parser.next(), nullptr);
    parser.finish();
    record = parser.next();
    ASSERT_TRUE(record);
    EXPECT_EQ(fieldsOf(*record), (Record{L"3", kMissing}));
    EXPECT_EQ(parser.next(), nullptr);
}

TEST(CsvParser, YieldsManyRecordsOfOnePiece)
{
    CSVParser parser(L"A");
    parser.feed(L"1\n2\n");
    parser.feed(L"3\n");
    Records records;
    take(parser, records);
    EXPECT_EQ(records, (Records{{L"1"}, {L"2"}, {L"3"}}));
}

TEST(CsvParser, KeepsARecordWhileNothingElseIsAsked)
{
    CSVParser parser(L"A,B");
    parser.feed(L"\"x\"\"y\",2\n3,4\n");
    const CSVRecord* record = parser.next();
    ASSERT_TRUE(record);
    EXPECT_EQ((*record)[0].text, L"x\"y");
    EXPECT_EQ((*record)[1].text, L"2");
    EXPECT_TRUE((*record)[1].supplied);
}

TEST(CsvParser, TakesMoreTextBehindARecordThatWasJustRead)
{
    CSVParser parser(L"A");
    parser.feed(L"1\n2\n");
    const auto next = [&] {
        const CSVRecord* const record = parser.next();
        return record ? std::wstring(record->fields[0].text) : L"none";
    };
    EXPECT_EQ(next(), L"1");
    parser.feed(L"3\n");
    EXPECT_EQ(next(), L"2");
    EXPECT_EQ(next(), L"3");
    EXPECT_EQ(next(), L"none");
}

TEST(CsvParser, SaysOnWhichLineARecordBegins)
{
    CSVParser parser(L"A,B");
    parser.feed(L"\n1,\"2\n2\"\n\n3,4\n");
    EXPECT_EQ(parser.next()->line, 2u);
    EXPECT_EQ(parser.next()->line, 5u);
}

TEST(CsvParser, TakesNoTextAfterTheEnd)
{
    CSVParser parser(L"A");
    parser.finish();
    EXPECT_THROW(parser.feed(L"1"), std::logic_error);
}

TEST(CsvParser, ReadsLinesThatAreFedOneByOne)
{
    CSVParser parser(L"A,B");
    Records records;
    for (const wchar_t* line : {L"1,\"two", L"lines\"", L"", L"3,4"}) {
        parser.feed(line);
        parser.feed(L"\n");
        take(parser, records);
    }
    parser.finish();
    take(parser, records);
    EXPECT_EQ(records, (Records{{L"1", L"two\nlines"}, {L"3", L"4"}}));
}

TEST(CsvParser, LetsGoOfTheTextThatHasBeenRead)
{
    // Records stand in the text that is kept; it would grow with every row otherwise, and they would move on.
    CSVParser parser(L"A");
    const wchar_t* lowest = nullptr;
    const wchar_t* highest = nullptr;
    for (int row = 0; row < 10'000; ++row) {
        parser.feed(L"twenty characters...\n");
        const CSVRecord* const record = parser.next();
        ASSERT_NE(record, nullptr);
        const wchar_t* const at = record->fields[0].text.data();
        if (row >= 4) { // the buffer has its size by then
            lowest = lowest ? std::min(lowest, at) : at;
            highest = highest ? std::max(highest, at) : at;
        }
        EXPECT_EQ(parser.next(), nullptr);
    }
    EXPECT_LT(highest - lowest, 100);
}

// What is written by the rules is read back, whatever it is and however it is cut.
TEST(CsvParser, ReadsBackWhateverIsWritten)
{
    constexpr std::wstring_view kAlphabet = L"ab,\"\r\n ";
    std::mt19937 random(11);
    for (int round = 0; round < 3000; ++round) {
        Records records(random() % 4, Record(3));
        std::wstring text;
        for (Record& record : records) {
            for (std::wstring& field : record) {
                field.resize(random() % 5);
                for (wchar_t& c : field)
                    c = kAlphabet[random() % kAlphabet.size()];
                text += L'"';
                for (const wchar_t c : field)
                    text += c == L'"' ? std::wstring(L"\"\"") : std::wstring(1, c);
                text += &field == &record.back() ? L"\"" : L"\",";
            }
            text += random() % 2 ? L"\n" : L"\r\n";
        }
        ASSERT_EQ(parse(text, 1 + random() % 8), records);
    }
}
