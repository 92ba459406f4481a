// Drawings as tests write them, and their pixels.
#pragma once

#include <ovosvg/core/Drawing.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ovosvg
{

/// The pixels of a drawing, premultiplied.
class Pixels
{
public:
    Pixels(const std::string& svg, int size, std::uint32_t currentColour = 0xFF000000)
        : m_size(size)
        , m_pixels(Drawing(svg).draw(size, size, currentColour, notes).premultiplied())
    {
    }

    std::uint32_t at(int x, int y) const { return m_pixels.at(static_cast<std::size_t>(y * m_size + x)); }

    /// The sum of all alpha, 1 for a whole pixel.
    double area() const
    {
        double sum = 0;
        for (const std::uint32_t pixel : m_pixels)
            sum += (pixel >> 24) / 255.0;
        return sum;
    }

    bool operator==(const Pixels& other) const { return m_pixels == other.m_pixels; }

    std::vector<SvgNote> notes;

private:
    int m_size;
    std::vector<std::uint32_t> m_pixels;
};

/// A drawing of `size` by `size` units.
inline std::string svg(const std::string& content, int size = 16)
{
    const std::string side = std::to_string(size);
    return "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 " + side + " " + side + "'>" + content +
           "</svg>";
}

inline Pixels drawn(const std::string& content, int size = 16)
{
    return Pixels(svg(content), size);
}

/// What is noted of a drawing, each as "issue what".
inline std::vector<std::string> notesOf(const std::string& content)
{
    static const char* const names[] = {"not well-formed", "not svg", "too large", "bad value",
                                        "not supported"};
    std::vector<std::string> all;
    for (const SvgNote& note : drawn(content).notes)
        all.push_back(names[static_cast<int>(note.issue)] + (": " + note.what));
    return all;
}

/// The failure of a text that cannot be read, as "line:column issue what"; empty if it can.
inline std::string failureOf(const std::string& text, int size = 16)
{
    try {
        Pixels(text, size);
        return {};
    } catch (const SvgFailure& failure) {
        const SvgNote& note = failure.note;
        return std::to_string(note.line) + ":" + std::to_string(note.column) + " " +
               std::to_string(static_cast<int>(note.issue)) + " " + note.what;
    }
}

} // namespace ovosvg
