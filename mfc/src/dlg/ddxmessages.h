// Internal: how data exchange tells the user that a value is refused.
#pragma once

#include "core/numbertext.h"

#include <afxwin.h>

namespace afxdetail
{

/// Shows a string of the framework and fails the exchange.
[[noreturn]] void refuse(CDataExchange* exchange, UINT messageId);

/// The same with the string's %1 and %2 replaced.
[[noreturn]] void refuse(CDataExchange* exchange, UINT messageId, const std::wstring& first,
                         const std::wstring& second = {});

} // namespace afxdetail
