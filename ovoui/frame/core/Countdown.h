/// The seconds until a message box presses its default button. Plain values, no windows.
#pragma once

#include <cstdint>
#include <string>

namespace ovoui::frame
{

/// What is to be done at a tick of the clock.
enum class CountTick
{
    Nothing, ///< the countdown does not run
    Show,    ///< the seconds that are left
    Press    ///< the default button
};

/// Whether a message is the user's input, by the platform's number: the countdown then ends.
bool endsCountdown(unsigned message);

/// Runs from its making until it is over or stopped. Times are in milliseconds of any clock that never goes
/// back.
class Countdown
{
public:
    Countdown() = default; ///< one that does not run
    Countdown(unsigned seconds, std::uint64_t now);

    bool isRunning() const { return m_running; }
    void stop() { m_running = false; }

    /// The seconds that are left, the one that has begun included.
    unsigned left(std::uint64_t now) const;

    /// Whether it is over; then it does not run any more, and is over only once.
    bool isOver(std::uint64_t now);

    CountTick tick(std::uint64_t now);

private:
    bool m_running = false;
    std::uint64_t m_end = 0;
};

/// The label of a button that will be pressed: "OK (9)".
std::wstring countedLabel(const std::wstring& label, unsigned left);

} // namespace ovoui::frame
