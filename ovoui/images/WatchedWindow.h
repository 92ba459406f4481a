/// Not exported: a window that is watched for changes of its resolution.
#pragma once

#include <windows.h>

#include <memory>
#include <vector>

namespace ovoui::images
{

class ResolutionWatch;

/// Hands what a window hears to all that watch it, by one subclass: each one more would make every message to the
/// window dearer. It stays until the window goes; taking it away in the middle of a message is not safe on every
/// platform.
class WatchedWindow : public std::enable_shared_from_this<WatchedWindow>
{
public:
    /// The same for all watches of a window; null when it cannot be subclassed.
    static std::shared_ptr<WatchedWindow> of(HWND window);

    /// The last one that was added is told first.
    void add(const std::shared_ptr<ResolutionWatch>& watch);

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                      DWORD_PTR self);
    void tell(HWND window, UINT message, WPARAM wParam, LPARAM lParam) const;
    void end(HWND window);

    std::vector<std::weak_ptr<ResolutionWatch>> m_watches; // the newest first
    std::shared_ptr<WatchedWindow> m_keepsItself;
};

} // namespace ovoui::images
