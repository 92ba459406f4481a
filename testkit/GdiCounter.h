#pragma once

namespace ovo::testkit
{

/// Counts the live GDI objects of the process: bitmaps, brushes, device contexts, fonts, pens, regions.
class GdiCounter
{
public:
    /// How many there are now.
    static int live();

    /// How many more there are than when this object was made.
    int grown() const { return live() - m_start; }

private:
    int m_start = live();
};

} // namespace ovo::testkit
