#include <ovosvg/core/PathData.h>

#include <ovosvg/core/Scanner.h>

#include <cctype>

namespace ovosvg
{

namespace
{

class PathReader
{
public:
    explicit PathReader(std::string_view text)
        : m_scanner(text)
    {
    }

    /// False at the first thing that cannot be read.
    bool run()
    {
        m_scanner.skipBlanks();
        while (!m_scanner.atEnd()) {
            const char command = m_scanner.now();
            if (m_path.empty() && command != 'M' && command != 'm')
                return false;
            if (std::string_view("MmLlHhVvCcSsQqTtAaZz").find(command) == std::string_view::npos)
                return false;
            m_scanner.skip(1);
            m_scanner.skipBlanks();
            if (!all(command))
                return false;
        }
        return true;
    }

    Path path() { return std::move(m_path); }

private:
    /// A command and all sets of numbers that follow it.
    bool all(char command)
    {
        if (command == 'Z' || command == 'z') {
            m_path.close();
            m_before = 'Z';
            return true;
        }
        const bool relative = command >= 'a';
        char upper = relative ? static_cast<char>(command - ('a' - 'A')) : command;
        do {
            m_origin = relative ? m_path.current() : Point{};
            if (!one(upper))
                return false;
            m_before = upper;
            upper = upper == 'M' ? 'L' : upper; // further points are joined by lines
            m_scanner.skipComma();
        } while (startsNumber());
        return true;
    }

    bool one(char command)
    {
        switch (command) {
        case 'M': {
            const auto p = point();
            return p && (m_path.moveTo(*p), true);
        }
        case 'L': {
            const auto p = point();
            return p && (m_path.lineTo(*p), true);
        }
        case 'H': {
            const auto x = number();
            return x && (m_path.lineTo({m_origin.x + *x, m_path.current().y}), true);
        }
        case 'V': {
            const auto y = number();
            return y && (m_path.lineTo({m_path.current().x, m_origin.y + *y}), true);
        }
        case 'C': {
            const auto first = point();
            return first && cubic(*first);
        }
        case 'S':
            return cubic(mirrored('C', 'S'));
        case 'Q': {
            const auto control = point();
            return control && quad(*control);
        }
        case 'T':
            return quad(mirrored('Q', 'T'));
        default:
            return arc();
        }
    }

    bool cubic(Point first)
    {
        const auto second = point();
        const auto end = second ? point() : std::nullopt;
        if (!end)
            return false;
        m_path.cubicTo(first, *second, *end);
        m_control = *second;
        return true;
    }

    bool quad(Point control)
    {
        const auto end = point();
        if (!end)
            return false;
        m_path.quadTo(control, *end);
        m_control = control;
        return true;
    }

    bool arc()
    {
        const auto rx = number();
        const auto ry = rx ? number() : std::nullopt;
        const auto degrees = ry ? number() : std::nullopt;
        const auto large = degrees ? flag() : std::nullopt;
        const auto sweep = large ? flag() : std::nullopt;
        const auto end = sweep ? point() : std::nullopt;
        if (!end)
            return false;
        m_path.arcTo(*rx, *ry, *degrees, *large, *sweep, *end);
        return true;
    }

    /// The control point of the curve before on the other side of where it ended; that point itself behind
    /// any other command.
    Point mirrored(char curve, char smooth) const
    {
        const Point current = m_path.current();
        return m_before == curve || m_before == smooth ? current * 2 - m_control : current;
    }

    bool startsNumber() const
    {
        const char c = m_scanner.now();
        return (c >= '0' && c <= '9') || c == '+' || c == '-' || c == '.';
    }

    std::optional<double> number()
    {
        const auto value = m_scanner.number();
        m_scanner.skipComma();
        return value;
    }

    std::optional<bool> flag()
    {
        const auto value = m_scanner.flag();
        m_scanner.skipComma();
        return value;
    }

    std::optional<Point> point()
    {
        const auto x = number();
        const auto y = x ? number() : std::nullopt;
        if (!y)
            return std::nullopt;
        return Point{m_origin.x + *x, m_origin.y + *y};
    }

    Scanner m_scanner;
    Path m_path;
    Point m_origin;       ///< what the numbers are counted from
    Point m_control;      ///< of the curve before
    char m_before = '\0'; ///< the command before, as a capital
};

} // namespace

PathReading readPath(std::string_view text)
{
    PathReader reader(text);
    const bool complete = reader.run();
    return {reader.path(), complete};
}

} // namespace ovosvg
