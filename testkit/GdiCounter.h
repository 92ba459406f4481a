#pragma once

#include "Growth.h"

namespace ovo::testkit
{

/// Counts the live GDI objects of the process: bitmaps, brushes, device contexts, fonts, pens, regions.
class GdiCounter : public Growth<GdiCounter>
{
public:
    /// How many there are now.
    static int live();
};

} // namespace ovo::testkit
