#include <ovoui/images/ResolutionWatch.h>

#include <ovoui/frame/EntryPoint.h>
#include <ovoui/frame/ScreenDc.h>
#include <ovoui/images/WatchedWindow.h>

#include <utility>

namespace ovoui::images
{

int resolutionOf(HWND window)
{
    using GetDpi = UINT(WINAPI*)(HWND);
    const auto getDpi = frame::entryPoint<GetDpi>(::GetModuleHandleW(L"user32.dll"), "GetDpiForWindow");
    if (const UINT dpi = getDpi ? getDpi(window) : 0)
        return static_cast<int>(dpi);
    return frame::screenResolution();
}

std::shared_ptr<ResolutionWatch> ResolutionWatch::begin(HWND window, Heard heard)
{
    WatchedWindow* const watched = WatchedWindow::madeFor(window);
    if (!watched)
        return nullptr;
    const auto watch = std::make_shared<ResolutionWatch>();
    watch->m_heard = std::move(heard);
    watched->add(watch);
    return watch;
}

void ResolutionWatch::tell(int dotsPerInch) const
{
    if (const Heard heard = m_heard) // which may stop this watch
        heard(dotsPerInch);
}

} // namespace ovoui::images
