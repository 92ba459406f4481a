#include <ovosvg/core/Scanner.h>

#include <charconv>
#include <cmath>

namespace ovosvg
{

namespace
{

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f';
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isWord(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || isDigit(c) || c == '-';
}

} // namespace

void Scanner::skipBlanks()
{
    while (isBlank(now()))
        skip(1);
}

void Scanner::skipComma()
{
    skipBlanks();
    if (take(','))
        skipBlanks();
}

bool Scanner::take(char c)
{
    if (atEnd() || now() != c)
        return false;
    skip(1);
    return true;
}

std::string_view Scanner::word()
{
    std::size_t length = 0;
    while (length < m_rest.size() && isWord(m_rest[length]))
        ++length;
    const std::string_view result = m_rest.substr(0, length);
    skip(length);
    return result;
}

std::optional<double> Scanner::number()
{
    std::size_t end = now() == '+' || now() == '-' ? 1 : 0;
    const std::size_t begin = now() == '+' ? 1 : 0; // which from_chars does not take
    const auto digits = [&] {
        const std::size_t first = end;
        while (end < m_rest.size() && isDigit(m_rest[end]))
            ++end;
        return end > first;
    };
    bool any = digits();
    if (end < m_rest.size() && m_rest[end] == '.') {
        ++end;
        any = digits() || any;
    }
    if (!any)
        return std::nullopt;
    if (end < m_rest.size() && (m_rest[end] == 'e' || m_rest[end] == 'E')) {
        const std::size_t mantissa = end++;
        if (end < m_rest.size() && (m_rest[end] == '+' || m_rest[end] == '-'))
            ++end;
        if (!digits())
            end = mantissa; // the letter is that of a unit
    }
    double value = 0;
    const auto result = std::from_chars(m_rest.data() + begin, m_rest.data() + end, value);
    if (result.ec != std::errc{} || !std::isfinite(value))
        return std::nullopt;
    skip(end);
    return value;
}

std::optional<bool> Scanner::flag()
{
    if (now() != '0' && now() != '1')
        return std::nullopt;
    const bool set = now() == '1';
    skip(1);
    return set;
}

} // namespace ovosvg
