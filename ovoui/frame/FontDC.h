/// Not exported: measuring in a window's font.
#pragma once

#include <ovocor/ovocor.h>

#include <afxwin.h>

namespace ovoui::frame
{

/// A window DC with the window's font selected for the life of the object, which must not outlive the window.
class FontDC
{
public:
    explicit FontDC(CWnd& wnd)
        : m_dc(&wnd)
        , m_previous(m_dc.SelectObject(wnd.GetFont()))
    {
    }
    ~FontDC() { m_dc.SelectObject(m_previous); }
    FontDC(const FontDC&) = delete;
    FontDC& operator=(const FontDC&) = delete;

    CDC& dc() { return m_dc; }

    /// Throws WinError when the font cannot be measured.
    TEXTMETRICW metrics()
    {
        TEXTMETRICW metrics{};
        if (!m_dc.GetTextMetrics(&metrics))
            throw WinError(L"GetTextMetrics", ::GetLastError());
        return metrics;
    }

private:
    CWindowDC m_dc;
    CFont* m_previous;
};

} // namespace ovoui::frame
