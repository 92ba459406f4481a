/// The error for numbers that do not fit the type that has to hold them.
#pragma once

#include <ovocor/OvoError.h>
#include <ovocor/export.h>

/// A number is outside the range of the integer type that has to hold it.
class OVOCOR_API IntCastError : public OvoError
{
public:
    IntCastError();
    IntCastError(const IntCastError&) noexcept;
    IntCastError& operator=(const IntCastError&) noexcept;
    ~IntCastError() override;
};

/// Raises IntCastError.
[[noreturn]] OVOCOR_API void throwIntCast();
