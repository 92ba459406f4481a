// Real numbers as texts of the profile.
#include <ovoui/frame/core/ProfileNumber.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <limits>
#include <random>
#include <string>
#include <string_view>

using namespace ovoui::frame;

namespace
{

/// Takes the characters of a set from the front of a text; how many there were.
std::size_t takeSome(std::string_view& text, std::string_view among)
{
    const std::size_t count = std::min(text.find_first_not_of(among), text.size());
    text.remove_prefix(count);
    return count;
}

bool takeOne(std::string_view& text, std::string_view among)
{
    const bool there = !text.empty() && among.find(text.front()) != std::string_view::npos;
    if (there)
        text.remove_prefix(1);
    return there;
}

/// By the form of a number: a minus sign, digits with or without a point, an exponent.
bool isNumber(std::string_view text)
{
    constexpr std::string_view kDigits = "0123456789";
    takeOne(text, "-");
    std::size_t digits = takeSome(text, kDigits);
    if (takeOne(text, "."))
        digits += takeSome(text, kDigits);
    if (digits == 0)
        return false;
    if (takeOne(text, "e")) {
        takeOne(text, "+-");
        if (takeSome(text, kDigits) == 0)
            return false;
    }
    return text.empty();
}

/// Calls for all texts of up to `longest` characters of a set.
void forEveryText(std::string_view characters, std::size_t longest,
                  const std::function<void(const std::string&)>& call, const std::string& begun = {})
{
    call(begun);
    if (begun.size() == longest)
        return;
    for (const char character : characters)
        forEveryText(characters, longest, call, begun + character);
}

} // namespace

TEST(ProfileNumber, ReadsEveryTextThatHasTheFormOfANumberAndNoOther)
{
    forEveryText("01-+.,e ", 5, [](const std::string& text) {
        const std::optional<double> number = numberIn(std::wstring(text.begin(), text.end()));
        ASSERT_EQ(number.has_value(), isNumber(text)) << '"' << text << '"';
        if (number) {
            ASSERT_EQ(*number, std::strtod(text.c_str(), nullptr)) << '"' << text << '"';
        }
    });
}

TEST(ProfileNumber, CharactersBeyondAsciiAreNoDigits)
{
    for (unsigned character = 0x80; character <= 0xFFFF; ++character) {
        const std::wstring one(1, static_cast<wchar_t>(character)); // U+0131 ends with the byte of "1"
        EXPECT_FALSE(numberIn(one)) << character;
        EXPECT_FALSE(numberIn(L"1" + one + L"5")) << character;
    }
}

TEST(ProfileNumber, WhatNoDoubleHoldsIsNone)
{
    for (const wchar_t* text : {L"inf", L"-inf", L"infinity", L"nan", L"-nan", L"1e999", L"-1e999"})
        EXPECT_FALSE(numberIn(text)) << text;
    EXPECT_FALSE(numberIn(numberText(std::numeric_limits<double>::infinity())));
    EXPECT_FALSE(numberIn(numberText(std::numeric_limits<double>::quiet_NaN())));
    EXPECT_FALSE(numberIn(std::wstring_view(L"1\0002", 3))) << "a zero does not end the text";
}

TEST(ProfileNumber, BringsBackTheVeryNumber)
{
    const auto comesBack = [](double number) {
        const std::optional<double> read = numberIn(numberText(number));
        ASSERT_TRUE(read) << number;
        EXPECT_EQ(std::bit_cast<std::uint64_t>(*read), std::bit_cast<std::uint64_t>(number)) << number;
    };
    using Limits = std::numeric_limits<double>;
    for (const double number : {0.0, -0.0, 0.1 + 0.2, 1e21, 1e-7, Limits::denorm_min(), Limits::min(),
                                Limits::max(), Limits::lowest(), Limits::epsilon()})
        comesBack(number);
    std::mt19937_64 random(11);
    for (int i = 0; i < 100000; ++i) {
        const double number = std::bit_cast<double>(random());
        if (std::isfinite(number))
            comesBack(number);
    }
}

TEST(ProfileNumber, HasAPointAndTheFewestDigits)
{
    EXPECT_EQ(numberText(0.25), L"0.25");
    EXPECT_EQ(numberText(-1.5), L"-1.5");
    EXPECT_EQ(numberText(10), L"10");
    EXPECT_EQ(numberText(0.1 + 0.2), L"0.30000000000000004");
}
