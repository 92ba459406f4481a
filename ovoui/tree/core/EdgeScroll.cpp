#include <ovoui/tree/core/EdgeScroll.h>

namespace ovoui::tree
{

namespace
{

constexpr unsigned kNeither = 0xFF;

unsigned part(int value, int low, int high)
{
    if (value < low)
        return 0;
    return value >= high ? 1 : kNeither;
}

} // namespace

unsigned scrollCode(int x, int y, const ScrollArea& client, int inset)
{
    const bool inside = x >= client.left && x < client.right && y >= client.top && y < client.bottom;
    if (!inside)
        return kScrollNone;
    const unsigned vertical = part(y, client.top + inset, client.bottom - inset);
    const unsigned horizontal = part(x, client.left + inset, client.right - inset);
    return vertical << 8 | horizontal;
}

bool EdgeScrollTimer::stepDue(unsigned code, unsigned now)
{
    if (code != m_code) {
        m_code = code;
        m_since = now;
        m_wait = m_delay;
        return false;
    }
    if (now - m_since <= m_wait)
        return false;
    m_since = now;
    m_wait = m_interval;
    return true;
}

} // namespace ovoui::tree
