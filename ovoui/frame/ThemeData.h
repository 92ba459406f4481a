/// Visual styles, used only where the platform has them.
///
///     CThemeData& theme = CThemeData::getThemeData();
///     if (!theme.IsAppThemed() || !theme.drawBackground(dc, &rect, wnd, L"Button", PBS_NORMAL))
///         ::DrawFrameControl(dc, &rect, DFC_BUTTON, DFCS_BUTTONPUSH);
#pragma once

#include <ovoui/export.h>

#include <windows.h>
#include <uxtheme.h>

namespace ovoui::frame
{
class KeptTheme;
}

/// The entry points of UxTheme, fetched once when the object is made. Whether visual styles are on is asked
/// at every call, so a change of theme needs nothing.
///
/// A copy shares the module with its original: both release it.
class OVOUI_API CThemeData
{
public:
    /// Loads a library by its file name; null when there is none.
    using Loader = HMODULE (*)(const wchar_t* name);

    /// Loads UxTheme from the system directory. Without it the object answers as on a system without themes.
    CThemeData();

    /// The same with a loader of the caller's, `load`.
    explicit CThemeData(Loader load);

    CThemeData(const CThemeData&) = default;
    CThemeData& operator=(const CThemeData&) = default;
    ~CThemeData();

    /// The library's own instance, which lives as long as the library is loaded.
    static CThemeData& getThemeData();

    /// Whether visual styles are on; false without UxTheme.
    bool IsAppThemed();

    /// COLOR_BTNFACE, for every window `wnd` and theme.
    COLORREF ButtonFace(HWND wnd) const;

    /// The system's brush for COLOR_BTNFACE, shared, for every window `wnd`: the caller must not delete it.
    HBRUSH BackgroundBrush(HWND wnd);

    /// Text colour of a group box in the theme of `wnd`; without one the highlight colour, which sets group
    /// titles off from the labels.
    COLORREF GroupboxText(HWND wnd) const;

    /// Draws the background of a push button in `state` into `rect` on `dc` when `classList` is "Button" (in
    /// any case of letters) and the window `wnd` has a theme; draws nothing otherwise. False only when there
    /// is no UxTheme: true means that the theme engine is present, not that something was drawn.
    bool drawBackground(HDC dc, const RECT* rect, HWND wnd, const wchar_t* classList, int state);

    /// Draws a check box in `state` (one of CBS_) into `rect` on `dc`. False when the window `wnd` draws
    /// itself without a theme: then nothing was drawn. The window keeps the theme that it has opened.
    bool drawCheckBox(HDC dc, const RECT* rect, HWND wnd, int state) const;

private:
    friend class ovoui::frame::KeptTheme;

    HMODULE m_module = nullptr;
    decltype(&::OpenThemeData) m_openThemeData = nullptr;
    decltype(&::CloseThemeData) m_closeThemeData = nullptr;
    decltype(&::GetThemeColor) m_getThemeColor = nullptr;
    decltype(&::GetThemeSysColorBrush) m_getThemeSysColorBrush = nullptr;
    decltype(&::IsAppThemed) m_isAppThemed = nullptr;
    decltype(&::DrawThemeBackground) m_drawThemeBackground = nullptr;
    HBRUSH m_backgroundBrush = nullptr; // a slot for a cached brush: freed when set
};
