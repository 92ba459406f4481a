#include <ovoui/images/WatchedWindow.h>

#include <ovoui/images/ResolutionWatch.h>

namespace ovoui::images
{

void WatchedWindow::add(const std::shared_ptr<ResolutionWatch>& watch)
{
    std::erase_if(m_watches, [](const auto& each) { return each.expired(); });
    m_watches.insert(m_watches.begin(), watch);
}

/// Any of them may end, and the window be destroyed, while another one is told. What one raises keeps nothing
/// from the others.
void WatchedWindow::tell(HWND window, UINT message, WPARAM wParam, LPARAM lParam) const
{
    const std::vector<std::weak_ptr<ResolutionWatch>> watches = m_watches;
    for (const auto& each : watches)
        frame::asHandler(window, message, wParam, lParam, [&]() -> LRESULT {
            if (const auto watch = each.lock())
                watch->tell(message == WM_DPICHANGED ? LOWORD(wParam) : 0);
            return 0;
        });
}

void WatchedWindow::end()
{
    for (const auto& each : m_watches)
        if (const auto watch = each.lock())
            watch->stop();
}

LRESULT WatchedWindow::handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_DPICHANGED || message == WM_SYSCOLORCHANGE) {
        tell(window, message, wParam, lParam);
        if (!::IsWindow(window))
            return 0;
    }
    return frame::nextProcedure(window, message, wParam, lParam);
}

} // namespace ovoui::images
