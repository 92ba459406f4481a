#include <ovoui/frame/ProfileExchange.h>

#include <charconv>
#include <cmath>
#include <optional>

namespace
{

CString textOf(double value)
{
    char digits[32];
    const auto end = std::to_chars(std::begin(digits), std::end(digits), value).ptr;
    return CString(std::wstring(digits, end).c_str());
}

/// A text that is nothing but a number.
std::optional<double> numberIn(const CString& text)
{
    const std::string digits(text.GetString(),
                             text.GetString() + text.GetLength()); // others than ASCII spoil it
    double value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    const bool isWhole = error == std::errc() && end == digits.data() + digits.size();
    return isWhole && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

} // namespace

ProfileExchange::ProfileExchange(std::wstring section, bool saving)
    : m_section(std::move(section))
    , m_saving(saving)
{
}

void ProfileExchange::operator()(LPCWSTR entry, CString& value) const
{
    if (m_saving)
        AfxGetApp()->WriteProfileString(m_section.c_str(), entry, value);
    else
        value = AfxGetApp()->GetProfileString(m_section.c_str(), entry, value);
}

void ProfileExchange::operator()(LPCWSTR entry, int& value) const
{
    if (m_saving)
        AfxGetApp()->WriteProfileInt(m_section.c_str(), entry, value);
    else
        value = static_cast<int>(AfxGetApp()->GetProfileInt(m_section.c_str(), entry, value));
}

void ProfileExchange::operator()(LPCWSTR entry, DWORD& value) const
{
    int bits = static_cast<int>(value);
    (*this)(entry, bits);
    value = static_cast<DWORD>(bits);
}

void ProfileExchange::operator()(LPCWSTR entry, bool& value) const
{
    int number = value;
    (*this)(entry, number);
    value = number != 0;
}

void ProfileExchange::operator()(LPCWSTR entry, double& value) const
{
    CString text = textOf(value);
    (*this)(entry, text);
    value = numberIn(text).value_or(value);
}
