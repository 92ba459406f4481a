/// What a drawing holds that cannot be drawn, and where.
#pragma once

#include <string>

namespace ovosvg
{

/// What is the matter.
enum class SvgIssue
{
    NotWellFormed, ///< no well-formed XML
    NotSvg,        ///< the outermost element is not svg
    TooLarge,      ///< beyond a limit, such as of depth or of the work of drawing
    BadValue,      ///< a value that cannot be read; what it belongs to is drawn as without it
    NotSupported   ///< something that this reader does not draw
};

/// A remark about a place in a drawing.
struct SvgNote
{
    SvgIssue issue;   ///< what is the matter
    int line;         ///< from 1; 0 when it is about the drawing as a whole
    int column;       ///< from 1, in characters; 0 as above
    std::string what; ///< the element, attribute or limit that it is about, in UTF-8

    friend bool operator==(const SvgNote&, const SvgNote&) = default;
};

} // namespace ovosvg
