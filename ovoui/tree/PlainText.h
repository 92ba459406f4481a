/// Text for a drag or for the clipboard.
#pragma once

#include <ovoui/export.h>

#include <string>

class COleDataSource;

/// Offers `text` on `source` as Unicode text (CF_UNICODETEXT) and in the ANSI code page (CF_TEXT). A format
/// for which there is no memory is left out.
OVOUI_API void cachePlaintext(COleDataSource& source, const std::wstring& text);

/// Puts `text` on the clipboard in the same formats, for hosts that have called AfxOleInit. Tries again for a
/// moment while another program has the clipboard open, and throws OvoError when that does not end; where OLE
/// was not started, WinError with CO_E_NOTINITIALIZED.
OVOUI_API void copyPlaintext(const std::wstring& text);
