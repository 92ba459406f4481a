// What may stand for a conversion of a format (%s, %d), and how it travels to the functions with an ellipsis.
#pragma once

#include <type_traits>

class CString;

namespace afxdetail
{

/// A CString, or an object of a class derived from it.
template <class T>
inline constexpr bool isText = std::is_base_of_v<CString, T>;

/// Numbers, pointers, texts. Objects of other classes have no conversion, and do not compile.
template <class T>
concept FormatArgument = std::is_arithmetic_v<T> || std::is_enum_v<T> || std::is_pointer_v<T> ||
    std::is_null_pointer_v<T> || isText<T>;

/// A text becomes the pointer to its characters, which stay as long as `value`.
template <FormatArgument T>
auto formatArgument(const T& value)
{
    if constexpr (isText<T>)
        return value.GetString();
    else if constexpr (std::is_enum_v<T>)
        return static_cast<std::underlying_type_t<T>>(value);
    else
        return value;
}

} // namespace afxdetail
