#include "Leftovers.h"

#include <support/GdiTypes.h>

#include <gtest/gtest.h>

Leftovers::Leftovers()
    : m_objects(gdiObjects())
{
}

void Leftovers::expectNone() const
{
    EXPECT_LE(m_gdi.grown(), 0) << gdiGrowth(m_objects, gdiObjects());
    EXPECT_EQ(m_windows.grown(), 0);
}
