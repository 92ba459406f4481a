/// Not exported: the resolution of the monitor that shows a window, and what tells that it changes.
#pragma once

#include <windows.h>

#include <functional>
#include <memory>

namespace ovoui::images
{

/// Dots per inch where a window is; those of the system on platforms that have but one resolution.
int resolutionOf(HWND window);

/// Tells of WM_DPICHANGED and WM_SYSCOLORCHANGE to a window, before the window itself has them, for as long
/// as this object and the window live.
class ResolutionWatch
{
public:
    /// Gets the resolution in dots per inch, or 0 when the system's colours have changed. It may destroy the
    /// window and stop the watch. What it raises goes the way of what message handlers raise; the window has
    /// the message all the same.
    using Heard = std::function<void(int dotsPerInch)>;

    /// Null when the window cannot be watched.
    static std::shared_ptr<ResolutionWatch> begin(HWND window, Heard heard);
    void stop() { m_heard = nullptr; }
    bool isStopped() const { return !m_heard; }
    void tell(int dotsPerInch) const;

private:
    Heard m_heard;
};

} // namespace ovoui::images
