/// The rules of an angle slider: what a press, a move and a release of the mouse do to its angle. Angles are
/// in degrees. Plain values, no windows.
#pragma once

#include <functional>
#include <optional>
#include <utility>

namespace ovoui::sliders
{

/// The angle of the point of a cylinder whose projection lies at `coordinate`: 90 at or before `first`, -90
/// at or beyond `second`, between them the arc sine of the distance from the middle (a whole pixel) in half
/// widths.
double angleUnder(int coordinate, int first, int second);

/// The angles that a slider accepts from the user.
enum class Turn
{
    Endless,
    Half, ///< from -90 to 90
};

/// An angle slider's value and its drag.
class CylinderDrag
{
public:
    explicit CylinderDrag(Turn turn)
        : m_turn(turn)
    {
    }

    /// Limits further what the user does; none at first.
    void limitBy(std::function<double(double)> limit) { m_limit = std::move(limit); }
    /// Whether a press without a move nudges the angle; it does at first.
    void nudgeByClicks(bool nudge) { m_nudges = nudge; }

    /// The committed angle. It can be any; what the user does is what the turn limits.
    double position() const { return m_position; }
    void setPosition(double degrees) { m_position = degrees; }

    /// What is to be seen: the drag's angle while there is a drag.
    double shown() const { return m_dragging ? m_dragPosition : m_position; }

    bool dragging() const { return m_dragging; }

    /// The button goes down with the pointer above the angle `under`.
    void press(double under);

    /// The angle to tell the parent when the pointer has come to the angle `under`, if that changes anything.
    /// It is shown when `track` is called with it afterwards.
    /// With a `snap` above 0 the angle is a multiple of it, here and in `release`.
    std::optional<double> move(double under, double snap = 0);
    void track(double degrees) { m_dragPosition = degrees; }

    /// The button has gone up above `under`: commits the angle. A press without a move nudges it by a third
    /// of the angle pressed. Gives the angle to tell the parent.
    double release(double under, double snap = 0);

    /// The user has chosen an angle in one step: commits it, as far as the turn allows.
    void turnTo(double degrees) { m_position = accepted(degrees); }

    /// The drag is over without a word.
    void cancel() { m_dragging = false; }

private:
    double accepted(double degrees) const;

    double m_position = 0;
    double m_dragPosition = 0;
    bool m_dragging = false;
    bool m_moved = false;    // the pointer has changed the angle since the press
    double m_grabOffset = 0; // the angle under the pointer less the position, at the press
    Turn m_turn;
    std::function<double(double)> m_limit;
    bool m_nudges = true;
};

/// The angle as the round slider prints it: rounded half away from zero, and brought towards 0 to 359 by one
/// turn at most.
int printedAngle(double degrees);

/// The angle as a scroll message carries it: rounded half away from zero, in 16 bits. Angles that no 64-bit
/// number holds, and NaN, are carried as 0.
unsigned short messageAngle(double degrees);

} // namespace ovoui::sliders
