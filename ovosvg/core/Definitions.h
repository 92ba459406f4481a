/// What a drawing refers to by an id. Plain values, no windows.
#pragma once

#include <ovosvg/core/XmlReader.h>

#include <map>
#include <string_view>
#include <unordered_map>

namespace ovosvg
{

/// A name without its prefix.
std::string_view localName(std::string_view name);

/// The elements that have an id, the first one of those with the same, and what elements lie in. It refers to
/// the elements, which must stay.
class Definitions
{
public:
    explicit Definitions(const XmlElement& root);

    /// Null when there is none.
    const XmlElement* find(std::string_view id) const;
    /// What the element refers to by href, with whatever prefix; null without it and for what lies outside.
    const XmlElement* referredBy(const XmlElement& element) const;
    /// Whether the element refers to anything, be it there or not.
    static bool refers(const XmlElement& element);
    /// What the element lies in; null for the outermost one.
    const XmlElement* parentOf(const XmlElement& element) const;

private:
    void add(const XmlElement& element);

    std::map<std::string_view, const XmlElement*> m_all;
    std::unordered_map<const XmlElement*, const XmlElement*> m_parents;
};

} // namespace ovosvg
