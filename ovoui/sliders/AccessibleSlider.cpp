#include <ovoui/sliders/AccessibleSlider.h>

#include <ovoui/frame/WindowText.h>
#include <ovoui/frame/core/LabelText.h>

#include <oleacc.h>

#include <utility>

namespace ovoui::sliders
{

AccessibleSlider::AccessibleSlider(const CWnd& slider, Text name, Text value)
    : m_window(slider.m_hWnd)
    , m_watch(slider)
    , m_name(std::move(name))
    , m_value(std::move(value))
{
}

void AccessibleSlider::offer(Text action, std::function<void()> act)
{
    m_action = std::move(action);
    m_act = std::move(act);
}

HWND AccessibleSlider::window() const
{
    return m_watch.alive() ? m_window : nullptr;
}

LONG AccessibleSlider::role(int) const
{
    return ROLE_SYSTEM_SLIDER;
}

std::wstring AccessibleSlider::name(int) const
{
    return m_name();
}

std::wstring AccessibleSlider::value(int) const
{
    return m_value();
}

std::wstring AccessibleSlider::action(int) const
{
    return m_action ? m_action() : std::wstring();
}

void AccessibleSlider::act(int)
{
    m_act();
}

std::wstring labelBefore(HWND control)
{
    const HWND label = ::GetWindow(control, GW_HWNDPREV);
    wchar_t kind[16]{};
    ::GetClassNameW(label, kind, 16);
    if (::lstrcmpiW(kind, L"Static") != 0)
        return {};
    return frame::nameFromLabel(frame::windowText(label));
}

std::wstring labelOrText(HWND control)
{
    const std::wstring name = labelBefore(control);
    return name.empty() ? frame::windowText(control) : name;
}

} // namespace ovoui::sliders
