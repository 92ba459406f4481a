/// A drawing that cannot be used.
#pragma once

#include <ovosvg/SvgNote.h>
#include <ovosvg/export.h>

#include <ovocor/OvoError.h>

#include <memory>

namespace ovosvg
{

/// Raised for a text that is no drawing, or one beyond the limits. The text for the user names line and
/// column where these help.
class OVOSVG_API SvgError : public OvoError
{
public:
    /// What is the matter, as `note` has it.
    explicit SvgError(const SvgNote& note);
    SvgError(const SvgError&) noexcept;
    SvgError& operator=(const SvgError&) noexcept;
    ~SvgError() override;

    /// What is the matter and where; valid as long as this object.
    const SvgNote& note() const noexcept;

private:
    std::shared_ptr<const SvgNote> m_note;
};

} // namespace ovosvg
