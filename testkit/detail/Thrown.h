// Exceptions in the words of a failure.
#pragma once

#include <exception>
#include <string>

namespace ovo::testkit
{

/// What an exception says of itself. The object of a CException is deleted.
std::string thrownText(const std::exception_ptr& thrown);

} // namespace ovo::testkit
