#include <ovoui/sliders/core/SliderTip.h>

namespace ovoui::sliders
{

std::optional<std::wstring> SliderTip::enter(const std::function<std::wstring()>& load)
{
    if (!m_text) {
        const std::wstring text = load();
        m_text = text.substr(0, text.find(L'\n'));
    }
    if (m_shown || m_text->empty())
        return std::nullopt;
    m_shown = true;
    return m_text;
}

} // namespace ovoui::sliders
