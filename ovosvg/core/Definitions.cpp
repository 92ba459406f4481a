#include <ovosvg/core/Definitions.h>

#include <ovosvg/core/Values.h>

namespace ovosvg
{

namespace
{

/// Null without an address. One without a prefix is the newer way, and counts more.
const std::string* addressOf(const XmlElement& element)
{
    if (const std::string* const plain = element.find("href"))
        return plain;
    for (const XmlAttribute& attribute : element.attributes)
        if (localName(attribute.name) == "href")
            return &attribute.value;
    return nullptr;
}

} // namespace

std::string_view localName(std::string_view name)
{
    return name.substr(name.find(':') + 1); // npos + 1 is 0
}

Definitions::Definitions(const XmlElement& root)
{
    add(root);
}

void Definitions::add(const XmlElement& element)
{
    if (const std::string* const id = element.find("id"))
        m_all.emplace(*id, &element);
    for (const XmlElement& child : element.children) {
        m_parents.emplace(&child, &element);
        add(child);
    }
}

const XmlElement* Definitions::find(std::string_view id) const
{
    const auto found = m_all.find(id);
    return found == m_all.end() ? nullptr : found->second;
}

const XmlElement* Definitions::referredBy(const XmlElement& element) const
{
    const std::string* const address = addressOf(element);
    const std::string_view text = address ? trimmed(*address) : std::string_view();
    return text.starts_with('#') ? find(text.substr(1)) : nullptr;
}

bool Definitions::refers(const XmlElement& element)
{
    return addressOf(element) != nullptr;
}

const XmlElement* Definitions::parentOf(const XmlElement& element) const
{
    const auto found = m_parents.find(&element);
    return found == m_parents.end() ? nullptr : found->second;
}

} // namespace ovosvg
