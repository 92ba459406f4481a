/// Not exported. The theme of a control, kept open from one painting to the next.
#pragma once

#include <windows.h>
#include <uxtheme.h>

namespace ovoui::frame
{

/// Opening a theme asks the window for its properties, which some platforms keep in another process. It is
/// opened when something is first drawn.
///
///     bool drawn = m_theme.draw(m_hWnd, dc, BP_PUSHBUTTON, PBS_NORMAL, client);
class KeptTheme
{
public:
    /// `classList` is a literal, such as L"Button".
    explicit KeptTheme(const wchar_t* classList)
        : m_classList(classList)
    {
    }
    ~KeptTheme() { forget(); }
    KeptTheme(const KeptTheme&) = delete;
    KeptTheme& operator=(const KeptTheme&) = delete;

    /// Draws a part into `rect` in the theme of `wnd`, always the same window. False, and nothing is drawn,
    /// when that window has no theme, although others may have one.
    bool draw(HWND wnd, HDC dc, int part, int state, const RECT& rect);

    /// The colour of texts on a part in the theme of `wnd`, always the same window; `other` where it has
    /// none.
    COLORREF textColour(HWND wnd, int part, int state, COLORREF other);

    /// To be called at WM_THEMECHANGED, and when the window goes.
    void forget();

private:
    /// The theme of `wnd`, opened at the first call; null without one.
    HTHEME theme(HWND wnd);

    const wchar_t* m_classList;
    HTHEME m_theme = nullptr;
    bool m_asked = false;
};

} // namespace ovoui::frame
