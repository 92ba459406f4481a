#include <ovoui/frame/KeptTheme.h>

#include <ovoui/frame/ThemeData.h>

#include <vssym32.h>

namespace ovoui::frame
{

HTHEME KeptTheme::theme(HWND wnd)
{
    CThemeData& themes = CThemeData::getThemeData();
    if (!themes.IsAppThemed())
        return nullptr;
    if (!m_asked) {
        m_theme = themes.m_openThemeData(wnd, m_classList);
        m_asked = true;
    }
    return m_theme;
}

bool KeptTheme::draw(HWND wnd, HDC dc, int part, int state, const RECT& rect)
{
    const HTHEME opened = theme(wnd);
    if (opened)
        CThemeData::getThemeData().m_drawThemeBackground(opened, dc, part, state, &rect, nullptr);
    return opened != nullptr;
}

COLORREF KeptTheme::textColour(HWND wnd, int part, int state, COLORREF other)
{
    if (const HTHEME opened = theme(wnd))
        CThemeData::getThemeData().m_getThemeColor(opened, part, state, TMT_TEXTCOLOR, &other);
    return other;
}

void KeptTheme::forget()
{
    if (m_theme)
        CThemeData::getThemeData().m_closeThemeData(m_theme);
    m_theme = nullptr;
    m_asked = false;
}

} // namespace ovoui::frame
