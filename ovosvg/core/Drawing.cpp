#include <ovosvg/core/Drawing.h>

#include <ovosvg/core/Renderer.h>

namespace ovosvg
{

Drawing::Drawing(std::string_view utf8)
    : m_root(readXml(utf8))
{
    if (localName(m_root.name) != "svg")
        throw SvgFailure{{SvgIssue::NotSvg, m_root.place.line, m_root.place.column, m_root.name}};
}

Canvas Drawing::draw(int width, int height, std::uint32_t currentColour, std::vector<SvgNote>& notes,
                     const Budget& budget) const
{
    if (width < 1 || height < 1 || width > kMostPixels / height)
        throw SvgFailure{{SvgIssue::TooLarge, 0, 0, "size"}};
    Renderer renderer(m_root, width, height, notes, budget);
    return renderer.render(currentColour);
}

} // namespace ovosvg
