/// Interned strings.
#pragma once

#include <ovocor/export.h>

#include <functional>
#include <string>
#include <string_view>

/// A string of which there is one copy for the whole process: quarks are as small as a pointer and compare as
/// fast. The text stays until the core library is unloaded. For use on one thread.
class OVOCOR_API Quark
{
public:
    /// The empty string.
    Quark();
    /// The quark of `text`, which is copied when it is new.
    explicit Quark(std::wstring_view text);

    /// The text, as long as the core library is loaded.
    const std::wstring& value() const { return *m_text; }

    friend bool operator==(const Quark&, const Quark&) = default;

private:
    friend struct std::hash<Quark>;

    const std::wstring* m_text;
};

/// Lets quarks be keys of unordered containers.
template <>
struct std::hash<Quark>
{
    /// By the place of the text of `quark`.
    std::size_t operator()(const Quark& quark) const noexcept
    {
        return std::hash<const void*>{}(quark.m_text);
    }
};
