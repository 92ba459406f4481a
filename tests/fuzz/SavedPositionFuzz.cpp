// Whatever the profile holds: a position that was written is read again, and another text gives what its
// leading numbers say.
#include "Check.h"

#include <ovoui/frame/core/SavedPosition.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <cwctype>
#include <optional>
#include <string>

using namespace ovoui::frame;

namespace
{

constexpr std::size_t kDigitsThatFit = 9;

/// The slow way to a number: none, or one of more digits than the simple reader takes.
struct Number
{
    std::optional<int> value;
    bool large = false;
};

Number readNumber(const wchar_t*& at)
{
    while (std::iswspace(static_cast<std::wint_t>(*at)))
        ++at;
    const bool negative = *at == L'-';
    if (*at == L'-' || *at == L'+')
        ++at;
    std::size_t digits = 0;
    int value = 0;
    for (; *at >= L'0' && *at <= L'9'; ++at)
        if (++digits <= kDigitsThatFit)
            value = value * 10 + (*at - L'0');
    if (digits == 0)
        return {};
    return {negative ? -value : value, digits > kDigitsThatFit};
}

void readsAsItsNumbersSay(const std::wstring& text)
{
    const SavedPosition position = parsePosition(text);
    const wchar_t* at = text.c_str();
    const Number x = readNumber(at);
    if (x.large)
        return;
    demand(position.x == x.value.value_or(SavedPosition::kUnset), "the first number");
    const bool goesOn = x.value && *at == L',';
    const Number y = goesOn ? readNumber(++at) : Number{};
    if (!y.large)
        demand(position.y == y.value.value_or(SavedPosition::kUnset), "the second number behind a comma");
}

void canBeWrittenAndRead(SavedPosition position)
{
    demand(parsePosition(formatPosition(position)) == position, "what was written is read again");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::wstring text(data, data + size);
    readsAsItsNumbersSay(text);
    canBeWrittenAndRead(parsePosition(text));
    SavedPosition any;
    if (size >= 8) {
        std::memcpy(&any.x, data, 4);
        std::memcpy(&any.y, data + 4, 4);
        canBeWrittenAndRead(any);
    }
    return 0;
}
