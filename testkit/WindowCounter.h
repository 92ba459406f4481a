#pragma once

namespace ovo::testkit
{

/// Counts the windows of the calling thread: shown or not, children and message-only ones included. The input
/// method's own windows, which come and go with the first top-level window, do not count.
class WindowCounter
{
public:
    /// How many there are now.
    static int live();

    /// How many more there are than when this object was made.
    int grown() const { return live() - m_start; }

private:
    int m_start = live();
};

} // namespace ovo::testkit
