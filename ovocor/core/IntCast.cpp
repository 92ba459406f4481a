#include <ovocor/IntCast.h>

IntCastError::IntCastError()
    : OvoError(L"The number is out of range.")
{
}

IntCastError::IntCastError(const IntCastError&) noexcept = default;

IntCastError& IntCastError::operator=(const IntCastError&) noexcept = default;

IntCastError::~IntCastError() = default;

void throwIntCast()
{
    throw IntCastError();
}
