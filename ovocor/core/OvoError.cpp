#include <ovocor/OvoError.h>

#include <ovocor/core/Utf.h>

struct OvoError::Texts
{
    std::wstring wide;
    std::string narrow;
};

OvoError::OvoError(std::wstring_view text)
    : m_texts(std::make_shared<const Texts>(Texts{std::wstring(text), OVO::encodeUtf8(text)}))
{
}

OvoError::OvoError(const OvoError&) noexcept = default;

OvoError& OvoError::operator=(const OvoError&) noexcept = default;

OvoError::~OvoError() = default;

const wchar_t* OvoError::wwhat() const noexcept
{
    return m_texts->wide.c_str();
}

const char* OvoError::what() const noexcept
{
    return m_texts->narrow.c_str();
}
