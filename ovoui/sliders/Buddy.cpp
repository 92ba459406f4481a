#include <ovoui/sliders/Buddy.h>

#include <ovoui/frame/TellParent.h>
#include <ovoui/frame/WindowText.h>

namespace ovoui::sliders
{

std::wstring Buddy::text() const
{
    return frame::windowText(m_window);
}

void Buddy::show(const std::wstring& text) const
{
    ::SetWindowTextW(m_window, text.c_str());
}

void Buddy::tellParent(UINT message) const
{
    frame::sendToHost(::GetParent(m_window), message, reinterpret_cast<WPARAM>(m_window), 0);
}

} // namespace ovoui::sliders
