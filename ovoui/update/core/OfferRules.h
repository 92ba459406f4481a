/// What a look at the list leads to that the user did not ask for, and what the answer to an offer. Plain
/// values, no windows.
#pragma once

namespace ovoui::update
{

/// What a look at the list came to.
enum class Look
{
    Failed, ///< it could not be fetched or used
    NothingNew,
    Newer,  ///< there is a newer version
    Skipped ///< there is one, of which the user wants to hear no more
};

struct PoliteRule
{
    bool noted;   ///< the next look is due only after the usual days
    bool offered; ///< the user is shown the newer version

    friend bool operator==(const PoliteRule&, const PoliteRule&) = default;
};

/// A look that failed leaves no trace, so that the next call looks again.
PoliteRule afterLook(Look look);

/// Whether the user has asked for updates.
enum class Asked
{
    Yes,
    No ///< the dialog then has the choices to be reminded later and to skip the version
};

enum class OfferAction
{
    Nothing,
    OpenPage,
    Skip, ///< the version is not offered any more
    RemindLater
};

/// What follows when the dialog with a newer version ends with this result.
OfferAction afterAnswer(Asked asked, int result);

} // namespace ovoui::update
