/// Counts the blocks that the process has on its heaps.
#pragma once

class HeapCounter
{
public:
    /// Blocks in use now, on all heaps.
    static int live();

    /// How many more there are than when this object was made.
    int grown() const { return live() - m_start; }

private:
    int m_start = live();
};
