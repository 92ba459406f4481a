/// Not exported: the resolution of the monitor that shows a window, and what tells that it changes.
#pragma once

#include <windows.h>

#include <functional>
#include <memory>

namespace ovoui::images
{

/// Dots per inch where a window is; those of the system on platforms that have but one resolution.
int resolutionOf(HWND window);

/// Tells of WM_DPICHANGED and WM_SYSCOLORCHANGE to a window, before the window itself has them.
class ResolutionWatch : public std::enable_shared_from_this<ResolutionWatch>
{
public:
    /// Gets the resolution in dots per inch, or 0 when the system's colours have changed. It may destroy the
    /// window and stop the watch.
    using Heard = std::function<void(int dotsPerInch)>;

    /// Until the window goes or `stop` is called. Null when the window cannot be watched.
    static std::shared_ptr<ResolutionWatch> begin(HWND window, Heard heard);
    void stop() { m_heard = nullptr; }
    bool isStopped() const { return !m_heard; }

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                      DWORD_PTR self);

    Heard m_heard;
    /// The subclass stays until the window goes: taking it away in the middle of a message is not safe on
    /// every platform.
    std::shared_ptr<ResolutionWatch> m_keepsItself;
};

} // namespace ovoui::images
