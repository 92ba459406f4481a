#include <ovosvg/core/Shapes.h>

#include <algorithm>

namespace ovosvg
{

Path rectanglePath(const Box& box, double rx, double ry)
{
    Path path;
    if (box.width <= 0 || box.height <= 0)
        return path;
    rx = std::min(rx, box.width / 2);
    ry = std::min(ry, box.height / 2);
    if (rx <= 0 || ry <= 0)
        rx = ry = 0;
    const double right = box.x + box.width;
    const double bottom = box.y + box.height;
    path.moveTo({box.x + rx, box.y});
    path.lineTo({right - rx, box.y});
    path.arcTo(rx, ry, 0, false, true, {right, box.y + ry});
    path.lineTo({right, bottom - ry});
    path.arcTo(rx, ry, 0, false, true, {right - rx, bottom});
    path.lineTo({box.x + rx, bottom});
    path.arcTo(rx, ry, 0, false, true, {box.x, bottom - ry});
    path.lineTo({box.x, box.y + ry});
    path.arcTo(rx, ry, 0, false, true, {box.x + rx, box.y});
    path.close();
    return path;
}

Path ellipsePath(Point centre, double rx, double ry)
{
    Path path;
    if (rx <= 0 || ry <= 0)
        return path;
    const Point right{centre.x + rx, centre.y};
    const Point left{centre.x - rx, centre.y};
    path.moveTo(right);
    path.arcTo(rx, ry, 0, false, true, left);
    path.arcTo(rx, ry, 0, false, true, right);
    path.close();
    return path;
}

Path linesPath(const std::vector<double>& numbers, bool closed)
{
    Path path;
    for (std::size_t i = 0; i + 1 < numbers.size(); i += 2) {
        const Point p{numbers[i], numbers[i + 1]};
        if (i == 0)
            path.moveTo(p);
        else
            path.lineTo(p);
    }
    if (closed && !path.empty())
        path.close();
    return path;
}

} // namespace ovosvg
