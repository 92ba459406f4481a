/// Scrolling while something is dragged near an edge: direction and timing. Plain values, no windows.
#pragma once

namespace ovoui::tree
{

/// A direction as one number: the high byte is vertical (0 up, 1 down), the low byte horizontal (0 left,
/// 1 right), 0xFF for neither.
inline constexpr unsigned kScrollNone = 0xFFFF;
inline constexpr unsigned kScrollUp = 0x00;
inline constexpr unsigned kScrollDown = 0x01;

constexpr unsigned verticalPart(unsigned code)
{
    return (code >> 8) & 0xFF;
}

struct ScrollArea
{
    int left;
    int top;
    int right;  ///< exclusive
    int bottom; ///< exclusive
};

/// The direction for a point in `client`, whose edges are `inset` pixels wide. kScrollNone in the middle and
/// outside.
unsigned scrollCode(int x, int y, const ScrollArea& client, int inset);

/// When the next step is due. Times in milliseconds, from any clock that may wrap around.
class EdgeScrollTimer
{
public:
    /// `delay` passes before the first step, `interval` between the others.
    EdgeScrollTimer(unsigned delay, unsigned interval)
        : m_delay(delay)
        , m_interval(interval)
    {
    }

    bool running() const { return m_code != kScrollNone; }

    /// The pointer stays in the direction `code` (not kScrollNone) at the time `now`. True when a step is
    /// due.
    bool stepDue(unsigned code, unsigned now);

    void stop() { m_code = kScrollNone; }

private:
    unsigned m_delay;
    unsigned m_interval;
    unsigned m_code = kScrollNone;
    unsigned m_since = 0;
    unsigned m_wait = 0;
};

} // namespace ovoui::tree
