// Whatever the text: no line holds a line end, and lines and line ends together are the text.
#include "Check.h"

#include <ovocor/TextLineIterator.h>

#include <cstddef>
#include <cstdint>
#include <string>

namespace
{

/// Bytes that stand for characters beyond them.
wchar_t character(std::uint8_t byte)
{
    switch (byte) {
    case 0x80:
        return L'\u2028';
    case 0x81:
        return L'\u2029';
    case 0x82:
        return L'\u2027';
    case 0x83:
        return L'\u202A';
    default:
        return static_cast<wchar_t>(byte);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::wstring text;
    for (std::size_t i = 0; i < size; ++i)
        text += character(data[i]);

    constexpr std::wstring_view kLineEnds = L"\r\n\u2028\u2029";
    std::size_t at = 0;
    for (TextLineIterator line(text); line; ++line) {
        demand(at < text.size(), "no line behind the text");
        demand(line->find_first_of(kLineEnds) == line->npos, "no line end in a line");
        demand(line->data() == text.data() + at, "every line where the one before it ended");
        at += line->size();
        if (at == text.size())
            continue;
        demand(kLineEnds.find(text[at]) != kLineEnds.npos, "a line end behind the line");
        at += text.compare(at, 2, L"\r\n") == 0 ? 2 : 1;
    }
    demand(at == text.size(), "no text behind the lines");
    return 0;
}
