#include <ovoui/frame/ProfileExchange.h>

#include <ovoui/frame/core/ProfileNumber.h>

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
    CString text(ovoui::frame::numberText(value).c_str());
    (*this)(entry, text);
    const std::wstring_view kept(text.GetString(), static_cast<std::size_t>(text.GetLength()));
    value = ovoui::frame::numberIn(kept).value_or(value);
}
