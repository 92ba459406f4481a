#include "TextChecks.h"

#include <algorithm>
#include <cwctype>
#include <iterator>
#include <optional>
#include <regex>
#include <string_view>

namespace
{

constexpr std::size_t kLongestString = 255; // of what loads a string

std::optional<wchar_t> mnemonicOf(const std::wstring& text)
{
    for (std::size_t at = text.find(L'&'); at != text.npos && at + 1 < text.size();
         at = text.find(L'&', at + 2))
        if (text[at + 1] != L'&')
            return static_cast<wchar_t>(std::towlower(text[at + 1]));
    return std::nullopt;
}

std::wstring joined(const std::vector<std::wstring>& words)
{
    std::wstring text;
    for (const std::wstring& word : words)
        text += word + L' ';
    return text.empty() ? L"none" : text;
}

/// Calls `compare` with place and both texts of what both languages have.
template <class Compare>
void forBoth(const Texts& english, const Texts& other, Compare compare)
{
    for (const auto& [place, text] : english)
        if (const auto found = other.find(place); found != other.end())
            compare(place, text, found->second);
}

} // namespace

std::string linesOf(const Problems& problems)
{
    std::string lines;
    for (const std::wstring& problem : problems) {
        char line[1024];
        const int length = ::WideCharToMultiByte(CP_UTF8, 0, problem.data(), static_cast<int>(problem.size()),
                                                 line, static_cast<int>(std::size(line)), nullptr, nullptr);
        lines.append(line, static_cast<std::size_t>(length)).append("\n");
    }
    return lines;
}

Problems idProblems(const Texts& english, const Texts& other)
{
    Problems problems;
    for (const auto& [place, text] : english)
        if (!other.contains(place))
            problems.push_back(place + L" is missing");
    for (const auto& [place, text] : other)
        if (!english.contains(place))
            problems.push_back(place + L" is not in English");
    forBoth(english, other, [&](const std::wstring& place, const std::wstring& one, const std::wstring& two) {
        if (one.empty() != two.empty())
            problems.push_back(place + L": \"" + one + L"\" and \"" + two + L"\"");
        if (place.starts_with(L"accelerators") && one != two)
            problems.push_back(place + L": " + one + L" and " + two);
    });
    return problems;
}

std::vector<std::wstring> specifiersOf(const std::wstring& text)
{
    static const std::wregex kSpecifier(
        L"%(%|[1-9][0-9]?(![^!]+!)?|[-+ #0]*[0-9*]*(\\.[0-9*]+)?(I64|I32|I|hh|h|ll|l|w)?[a-zA-Z])");
    std::vector<std::wstring> found;
    for (std::wsregex_iterator at(text.begin(), text.end(), kSpecifier), end; at != end; ++at)
        if (at->str() != L"%%")
            found.push_back(at->str());
    return found;
}

Problems specifierProblems(const Texts& english, const Texts& other)
{
    Problems problems;
    forBoth(english, other, [&](const std::wstring& place, const std::wstring& one, const std::wstring& two) {
        const auto wanted = specifiersOf(one), have = specifiersOf(two);
        if (wanted != have)
            problems.push_back(place + L" has " + joined(have) + L"instead of " + joined(wanted) + L": " +
                               two);
    });
    return problems;
}

Problems lineProblems(const Texts& english, const Texts& other)
{
    Problems problems;
    forBoth(english, other, [&](const std::wstring& place, const std::wstring& one, const std::wstring& two) {
        if (std::ranges::count(one, L'\n') != std::ranges::count(two, L'\n'))
            problems.push_back(place + L" has other lines: " + two);
    });
    return problems;
}

Problems mnemonicProblems(const TextGroup& group)
{
    Problems problems;
    std::map<wchar_t, std::wstring> owners;
    for (const std::wstring& text : group.texts)
        if (const auto letter = mnemonicOf(text))
            if (const auto [owner, first] = owners.try_emplace(*letter, text); !first)
                problems.push_back(group.place + L": " + *letter + L" is wanted by \"" + owner->second +
                                   L"\" and \"" + text + L"\"");
    return problems;
}

Problems missingMnemonics(const Texts& english, const Texts& other)
{
    Problems problems;
    forBoth(english, other, [&](const std::wstring& place, const std::wstring& one, const std::wstring& two) {
        if (mnemonicOf(one).has_value() != mnemonicOf(two).has_value())
            problems.push_back(place + L": \"" + one + L"\" and \"" + two + L"\"");
    });
    return problems;
}

Problems blankProblems(const Texts& texts)
{
    constexpr std::wstring_view kClosing = L":;?!»";
    Problems problems;
    for (const auto& [place, text] : texts)
        for (std::size_t at = text.find(L' '); at != text.npos; at = text.find(L' ', at + 1)) {
            const bool opens = at > 0 && text[at - 1] == L'«';
            const bool closes = at + 1 < text.size() && kClosing.find(text[at + 1]) != kClosing.npos;
            if (opens || closes)
                problems.push_back(place + L" has an ordinary blank beside a mark: " + text);
        }
    return problems;
}

Problems lengthProblems(const Texts& texts)
{
    Problems problems;
    for (const auto& [place, text] : texts)
        if (place.starts_with(L"string") && text.size() > kLongestString)
            problems.push_back(place + L" has " + std::to_wstring(text.size()) + L" characters: " + text);
    return problems;
}
