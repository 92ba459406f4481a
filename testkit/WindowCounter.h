#pragma once

#include "Growth.h"

namespace ovo::testkit
{

/// Counts the windows of the calling thread: shown or not, children and message-only ones included. The input
/// method's own windows, which come and go with the first top-level window, do not count.
class WindowCounter : public Growth<WindowCounter>
{
public:
    /// How many there are now.
    static int live();
};

} // namespace ovo::testkit
