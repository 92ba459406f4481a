/// The message catalogue: numbered texts, in the language of the calling thread, which is the user's unless
/// the host has chosen another one (ovoui/frame/Language.h).
///
///     throw OvoError(stringPrintf(ovoMsg(OVOMSG_URL_SCHEME).c_str(), url.c_str()));
#pragma once

#include <ovomsg/MessageIds.h>
#include <ovomsg/export.h>

#include <string>

/// The text of the message `id`, a printf format without a line end. A number without a text gives a text
/// that names the number and holds no format of its own.
OVOMSG_API std::wstring ovoMsg(unsigned id);
