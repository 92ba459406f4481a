// Whatever the text: a version means what its pieces say, and comparing keeps the rules of an order.
#include "Check.h"

#include <ovoui/update/core/VersionText.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

using namespace ovoui::update;

namespace
{

std::vector<std::wstring> pieces(const std::wstring& text)
{
    std::vector<std::wstring> result(1);
    for (const wchar_t c : text) {
        if (c == L'.')
            result.emplace_back();
        else
            result.back() += c;
    }
    return result;
}

/// The number that a piece means, without regard to its size; none for anything but digits.
bool means(const std::wstring& piece, int number)
{
    if (piece == L"*")
        return number == -1;
    std::size_t zeros = 0;
    while (zeros < piece.size() && piece[zeros] == L'0')
        ++zeros;
    const std::wstring rest = piece.substr(zeros);
    return number >= 0 && (rest.empty() ? number == 0 : rest == std::to_wstring(number));
}

void checkOne(const std::wstring& text)
{
    const std::optional<Version> version = parseVersion(text);
    if (!version)
        return;
    const std::vector<std::wstring> parts = pieces(text);
    demand(parts.size() <= 4, "at most four numbers");
    for (std::size_t i = 0; i < version->size(); ++i)
        demand(i < parts.size() ? means(parts[i], (*version)[i]) : (*version)[i] == -1,
               "what the piece says");
    demand(matches(*version, *version), "a version fits its own pattern");
    demand(!isNewer(*version, *version), "nothing is newer than itself");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::wstring all(data, data + size);
    const std::size_t half = all.find(L'\n') == std::wstring::npos ? all.size() : all.find(L'\n');
    const std::wstring first = all.substr(0, half);
    const std::wstring second = half < all.size() ? all.substr(half + 1) : L"";
    checkOne(first);
    checkOne(second);

    const std::optional<Version> a = parseVersion(first);
    const std::optional<Version> b = parseVersion(second);
    if (!a || !b)
        return 0;
    if (matches(*a, *b))
        demand(!isNewer(*a, *b), "a pattern that fits is not newer");
    const bool whole = a->back() != -1 && b->back() != -1 && (*a)[0] != -1 && (*b)[0] != -1 &&
                       (*a)[1] != -1 && (*b)[1] != -1 && (*a)[2] != -1 && (*b)[2] != -1;
    if (whole) {
        demand(!(isNewer(*a, *b) && isNewer(*b, *a)), "one of two is newer at most");
        demand(isNewer(*a, *b) == (*a > *b), "as numbers are compared");
    }
    return 0;
}
