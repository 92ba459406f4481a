#include <ovoui/frame/BufferedPaint.h>

BufferedPaint::BufferedPaint(CWnd& wnd)
    : m_paint(&wnd)
{
    wnd.GetClientRect(&m_client);
    if (m_client.IsRectEmpty() || !m_memory.CreateCompatibleDC(&m_paint))
        return;
    if (m_bitmap.CreateCompatibleBitmap(&m_paint, m_client.Width(), m_client.Height()))
        m_old = m_memory.SelectObject(&m_bitmap);
}

BufferedPaint::~BufferedPaint()
{
    if (!m_old)
        return;
    m_paint.BitBlt(0, 0, m_client.Width(), m_client.Height(), &m_memory, 0, 0, SRCCOPY);
    m_memory.SelectObject(m_old);
}
