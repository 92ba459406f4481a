/// Not exported. The edit control beside a slider button.
#pragma once

#include <windows.h>

#include <string>

namespace ovoui::sliders
{

/// A window of the host's, which may go at any time. It is asked anew each time that it is needed.
class Buddy
{
public:
    void set(HWND window) { m_window = window; }
    HWND window() const { return m_window; }
    bool exists() const { return ::IsWindow(m_window) != FALSE; }

    /// All of its text; empty when it is gone.
    std::wstring text() const;

    /// Gives it a text. Its parent hears of that from the control itself.
    void show(const std::wstring& text) const;

    /// Sends its parent a message with the buddy as wParam. The parent may destroy anything.
    void tellParent(UINT message) const;

private:
    HWND m_window = nullptr;
};

} // namespace ovoui::sliders
