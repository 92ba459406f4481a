/// The text form in which a position is kept in the profile: "x,y".
#pragma once

#include <string>

namespace ovoui::frame
{

struct SavedPosition
{
    static constexpr int kUnset = -1;

    int x = kUnset;
    int y = kUnset;

    /// A coordinate of -1 means that nothing was saved, even when it was read from a text.
    bool remembered() const { return x != kUnset && y != kUnset; }

    friend bool operator==(const SavedPosition&, const SavedPosition&) = default;
};

/// Reads "x,y" in decimal; coordinates that cannot be read stay unset.
SavedPosition parsePosition(const std::wstring& text);

/// The position, but not so far beyond any screen that a window there could not be moved back.
SavedPosition withinReach(const SavedPosition& position);

std::wstring formatPosition(const SavedPosition& position);

} // namespace ovoui::frame
