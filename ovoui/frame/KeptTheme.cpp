#include <ovoui/frame/KeptTheme.h>

#include <ovoui/frame/ThemeData.h>

namespace ovoui::frame
{

bool KeptTheme::draw(HWND wnd, HDC dc, int part, int state, const RECT& rect)
{
    CThemeData& themes = CThemeData::getThemeData();
    if (!themes.IsAppThemed())
        return false;
    if (!m_asked) {
        m_theme = themes.m_openThemeData(wnd, m_classList);
        m_asked = true;
    }
    if (m_theme)
        themes.m_drawThemeBackground(m_theme, dc, part, state, &rect, nullptr);
    return m_theme != nullptr;
}

void KeptTheme::forget()
{
    if (m_theme)
        CThemeData::getThemeData().m_closeThemeData(m_theme);
    m_theme = nullptr;
    m_asked = false;
}

} // namespace ovoui::frame
