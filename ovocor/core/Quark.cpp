#include <ovocor/Quark.h>

#include <unordered_set>

namespace
{

struct TextHash
{
    using is_transparent = void;
    std::size_t operator()(std::wstring_view text) const { return std::hash<std::wstring_view>{}(text); }
};

const std::wstring* interned(std::wstring_view text)
{
    // A set of nodes: its strings keep their addresses.
    static std::unordered_set<std::wstring, TextHash, std::equal_to<>> texts;
    auto place = texts.find(text);
    if (place == texts.end())
        place = texts.emplace(text).first;
    return &*place;
}

} // namespace

Quark::Quark()
    : Quark(std::wstring_view())
{
}

Quark::Quark(std::wstring_view text)
    : m_text(interned(text))
{
}
