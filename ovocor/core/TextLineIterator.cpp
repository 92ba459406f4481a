#include <ovocor/TextLineIterator.h>

namespace
{

/// CR, LF, the line separator and the paragraph separator.
constexpr std::wstring_view kLineEnds = L"\r\n\u2028\u2029";

} // namespace

TextLineIterator::TextLineIterator(std::wstring_view text)
    : m_rest(text)
{
    take();
}

TextLineIterator::TextLineIterator(const wchar_t* text)
    : TextLineIterator(text ? std::wstring_view(text) : std::wstring_view())
{
}

TextLineIterator& TextLineIterator::operator++()
{
    take();
    return *this;
}

/// Cuts the next line off the rest.
void TextLineIterator::take()
{
    m_hasLine = !m_rest.empty();
    m_line = m_rest.substr(0, m_rest.find_first_of(kLineEnds));
    m_rest.remove_prefix(m_line.size());
    if (!m_rest.empty())
        m_rest.remove_prefix(m_rest.starts_with(L"\r\n") ? 2 : 1);
}
