/// Opens web addresses.
#pragma once

#include <ovoui/export.h>

#include <string>

/// Hands an http, https or ftp address, in its canonical form, to the program that the user has chosen for
/// such addresses. Throws OvoError, with the address and the reason, when it is not valid or of another
/// scheme, or when the shell cannot open it; then the shell has not seen it, or has refused it.
OVOUI_API void browseUrl(const std::wstring& address);
