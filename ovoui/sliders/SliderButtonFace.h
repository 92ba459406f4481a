/// Not exported. What a slider button looks like.
#pragma once

#include <ovoui/frame/KeptTheme.h>

#include <afxwin.h>

namespace ovoui::sliders
{

/// Paints the button of a window with the visual styles of that window, or without them.
class SliderButtonFace
{
public:
    /// `theme` is that of push buttons.
    SliderButtonFace(HWND wnd, frame::KeptTheme& theme, bool pressed, bool focused);

    /// All of `client`, with a mark when it has the focus.
    void paint(CDC& dc, const CRect& client) const;

private:
    void paintBack(CDC& dc, const CRect& client) const;
    void paintArrow(CDC& dc, const CRect& client) const;
    static void paintFocus(CDC& dc, CRect client);

    const HWND m_wnd;
    frame::KeptTheme& m_theme;
    const bool m_pressed;
    const bool m_focused;
    const bool m_enabled;
};

} // namespace ovoui::sliders
