/// Walks over the rows that a tree displays. `next` gives the row after one, or none at the end; rows are
/// pointers or what behaves like them. Plain values, no windows.
#pragma once

#include <vector>

namespace ovoui::tree
{

/// The rows from one to the other, whichever stands first; those that are not displayed are given as none.
/// Both go on downwards in turn until one meets the other: which stands first is not known, and the rest of
/// the tree is no matter. With none in place of one, all rows from the other on.
template <class Row, class Next>
std::vector<Row> rowRange(Row a, Row b, const Next& next)
{
    struct Walk
    {
        Row at;
        Row goal;
        std::vector<Row> passed{};
    };
    Walk walks[] = {{a, b}, {b, a}};
    Walk* toTheEnd = nullptr; // the one that went furthest without meeting the other
    while (walks[0].at || walks[1].at)
        for (Walk& walk : walks) {
            if (!walk.at)
                continue;
            walk.passed.push_back(walk.at);
            if (walk.at == walk.goal)
                return walk.passed;
            walk.at = next(walk.at);
            if (!walk.at)
                toTheEnd = &walk;
        }
    return toTheEnd ? toTheEnd->passed : std::vector<Row>();
}

/// The row where a page ends that begins at `from`: as many rows on as a window shows, less one that stays in
/// sight, one at least, as far as there are rows.
template <class Row, class Next>
Row pageOn(Row from, int rowsShown, const Next& next)
{
    Row row = from;
    for (int left = rowsShown > 2 ? rowsShown - 1 : 1; row && left > 0; --left) {
        const Row after = next(row);
        if (!after)
            break;
        row = after;
    }
    return row;
}

} // namespace ovoui::tree
