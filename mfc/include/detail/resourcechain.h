// Internal: where the framework looks for resources, beyond what AfxFindResourceHandle says of it.
#pragma once

#include <afx/Platform.h>

#include <functional>
#include <string_view>

namespace afxdetail
{

/// The first module of the resource chain that a question is answered with yes for; null when there is none.
HINSTANCE firstInResourceChain(const std::function<bool(HINSTANCE)>& question);

/// A string of one module, in the module's own memory; empty when there is none.
std::wstring_view stringResource(HINSTANCE module, UINT id, WORD language);

/// A string of the first module of the chain that has that very string. Strings lie in blocks of sixteen;
/// another module may have the block, but not the string.
std::wstring_view stringResource(UINT id);

/// The module of that string, for controls that load it themselves; the current one when none has it.
HINSTANCE moduleOfString(UINT id);

} // namespace afxdetail
