// Internal to OLE: the list of formats that a data source offers.
#pragma once

#include <ole2.h>

#include <vector>

namespace afxdetail
{

/// An enumerator over copies of these formats, with one reference.
IEnumFORMATETC* enumerateFormats(const std::vector<FORMATETC>& formats);

} // namespace afxdetail
