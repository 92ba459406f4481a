#include <ovoui/sliders/core/SeparatorText.h>

namespace ovoui::sliders
{
namespace
{

/// Which quote the scan is inside, if any.
class Quotes
{
public:
    bool open() const { return m_open != L'\0'; }

    /// Takes notice of a character that is copied.
    void see(wchar_t c)
    {
        if (c != L'\'' && c != L'"')
            return;
        if (m_open == L'\0')
            m_open = c;
        else if (m_open == c)
            m_open = L'\0';
    }

private:
    wchar_t m_open = L'\0';
};

} // namespace

std::wstring toMachine(std::wstring_view text, const Convention& user)
{
    if (user.isTheMachines())
        return std::wstring(text);
    std::wstring result;
    result.reserve(text.size());
    Quotes quotes;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const wchar_t c = text[i];
        if (!quotes.open() && c == user.decimal) {
            result.push_back(L'.');
        } else if (!quotes.open() && !user.separator.empty() && c == user.separator.front() &&
                   text.substr(i).starts_with(user.separator)) {
            result.push_back(L',');
            i += user.separator.size() - 1;
        } else {
            result.push_back(c);
            quotes.see(c);
        }
    }
    return result;
}

std::wstring fromMachine(std::wstring_view text, const Convention& user)
{
    if (user.isTheMachines())
        return std::wstring(text);
    std::wstring result;
    result.reserve(text.size());
    Quotes quotes;
    for (const wchar_t c : text) {
        if (!quotes.open() && c == L'.') {
            result.push_back(user.decimal);
        } else if (!quotes.open() && c == L',') {
            result.append(user.separator);
        } else {
            result.push_back(c);
            quotes.see(c);
        }
    }
    return result;
}

} // namespace ovoui::sliders
