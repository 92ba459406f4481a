// Internal to OLE: copies of data in its medium.
#pragma once

#include <ole2.h>

namespace afxdetail
{

/// Makes `copy` hold the same data as `medium`, freed apart from it. FALSE on failure.
bool duplicateMedium(CLIPFORMAT format, const STGMEDIUM& medium, STGMEDIUM& copy);

/// Copies the data into a medium that exists already and has the same kind.
HRESULT copyInto(const STGMEDIUM& medium, STGMEDIUM& target);

} // namespace afxdetail
