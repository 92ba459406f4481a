// Internal: the hourglass of a thread.
#pragma once

#include <detail/threadstate.h>

namespace afxdetail
{

/// 1 begins, -1 ends, 0 shows the hourglass again if it is due. The pointer of before comes back at the last end.
void countWaitCursor(int code);

} // namespace afxdetail
