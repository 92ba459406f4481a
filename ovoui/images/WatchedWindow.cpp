#include <ovoui/images/WatchedWindow.h>

#include <ovoui/frame/AsHandler.h>
#include <ovoui/images/ResolutionWatch.h>

#include <commctrl.h>

namespace ovoui::images
{

namespace
{

constexpr wchar_t kProperty[] = L"ovoui.WatchedWindow"; ///< of a window: the object

} // namespace

std::shared_ptr<WatchedWindow> WatchedWindow::of(HWND window)
{
    if (const HANDLE known = ::GetPropW(window, kProperty))
        return static_cast<WatchedWindow*>(known)->shared_from_this();
    const auto made = std::make_shared<WatchedWindow>();
    if (!::SetPropW(window, kProperty, made.get()))
        return nullptr;
    if (!::SetWindowSubclass(window, &procedure, 0, reinterpret_cast<DWORD_PTR>(made.get()))) {
        ::RemovePropW(window, kProperty);
        return nullptr;
    }
    made->m_keepsItself = made;
    return made;
}

void WatchedWindow::add(const std::shared_ptr<ResolutionWatch>& watch)
{
    std::erase_if(m_watches, [](const auto& each) { return each.expired(); });
    m_watches.insert(m_watches.begin(), watch);
}

/// Any of them may end, and the window be destroyed, while another one is told. What one raises keeps nothing from
/// the others.
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

void WatchedWindow::end(HWND window)
{
    ::RemoveWindowSubclass(window, &procedure, 0);
    ::RemovePropW(window, kProperty);
    for (const auto& each : m_watches)
        if (const auto watch = each.lock())
            watch->stop();
    m_keepsItself.reset();
}

LRESULT CALLBACK WatchedWindow::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                          DWORD_PTR self)
{
    const auto watched = reinterpret_cast<WatchedWindow*>(self)->shared_from_this();
    if (message == WM_NCDESTROY) {
        watched->end(window);
    } else if (message == WM_DPICHANGED || message == WM_SYSCOLORCHANGE) {
        watched->tell(window, message, wParam, lParam);
        if (!::IsWindow(window))
            return 0;
    }
    return ::DefSubclassProc(window, message, wParam, lParam);
}

} // namespace ovoui::images
