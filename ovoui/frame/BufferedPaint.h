/// Not exported. Painting without flicker: into memory, and onto the window in one piece.
#pragma once

#include <afxwin.h>

/// Made in OnPaint. The window's client area gets what was drawn when this object goes; without the memory
/// for it, drawing goes straight to the window.
class BufferedPaint
{
public:
    explicit BufferedPaint(CWnd& wnd);
    ~BufferedPaint();
    BufferedPaint(const BufferedPaint&) = delete;
    BufferedPaint& operator=(const BufferedPaint&) = delete;

    /// Its origin is that of the client area.
    CDC& dc() { return m_old ? m_memory : m_paint; }

private:
    CPaintDC m_paint;
    CRect m_client;
    CBitmap m_bitmap;
    CDC m_memory;
    CBitmap* m_old = nullptr; // what the memory had selected; null when drawing goes to the window
};
