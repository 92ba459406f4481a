/// Not exported: moves of a window that are not the user's.
#pragma once

namespace ovoui::frame
{

/// Keeps a flag that tells of moves as it was at the beginning of a scope, however the scope ends.
class UncountedMoves
{
public:
    explicit UncountedMoves(bool& moved)
        : m_moved(moved)
        , m_before(moved)
    {
    }
    ~UncountedMoves() { m_moved = m_before; }
    UncountedMoves(const UncountedMoves&) = delete;
    UncountedMoves& operator=(const UncountedMoves&) = delete;

private:
    bool& m_moved;
    const bool m_before;
};

} // namespace ovoui::frame
