// Internal to OLE: a list of formats for whoever asks a data source what it has.
#pragma once

#include <ole2.h>

#include <vector>

namespace afxdetail
{

/// An enumerator over copies of these formats, with one reference.
IEnumFORMATETC* enumerateFormats(const std::vector<FORMATETC>& formats);

} // namespace afxdetail
