/// Not exported. Errors about an address.
#pragma once

#include <ovocor/OvoError.h>
#include <ovocor/Text.h>
#include <ovomsg/ovomsg.h>

#include <string>

namespace ovoui::update
{

/// Throws OvoError with a message of the catalogue, which names the address and then the reason, if there is
/// one.
template <class... Reason>
[[noreturn]] void refuse(unsigned message, const std::wstring& address, const Reason&... reason)
{
    throw OvoError(stringPrintf(ovoMsg(message).c_str(), address.c_str(), reason.c_str()...));
}

} // namespace ovoui::update
