#include <ovoui/colour/core/ScreenPick.h>

#include <algorithm>

namespace ovoui::colour
{

namespace
{

/// The start of a length that lies behind a point by a gap, or before it where `high` does not let it.
int beside(int point, int length, int gap, int low, int high)
{
    const int behind = point + gap;
    const int before = point - gap - length;
    const int start = behind + length <= high || before < low ? behind : before;
    return std::max(low, std::min(start, high - length));
}

} // namespace

ScreenPick::Act ScreenPick::end(Act act)
{
    m_state = State::Idle;
    return act;
}

ScreenPick::Act ScreenPick::press()
{
    if (m_state == State::Keys)
        return end(Act::Take);
    if (m_state != State::Idle)
        return Act::None;
    m_state = State::Pressed;
    return Act::Begin;
}

ScreenPick::Act ScreenPick::move(bool onControl)
{
    if (m_state == State::Idle || (m_state == State::Pressed && onControl))
        return Act::None;
    if (m_state == State::Pressed)
        m_state = State::Dragging;
    return Act::Follow;
}

ScreenPick::Act ScreenPick::release()
{
    if (m_state == State::Pressed)
        return end(Act::GiveUp);
    return m_state == State::Dragging ? end(Act::Take) : Act::None;
}

ScreenPick::Act ScreenPick::start()
{
    if (m_state != State::Idle)
        return Act::None;
    m_state = State::Keys;
    return Act::Begin;
}

ScreenPick::Act ScreenPick::accept()
{
    return m_state == State::Keys ? end(Act::Take) : Act::None;
}

ScreenPick::Act ScreenPick::arrow()
{
    return m_state == State::Keys ? Act::Follow : Act::None;
}

ScreenPick::Act ScreenPick::interrupt()
{
    return m_state == State::Idle ? Act::None : end(Act::GiveUp);
}

frame::Box magnifierPlace(int x, int y, int width, int height, int gap, const frame::Box& screen)
{
    const int left = beside(x, width, gap, screen.left, screen.right);
    const int top = beside(y, height, gap, screen.top, screen.bottom);
    return {left, top, left + width, top + height};
}

} // namespace ovoui::colour
