#include <ovocor/IntCast.h>

#include <ovocor/core/CatalogueText.h>

IntCastError::IntCastError()
    : OvoError(OVO::catalogueText(OVOMSG_NUMBER_RANGE))
{
}

IntCastError::IntCastError(const IntCastError&) noexcept = default;

IntCastError& IntCastError::operator=(const IntCastError&) noexcept = default;

IntCastError::~IntCastError() = default;

void throwIntCast()
{
    throw IntCastError();
}
