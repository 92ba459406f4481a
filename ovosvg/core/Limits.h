/// What keeps a drawing from taking all time and memory. Plain values, no windows.
#pragma once

#include <ovosvg/SvgNote.h>

#include <cstddef>
#include <cstdint>

namespace ovosvg
{

/// Raised for what makes a drawing unusable.
struct SvgFailure
{
    SvgNote note;
};

inline constexpr std::size_t kMostBytes = 4 << 20;  ///< of a source
inline constexpr int kMostDepth = 64;               ///< of elements in each other, references counted
inline constexpr int kMostElements = 50'000;        ///< in a source, and as they are drawn
inline constexpr std::size_t kMostAttributes = 200; ///< of an element
inline constexpr int kMostPixels = 2048 * 2048;     ///< of the picture and of its layers together

// What the parts of a drawing cost of its budget, with their memory in mind.
inline constexpr std::int64_t kPointCost = 100;
inline constexpr std::int64_t kDashCost = 400;
inline constexpr std::int64_t kPixelsAStep = 8; ///< of an area that is painted

/// The work of one drawing. Each `spend` counts some of it; too much is a failure.
class Budget
{
public:
    explicit Budget(std::int64_t steps = 200'000'000)
        : m_steps(steps)
    {
    }
    void spend(std::int64_t steps)
    {
        m_steps -= steps;
        if (m_steps < 0)
            throw SvgFailure{{SvgIssue::TooLarge, 0, 0, "work"}};
    }

private:
    std::int64_t m_steps;
};

} // namespace ovosvg
