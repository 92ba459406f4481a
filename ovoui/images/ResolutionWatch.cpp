#include <ovoui/images/ResolutionWatch.h>

#include <ovoui/frame/EntryPoint.h>
#include <ovoui/frame/ScreenDc.h>

#include <commctrl.h>

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
    const auto watch = std::make_shared<ResolutionWatch>();
    const auto self = reinterpret_cast<DWORD_PTR>(watch.get());
    if (!::SetWindowSubclass(window, &procedure, self, self))
        return nullptr;
    watch->m_heard = std::move(heard);
    watch->m_keepsItself = watch;
    return watch;
}

LRESULT CALLBACK ResolutionWatch::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                            UINT_PTR id, DWORD_PTR self)
{
    const auto watch = reinterpret_cast<ResolutionWatch*>(self)->shared_from_this();
    if (message == WM_NCDESTROY) {
        ::RemoveWindowSubclass(window, &procedure, id);
        watch->stop();
        watch->m_keepsItself.reset();
    } else if (message == WM_DPICHANGED || message == WM_SYSCOLORCHANGE) {
        if (const Heard heard = watch->m_heard)
            heard(message == WM_DPICHANGED ? LOWORD(wParam) : 0);
        if (!::IsWindow(window))
            return 0;
    }
    return ::DefSubclassProc(window, message, wParam, lParam);
}

} // namespace ovoui::images
