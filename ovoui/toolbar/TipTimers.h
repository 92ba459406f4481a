/// Not exported: when the tip of a window comes, and when it goes again.
#pragma once

#include <afxwin.h>

namespace ovoui::toolbar
{

/// Two timers of a window.
class TipTimers
{
public:
    enum class Due
    {
        Nothing,
        Show,
        Hide
    };

    explicit TipTimers(CWnd& window)
        : m_window(window)
    {
    }

    /// The tip is to come in so many milliseconds.
    void await(UINT delay) { m_window.SetTimer(kCome, delay, nullptr); }
    /// It is shown, for so many milliseconds.
    void shown(UINT time) { m_window.SetTimer(kGo, time, nullptr); }
    /// It is not wanted any more.
    void stop()
    {
        m_window.KillTimer(kCome);
        m_window.KillTimer(kGo);
    }

    /// What a WM_TIMER of the window leads to.
    Due due(UINT_PTR id)
    {
        if (id != kCome && id != kGo)
            return Due::Nothing;
        m_window.KillTimer(id);
        return id == kCome ? Due::Show : Due::Hide;
    }

private:
    static constexpr UINT_PTR kCome = 43;
    static constexpr UINT_PTR kGo = 44;

    CWnd& m_window;
};

} // namespace ovoui::toolbar
