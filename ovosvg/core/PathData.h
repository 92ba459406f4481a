/// The d attribute of a path. Plain values, no windows.
#pragma once

#include <ovosvg/core/Path.h>

#include <string_view>

namespace ovosvg
{

struct PathReading
{
    Path path;     ///< as far as the text can be read
    bool complete; ///< that is all of it
};

/// Reads all commands, absolute and relative: M, L, H, V, C, S, Q, T, A and Z.
PathReading readPath(std::string_view text);

} // namespace ovosvg
