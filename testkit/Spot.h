#pragma once

#include <afxwin.h>

#include <concepts>
#include <functional>

namespace ovo::testkit
{

/// A place on the screen that is looked up at the moment it is needed, on the thread with the windows:
/// what a step refers to may have been created, scrolled or moved by the steps before it.
class Spot
{
public:
    /// A point of the screen, in pixels.
    Spot(CPoint screen)
        : m_find([screen] { return screen; })
    {
    }

    /// The middle of a window, which must exist when the step is taken.
    Spot(HWND window)
        : m_find([window] { return middleOf(window); })
    {
    }
    Spot(const CWnd& window)
        : Spot(window.GetSafeHwnd())
    {
    }

    /// A point relative to the client area of a window, in pixels.
    Spot(const CWnd& window, CPoint client)
        : m_find([handle = window.GetSafeHwnd(), client] { return screenPoint(handle, client); })
    {
    }

    /// What `find` gives when the step comes: a point of the screen.
    template <class Find>
    requires std::convertible_to<std::invoke_result_t<Find>, CPoint> Spot(Find find)
        : m_find(std::move(find))
    {
    }
    /// The middle of the window that `find` gives.
    template <class Find>
    requires std::convertible_to<std::invoke_result_t<Find>, HWND> Spot(Find find)
        : m_find([find = std::move(find)] { return middleOf(find()); })
    {
    }

    /// Where it is now, in pixels of the screen.
    CPoint find() const { return m_find(); }

private:
    /// Throws std::runtime_error when there is no such window.
    static CPoint middleOf(HWND window);
    static CPoint screenPoint(HWND window, CPoint client);

    std::function<CPoint()> m_find;
};

} // namespace ovo::testkit
