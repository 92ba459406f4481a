// Whatever the bytes and the buffer: the same encoding and the same lines, without line ends in them. The
// first byte is the size of the buffer, the second that of the pieces that the source gives.
#include "Check.h"

#include <ovocor/core/TextStream.h>
#include <ovocor/core/Utf.h>
#include <tests/ovocor/core/MemorySource.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace
{

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

    // Without a mark the text is UTF-8 exactly when all of it is.
    const bool marked = bytes.starts_with("\xEF\xBB\xBF") || whole.encoding == OVO::TextEncoding::Utf16le ||
                        whole.encoding == OVO::TextEncoding::Utf16be;
    if (!marked) {
        const bool valid = OVO::encodeUtf8(OVO::decodeUtf8(bytes)) == bytes;
        demand(valid == (whole.encoding == OVO::TextEncoding::Utf8), "UTF-8 is recognised");
    }
    return 0;
}
