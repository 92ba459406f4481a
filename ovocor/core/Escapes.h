/// Not exported. Characters that stand in an address as the codes of their bytes.
#pragma once

#include <string>
#include <string_view>

namespace OVO
{

/// `part` of an address with the characters that its %XX stand for, in UTF-8. A % without two hexadecimal
/// digits behind it stays.
std::wstring withoutEscapes(std::wstring_view part);

} // namespace OVO
