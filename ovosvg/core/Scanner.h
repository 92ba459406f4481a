/// Reads the small languages of attributes. Plain values, no windows.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace ovosvg
{

/// Walks over a text. Nothing that fails moves on.
class Scanner
{
public:
    explicit Scanner(std::string_view text)
        : m_rest(text)
    {
    }

    bool atEnd() const { return m_rest.empty(); }
    char now() const { return m_rest.empty() ? '\0' : m_rest.front(); }
    std::string_view rest() const { return m_rest; }
    void skip(std::size_t count) { m_rest.remove_prefix(count); }

    void skipBlanks();
    /// Blanks with at most one comma among them.
    void skipComma();
    bool take(char c);
    /// Letters, digits and '-', as far as they reach; may be empty.
    std::string_view word();
    /// A finite number, with sign, fraction and exponent as it likes. It may end where another one begins:
    /// "1.5.5" are two, "1-2" as well.
    std::optional<double> number();
    /// '0' or '1', which need not be apart from what follows.
    std::optional<bool> flag();

private:
    std::string_view m_rest;
};

} // namespace ovosvg
