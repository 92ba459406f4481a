#include <ovocor/core/TextStream.h>

#include <ovocor/core/Utf.h>

#include "MemorySource.h"

#include <gtest/gtest.h>

#include <new>
#include <random>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

using namespace OVO;
using namespace std::string_literals;

namespace
{

using Lines = std::vector<std::wstring>;

struct Read
{
    TextEncoding encoding;
    Lines lines;

    friend bool operator==(const Read&, const Read&) = default;
};

Read readAll(const std::string& bytes, std::size_t buffer = 64 * 1024, std::size_t piece = 1 << 20)
{
    MemorySource source(bytes, piece);
    TextStream stream(source, &fromLatin1, buffer);
    Read result{stream.encoding(), {}};
    std::wstring line;
    while (stream.readLine(line))
        result.lines.push_back(line);
    EXPECT_TRUE(line.empty()) << "nothing is left from the last line";
    EXPECT_FALSE(stream.readLine(line)) << "the end is the end";
    return result;
}

struct Row
{
    const char* what;
    std::string bytes;
    TextEncoding encoding;
    Lines lines;
};

const std::vector<Row>& rows()
{
    static const std::vector<Row> all{
        {"nothing", "", TextEncoding::Utf8, {}},
        {"ascii", "oak\nelm\n", TextEncoding::Utf8, {L"oak", L"elm"}},
        {"no line end at the end", "oak\nelm", TextEncoding::Utf8, {L"oak", L"elm"}},
        {"all line ends", "a\r\nb\rc\nd\r\r\n\n", TextEncoding::Utf8, {L"a", L"b", L"c", L"d", L"", L""}},
        {"only a line end", "\r\n", TextEncoding::Utf8, {L""}},
        {"utf-8 without mark", "\xC3\xA9\n\xF0\x9F\x8C\xB3", TextEncoding::Utf8, {L"\u00E9", L"\U0001F333"}},
        {"utf-8 with mark", "\xEF\xBB\xBF\xC3\xA9\n", TextEncoding::Utf8, {L"\u00E9"}},
        {"the mark of utf-8 alone", "\xEF\xBB\xBF", TextEncoding::Utf8, {}},
        {"two marks", "\xEF\xBB\xBF\xEF\xBB\xBFx", TextEncoding::Utf8, {L"\uFEFFx"}},
        {"malformed after a mark",
         "\xEF\xBB\xBF"
         "a\xFFz\n",
         TextEncoding::Utf8,
         {L"a\uFFFDz"}},
        {"half a mark", "\xEF\xBB", TextEncoding::Ansi, {L"\u00EF\u00BB"}},
        {"ansi", "caf\xE9\r\nna\xEFve", TextEncoding::Ansi, {L"caf\u00E9", L"na\u00EFve"}},
        {"ansi that looks like utf-8 at first",
         "\xC3\xA9\n\xE9\n",
         TextEncoding::Ansi,
         {L"\u00C3\u00A9", L"\u00E9"}},
        {"utf-8 cut by the end", "a\xE2\x82", TextEncoding::Ansi, {L"a\u00E2\u0082"}},
        {"zero characters", "a\0b\nc"s, TextEncoding::Utf8, {std::wstring(L"a\0b", 3), L"c"}},
        {"utf-16",
         "\xFF\xFE"
         "a\0\r\0\n\0\xAC\x20\n\0\n\0"s,
         TextEncoding::Utf16le,
         {L"a", L"\u20AC", L""}},
        {"utf-16, high byte first", "\xFE\xFF\0a\0\r\0\n\x20\xAC"s, TextEncoding::Utf16be, {L"a", L"\u20AC"}},
        {"utf-16 characters with the bytes of line ends",
         "\xFF\xFE\x0A\x0A\x0D\x0D\x00\x0A\n\0"s,
         TextEncoding::Utf16le,
         {L"\u0A0A\u0D0D\u0A00"}},
        {"utf-16 surrogates",
         "\xFE\xFF\xD8\x3C\xDF\x33\0\r\xDF\x33"s,
         TextEncoding::Utf16be,
         {L"\U0001F333", L"\uFFFD"}},
        {"utf-16 with a byte left over",
         "\xFF\xFE"
         "a\0\n\0b"s,
         TextEncoding::Utf16le,
         {L"a", L"\uFFFD"}},
        {"the mark of utf-16 alone", "\xFF\xFE", TextEncoding::Utf16le, {}},
        {"separators of other systems stay",
         "a\xE2\x80\xA8"
         "b\xC2\x85",
         TextEncoding::Utf8,
         {L"a\u2028b\u0085"}},
    };
    return all;
}

} // namespace

TEST(TextStream, FindsOutTheEncodingAndCutsLines)
{
    for (const Row& row : rows())
        EXPECT_EQ(readAll(row.bytes), (Read{row.encoding, row.lines})) << row.what;
}

TEST(TextStream, ReadsTheSameWithBuffersAndPiecesOfAnySize)
{
    for (const Row& row : rows())
        for (std::size_t buffer = 1; buffer <= row.bytes.size() + 1; ++buffer)
            for (std::size_t piece = 1; piece <= buffer; ++piece)
                ASSERT_EQ(readAll(row.bytes, buffer, piece), (Read{row.encoding, row.lines}))
                    << row.what << ", buffer " << buffer << ", pieces of " << piece;
}

TEST(TextStream, ReadsRandomBytesTheSameWithBuffersOfAnySize)
{
    const std::string alphabet = "a\r\n\xFF\xFE\xEF\xBB\xBF\xC3\xA9"s + '\0';
    std::mt19937 random(5);
    for (int round = 0; round < 2000; ++round) {
        std::string bytes(random() % 16, ' ');
        for (char& byte : bytes)
            byte = alphabet[random() % alphabet.size()];
        const Read whole = readAll(bytes);
        for (std::size_t buffer = 1; buffer <= bytes.size(); ++buffer)
            ASSERT_EQ(readAll(bytes, buffer), whole);
    }
}

TEST(TextStream, SeesAMalformedSequenceFarBehind)
{
    std::string bytes(1'000'000, 'x');
    bytes[500'000] = '\n';
    EXPECT_EQ(readAll(bytes).encoding, TextEncoding::Utf8);
    bytes.back() = '\xE9';
    const Read read = readAll(bytes);
    EXPECT_EQ(read.encoding, TextEncoding::Ansi);
    ASSERT_EQ(read.lines.size(), 2u);
    EXPECT_EQ(read.lines[1].back(), L'\u00E9');
}

TEST(TextStream, ReadsInPiecesOfItsBuffer)
{
    MemorySource source(std::string(100'000, 'x') + "\n");
    TextStream stream(source, &fromLatin1, 1000);
    std::wstring line;
    EXPECT_TRUE(stream.readLine(line));
    EXPECT_EQ(line.size(), 100'000u);
    EXPECT_LE(source.largestRead(), 1000u);
}

TEST(TextStream, PassesOnTheErrorsOfItsSource)
{
    class Failing : public MemorySource
    {
    public:
        using MemorySource::MemorySource;
        std::size_t read(char* bytes, std::size_t size) override
        {
            if (++m_reads > 3)
                throw std::runtime_error("bad sector");
            return MemorySource::read(bytes, size);
        }

    private:
        int m_reads = 0;
    };
    Failing source("\xEF\xBB\xBF"
                   "a\nb\n",
                   4);
    TextStream stream(source, &fromLatin1, 4);
    std::wstring line;
    EXPECT_TRUE(stream.readLine(line));
    EXPECT_EQ(line, L"a");
    EXPECT_THROW(while (stream.readLine(line)){}, std::runtime_error);
}

TEST(TextStream, LosesNothingOfALineWhenItsSourceFailsInBetween)
{
    class FailingOnce : public MemorySource
    {
    public:
        using MemorySource::MemorySource;
        std::size_t read(char* bytes, std::size_t size) override
        {
            if (++m_reads == 3)
                throw std::runtime_error("the network is away");
            return MemorySource::read(bytes, size);
        }

    private:
        int m_reads = 0;
    };
    FailingOnce source("\xEF\xBB\xBF"
                       "oak tree\nelm\n",
                       4);
    TextStream stream(source, &fromLatin1, 4);
    std::wstring line;
    EXPECT_THROW(stream.readLine(line), std::runtime_error) << "in the middle of the first line";
    EXPECT_TRUE(stream.readLine(line));
    EXPECT_EQ(line, L"oak tree");
    EXPECT_TRUE(stream.readLine(line));
    EXPECT_EQ(line, L"elm");
    EXPECT_FALSE(stream.readLine(line));
}

TEST(TextStream, GivesALineAgainThatCouldNotBeDecoded)
{
    static bool s_failing;
    s_failing = true;
    const auto decoder = [](std::string_view bytes) {
        if (std::exchange(s_failing, false))
            throw std::bad_alloc();
        return fromLatin1(bytes);
    };
    MemorySource source("caf\xE9\nelm\n");
    TextStream stream(source, decoder);
    std::wstring line;
    EXPECT_THROW(stream.readLine(line), std::bad_alloc);
    EXPECT_TRUE(stream.readLine(line));
    EXPECT_EQ(line, L"caf\u00E9");
    EXPECT_TRUE(stream.readLine(line));
    EXPECT_EQ(line, L"elm");
    EXPECT_FALSE(stream.readLine(line));
}
