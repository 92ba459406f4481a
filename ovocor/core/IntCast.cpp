#include <ovocor/IntCast.h>

IntCastError::IntCastError()
    : OvoError(L"A number is too large or too small for the place that has to hold it.")
{
}

IntCastError::IntCastError(const IntCastError&) noexcept = default;

IntCastError& IntCastError::operator=(const IntCastError&) noexcept = default;

IntCastError::~IntCastError() = default;

void throwIntCast()
{
    throw IntCastError();
}
