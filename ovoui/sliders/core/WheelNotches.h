/// Turns of a mouse wheel in whole notches. Plain values, no windows.
#pragma once

namespace ovoui::sliders
{

/// Adds up turns, since wheels without notches tell of parts of one.
class WheelNotches
{
public:
    static constexpr int kNotch = 120; ///< what a wheel message says of one notch

    /// How many whole notches the wheel has turned with this, positive away from the user. The rest counts
    /// the next time.
    int turned(int delta)
    {
        const int sum = m_rest + delta;
        m_rest = sum % kNotch;
        return sum / kNotch;
    }

private:
    int m_rest = 0;
};

} // namespace ovoui::sliders
