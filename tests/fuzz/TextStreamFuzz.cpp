// Whatever the bytes and the buffer: the same encoding, and the lines of the text decoded as a whole. The
// first byte is the size of the buffer, the second that of the pieces that the source gives.
#include "Check.h"

#include <ovocor/core/TextStream.h>
#include <ovocor/core/Utf.h>
#include <tests/ovocor/core/MemorySource.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace
{

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

struct Result
{
    OVO::TextEncoding encoding;
    std::vector<std::wstring> lines;
};

Result read(const std::string& bytes, std::size_t buffer, std::size_t piece)
{
    MemorySource source(bytes, piece);
    OVO::TextStream stream(source, &fromLatin1, buffer);
    Result result{stream.encoding(), {}};
    std::wstring line;
    while (stream.readLine(line)) {
        demand(line.find_first_of(L"\r\n") == line.npos, "no line end in a line");
        demand(line.size() <= bytes.size(), "no line longer than the bytes");
        result.lines.push_back(line);
    }
    demand(result.lines.size() <= bytes.size(), "no line out of nothing");
    return result;
}

std::wstring decoded(std::string_view bytes, OVO::TextEncoding encoding)
{
    switch (encoding) {
    case OVO::TextEncoding::Utf16le:
    case OVO::TextEncoding::Utf16be:
        return OVO::decodeUtf16(bytes.substr(2), encoding == OVO::TextEncoding::Utf16be);
    case OVO::TextEncoding::Utf8:
        return OVO::decodeUtf8(bytes.starts_with(kUtf8Mark) ? bytes.substr(kUtf8Mark.size()) : bytes);
    default:
        return fromLatin1(bytes);
    }
}

/// The slow way to the lines: a character at a time.
std::vector<std::wstring> splitIntoLines(const std::wstring& text)
{
    std::vector<std::wstring> lines;
    bool open = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (!open)
            lines.emplace_back();
        open = text[i] != L'\n' && text[i] != L'\r';
        if (open)
            lines.back() += text[i];
        else if (text.compare(i, 2, L"\r\n") == 0)
            ++i;
    }
    return lines;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 2)
        return 0;
    const std::string bytes(data + 2, data + size);
    const Result whole = read(bytes, bytes.size() + 1, bytes.size() + 1);
    const Result pieces = read(bytes, data[0] % 32, 1 + data[1] % 32);
    demand(whole.encoding == pieces.encoding, "the same encoding");
    demand(whole.lines == pieces.lines, "the same lines");

    demand(whole.lines == splitIntoLines(decoded(bytes, whole.encoding)), "the lines of the decoded text");

    // Without a mark the text is UTF-8 exactly when all of it is.
    const bool utf16 =
        whole.encoding == OVO::TextEncoding::Utf16le || whole.encoding == OVO::TextEncoding::Utf16be;
    if (!utf16 && !bytes.starts_with(kUtf8Mark)) {
        const bool valid = OVO::encodeUtf8(OVO::decodeUtf8(bytes)) == bytes;
        demand(valid == (whole.encoding == OVO::TextEncoding::Utf8), "UTF-8 is recognised");
    }
    return 0;
}
