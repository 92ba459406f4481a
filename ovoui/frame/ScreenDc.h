/// Not exported. The device context of the whole screen.
#pragma once

#include <windows.h>

namespace ovoui::frame
{

/// Had for the time of a scope.
class ScreenDc
{
public:
    ScreenDc()
        : m_dc(::GetDC(nullptr))
    {
    }
    ~ScreenDc() { ::ReleaseDC(nullptr, m_dc); }
    ScreenDc(const ScreenDc&) = delete;
    ScreenDc& operator=(const ScreenDc&) = delete;

    /// Null when the system does not give it.
    HDC get() const { return m_dc; }

private:
    const HDC m_dc;
};

/// Dots per inch, on platforms that have but one resolution for all monitors.
inline int screenResolution()
{
    const ScreenDc screen;
    return ::GetDeviceCaps(screen.get(), LOGPIXELSX);
}

} // namespace ovoui::frame
