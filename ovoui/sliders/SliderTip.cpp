#include <ovoui/sliders/SliderTip.h>

namespace ovoui::sliders
{

std::optional<std::wstring> SliderTip::enter(UINT id)
{
    if (m_shown || m_none)
        return std::nullopt;
    if (m_text.IsEmpty() && m_text.LoadString(id))
        m_text = m_text.SpanExcluding(L"\n");
    m_none = m_text.IsEmpty();
    m_shown = !m_none;
    return m_none ? std::nullopt : std::optional(std::wstring(m_text));
}

} // namespace ovoui::sliders
