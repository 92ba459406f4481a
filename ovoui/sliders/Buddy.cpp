#include <ovoui/sliders/Buddy.h>

#include <cstddef>

namespace ovoui::sliders
{

std::wstring Buddy::text() const
{
    std::wstring text(static_cast<std::size_t>(::GetWindowTextLengthW(m_window)), L'\0');
    const int length = ::GetWindowTextW(m_window, text.data(), static_cast<int>(text.size()) + 1);
    text.resize(static_cast<std::size_t>(length));
    return text;
}

void Buddy::show(const std::wstring& text) const
{
    ::SetWindowTextW(m_window, text.c_str());
}

void Buddy::tellParent(UINT message) const
{
    ::SendMessageW(::GetParent(m_window), message, reinterpret_cast<WPARAM>(m_window), 0);
}

} // namespace ovoui::sliders
