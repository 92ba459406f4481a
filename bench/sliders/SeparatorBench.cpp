// The conversions of separators against copying a text character by character.
#include <ovoui/sliders/Separators.h>

#include <catch2/catch.hpp>

#include <string>

namespace
{

constexpr std::size_t kLength = 1024 * 1024;

std::wstring sample(const wchar_t* line)
{
    std::wstring text;
    while (text.size() < kLength)
        text += line;
    return text;
}

std::wstring copied(const std::wstring& text)
{
    std::wstring copy;
    copy.reserve(text.size());
    for (const wchar_t c : text)
        copy.push_back(c);
    return copy;
}

} // namespace

TEST_CASE("from the user's separators, a million characters")
{
    const std::wstring text = sample(L"12,5;-3,75;'quoted; 1,5';8 ");
    BENCHMARK("copying character by character")
    {
        return copied(text);
    };
    BENCHMARK("change_from_intl_seps [at most 4]")
    {
        return change_from_intl_seps(text, L";", L',');
    };
}

TEST_CASE("to the user's separators, a million characters")
{
    const std::wstring text = sample(L"12.5,-3.75,'quoted, 1.5',8 ");
    BENCHMARK("copying character by character")
    {
        return copied(text);
    };
    BENCHMARK("change_to_intl_seps [at most 4]")
    {
        return change_to_intl_seps(text, L";", L',');
    };
}
