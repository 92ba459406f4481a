// Internal: what is left to do when a thread ends that the framework has started.
#pragma once

namespace afxdetail
{

/// Deletes the thread's handle maps. Windows that it still has are no longer known.
void releaseThreadMaps();

/// Deletes the thread's block.
void releaseThreadState();

} // namespace afxdetail
