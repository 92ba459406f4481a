/// Not exported: texts of the message catalogue for units that build natively too, where they are English.
#pragma once

#include <ovomsg/MessageIds.h>

#include <initializer_list>
#include <string>
#include <string_view>

namespace OVO
{

/// The text of a message, in which each %s is replaced by the next argument.
std::wstring catalogueText(OvoMessageId id, std::initializer_list<std::wstring_view> arguments = {});

} // namespace OVO
