/// How a slider's position stands for a number. Plain values, no windows.
#pragma once

namespace ovoui::sliders
{

enum class Mapping
{
    Linear,
    Logarithmic,
    SquareRoot,
};

/// The numbers at the two ends of the slider. `low` may be the greater one.
struct RealRange
{
    double low = 1.0;
    double high = 100.0;
};

/// The positions at the two ends of the slider.
struct Positions
{
    int minimum = 0;
    int maximum = 100;
};

/// The position that shows `value`, always one of the slider's: what cannot be mapped (NaN, an empty range,
/// the logarithm of a range that holds zero) is shown at the minimum. In a logarithmic or square-root slider
/// a value that is not positive counts as the low end.
int positionOf(double value, Mapping mapping, const RealRange& range, const Positions& positions);

/// The number that `position` stands for. Linear: lo + (hi - lo) t. Logarithmic: lo (hi / lo)^t. Square root:
/// lo + (hi - lo) t^2, which undoes `positionOf` only where lo is 0. What cannot be mapped gives the low end.
double valueAt(int position, Mapping mapping, const RealRange& range, const Positions& positions);

/// How far `value` lies from the low end to the high end: 0 and 1 at the ends, NaN where there is no answer.
double fractionOf(double value, Mapping mapping, const RealRange& range);

/// The number at a share of the way, as `valueAt` has it.
double valueAtShare(double share, Mapping mapping, const RealRange& range);

/// What one page of the slider is when `pages` of them make the whole: the whole-number quotient. Without
/// pages it is the whole.
int pageSize(const Positions& positions, int pages);

} // namespace ovoui::sliders
