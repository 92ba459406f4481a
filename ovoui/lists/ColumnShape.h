/// Not exported: what drawing needs to know of a column.
#pragma once

namespace ovoui::lists
{

struct ColumnShape
{
    int format; ///< LVCFMT_ bits
    int width;  ///< pixels
};

} // namespace ovoui::lists
