#include <ovoui/frame/BufferedPaint.h>

#include <ovoui/frame/MemoryBitmap.h>

namespace
{

/// A bitmap of 32 bits in memory. One that is compatible with the window would have to ask the display first.
HBITMAP createMemoryBitmap(const CSize& size)
{
    const BITMAPINFO info = ovoui::frame::topDownInfo(size.cx, size.cy);
    void* bits = nullptr;
    return ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
}

} // namespace

BufferedPaint::BufferedPaint(CWnd& wnd)
    : m_paint(&wnd)
{
    wnd.GetClientRect(&m_client);
    if (m_client.IsRectEmpty() || !m_memory.CreateCompatibleDC(&m_paint))
        return;
    if (const HBITMAP bitmap = createMemoryBitmap(m_client.Size())) {
        m_bitmap.Attach(bitmap);
        m_old = m_memory.SelectObject(&m_bitmap);
        // Otherwise all would be reflected on its way to a window that is laid out from right to left,
        // letters too.
        m_memory.SetLayout(m_paint.GetLayout());
    }
}

BufferedPaint::~BufferedPaint()
{
    if (!m_old)
        return;
    m_paint.BitBlt(0, 0, m_client.Width(), m_client.Height(), &m_memory, 0, 0, SRCCOPY);
    m_memory.SelectObject(m_old);
}
