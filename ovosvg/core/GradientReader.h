/// Gradients from their elements. Plain values, no windows.
#pragma once

#include <ovosvg/core/Definitions.h>
#include <ovosvg/core/Gradient.h>
#include <ovosvg/core/Limits.h>

#include <cstdint>
#include <functional>
#include <optional>

namespace ovosvg
{

/// What a gradient is read for.
struct GradientUse
{
    Box bounds;           ///< of what is painted, in its own units
    Box viewport;         ///< what percentages refer to
    Matrix toPicture;     ///< from these units to the picture
    std::uint32_t colour; ///< for currentColor where no element around a stop has a color
    Budget& budget;       ///< what reading costs is taken from it
};

/// The gradient of an element, with what it takes over from others by reference. None for one without stops
/// or that has no room, with which nothing is painted. `note` is told of attributes that cannot be read.
std::optional<Gradient>
readGradient(const XmlElement& element, const Definitions& definitions, const GradientUse& use,
             const std::function<void(const char* attribute, const XmlElement& of)>& note);

} // namespace ovosvg
