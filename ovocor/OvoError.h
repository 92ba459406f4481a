/// The exception of the library family.
#pragma once

#include <ovocor/export.h>

#include <exception>
#include <memory>
#include <string>
#include <string_view>

/// An error with a text for the user. Thrown by value, caught by reference; copying never fails.
class OVOCOR_API OvoError : public std::exception
{
public:
    /// `text` is what the user reads.
    explicit OvoError(std::wstring_view text);
    OvoError(const OvoError&) noexcept;
    OvoError& operator=(const OvoError&) noexcept;
    ~OvoError() override;

    /// The text; valid as long as this object.
    virtual const wchar_t* wwhat() const noexcept;

    /// The same text in UTF-8.
    const char* what() const noexcept override;

private:
    struct Texts;
    std::shared_ptr<const Texts> m_texts;
};
