// Internal: what parts of the framework have to do at the end of the program.
#pragma once

namespace afxdetail
{

/// Adds work for AfxWinTerm, which does what was added last first.
void registerTermWork(void (*work)());

} // namespace afxdetail
