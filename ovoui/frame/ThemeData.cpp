#include <ovoui/frame/ThemeData.h>

#include <ovoui/frame/EntryPoint.h>

#include <ovocor/ovocor.h>
#include <vsstyle.h>
#include <vssym32.h>

namespace
{

HMODULE loadFromSystem(const wchar_t* name)
{
    return OVO::LoadSystemLibrary(name);
}

template <class Function>
void fetch(HMODULE module, const char* name, Function& function)
{
    function = ovoui::frame::entryPoint<Function>(module, name);
}

// Made while the module is being loaded, before any code of the host runs.
CThemeData s_themeData;

} // namespace

CThemeData::CThemeData()
    : CThemeData(&loadFromSystem)
{
}

CThemeData::CThemeData(Loader load)
    : m_module(load(L"UxTheme.dll"))
{
    if (!m_module)
        return;
    fetch(m_module, "OpenThemeData", m_openThemeData);
    fetch(m_module, "CloseThemeData", m_closeThemeData);
    fetch(m_module, "GetThemeColor", m_getThemeColor);
    fetch(m_module, "GetThemeSysColorBrush", m_getThemeSysColorBrush);
    fetch(m_module, "IsAppThemed", m_isAppThemed);
    fetch(m_module, "DrawThemeBackground", m_drawThemeBackground);
}

CThemeData::~CThemeData()
{
    if (!m_module)
        return;
    ::FreeLibrary(m_module);
    if (m_backgroundBrush)
        ::DeleteObject(m_backgroundBrush);
}

CThemeData& CThemeData::getThemeData()
{
    return s_themeData;
}

bool CThemeData::IsAppThemed()
{
    return m_module && m_isAppThemed();
}

COLORREF CThemeData::ButtonFace(HWND) const
{
    return ::GetSysColor(COLOR_BTNFACE);
}

HBRUSH CThemeData::BackgroundBrush(HWND)
{
    return ::GetSysColorBrush(COLOR_BTNFACE);
}

COLORREF CThemeData::GroupboxText(HWND wnd) const
{
    COLORREF colour = ::GetSysColor(COLOR_HIGHLIGHT);
    if (!m_module)
        return colour;
    const HTHEME theme = m_openThemeData(wnd, L"Button");
    if (!theme)
        return colour;
    // A theme without this colour leaves the highlight colour in place, so the result needs no check.
    m_getThemeColor(theme, BP_GROUPBOX, GBS_NORMAL, TMT_TEXTCOLOR, &colour);
    m_closeThemeData(theme);
    return colour;
}

bool CThemeData::drawBackground(HDC dc, const RECT* rect, HWND wnd, const wchar_t* classList, int state)
{
    if (!m_module)
        return false;
    const HTHEME theme = m_openThemeData(wnd, classList);
    if (!theme)
        return true;
    if (::_wcsicmp(classList, L"Button") == 0)
        m_drawThemeBackground(theme, dc, BP_PUSHBUTTON, state, rect, nullptr);
    m_closeThemeData(theme);
    return true;
}

/// The theme opened last for a window becomes that of the window, and some controls go on drawing with it. So
/// the window is only asked whether it has one.
bool CThemeData::drawCheckBox(HDC dc, const RECT* rect, HWND wnd, int state) const
{
    const auto windowTheme =
        ovoui::frame::entryPoint<decltype(&::GetWindowTheme)>(m_module, "GetWindowTheme");
    const bool themed = windowTheme && windowTheme(wnd);
    const HTHEME theme = themed ? m_openThemeData(nullptr, L"Button") : nullptr;
    if (!theme)
        return false;
    m_drawThemeBackground(theme, dc, BP_CHECKBOX, state, rect, nullptr);
    m_closeThemeData(theme);
    return true;
}
