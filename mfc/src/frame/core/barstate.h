// Internal: what a saved arrangement of bars gives. Plain values, no windows.
#pragma once

#include <span>
#include <vector>

namespace afxdetail
{

/// A bar as it was saved.
struct SavedBar
{
    unsigned id = 0;
    bool floating = false;
    unsigned dockBar = 0; ///< the number of the side that it was docked to
    int row = 0;
    int position = 0;
    int start = 0;

    bool operator==(const SavedBar&) const = default;
};

/// A bar that is to be docked now. In this order each goes behind those before it.
struct DockStep
{
    std::size_t saved = 0; ///< which of the saved bars
    bool newRow = false;
    int row = 0; ///< counted at its side, without what is not in the arrangement

    bool operator==(const DockStep&) const = default;
};

/// The steps that restore an arrangement of those bars and sides that are there. Of a number that was saved
/// twice the first counts. Rows close up where bars are missing.
std::vector<DockStep> dockSteps(std::span<const SavedBar> saved, std::span<const unsigned> bars,
                                std::span<const unsigned> dockBars);

} // namespace afxdetail
