/// XML as far as drawings need it: elements with attributes. Plain values, no windows.
#pragma once

#include <ovosvg/core/Limits.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ovosvg
{

struct XmlPlace
{
    int line = 1;
    int column = 1;
};

struct XmlAttribute
{
    std::string name;
    std::string value; ///< with references replaced and line breaks as blanks
    XmlPlace place;
};

/// An element with what is in it. Text is left out.
struct XmlElement
{
    std::string name; ///< with its prefix, if it has one
    XmlPlace place;
    std::vector<XmlAttribute> attributes;
    std::vector<XmlElement> children;

    /// Null without the attribute.
    const std::string* find(std::string_view attribute) const;

    /// What it costs of a drawing's budget to read the attributes.
    std::int64_t cost() const;
};

/// The outermost element of a document in UTF-8. Comments, processing instructions and a document type
/// without declarations are passed over; CDATA counts as text. Raises SvgFailure, NotWellFormed with what is
/// wrong, or TooLarge.
XmlElement readXml(std::string_view text);

} // namespace ovosvg
