/// Not exported: a window that is watched for changes of its resolution.
#pragma once

#include <ovoui/frame/WindowCompanion.h>

#include <memory>
#include <vector>

namespace ovoui::images
{

class ResolutionWatch;

/// Hands what a window hears to all that watch it.
class WatchedWindow : public frame::WindowCompanion<WatchedWindow>
{
public:
    static constexpr wchar_t kProperty[] = L"ovoui.WatchedWindow";

    /// The last one that was added is told first.
    void add(const std::shared_ptr<ResolutionWatch>& watch);

    LRESULT handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void end();

private:
    void tell(HWND window, UINT message, WPARAM wParam, LPARAM lParam) const;

    std::vector<std::weak_ptr<ResolutionWatch>> m_watches; // the newest first
};

} // namespace ovoui::images
