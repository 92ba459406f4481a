#include "TurnedBox.h"

#include "Direction.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

BEGIN_MESSAGE_MAP(TurnedBox, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

namespace
{

struct Point3
{
    double x;
    double y; // upwards
    double z; // towards the viewer
};

constexpr Point3 kHalf{1.0, 0.6, 0.4};
constexpr double kRoom = 2.6; // of the box in all directions, however it is turned
constexpr Point3 kLight{-0.4, 0.6, 0.69};
constexpr double kAmbient = 0.55;
constexpr COLORREF kFaces[] = {RGB(216, 96, 72), RGB(72, 136, 200), RGB(236, 188, 84)}; // of x, y and z

double radians(double degrees)
{
    return degrees * std::numbers::pi / 180;
}

double dot(const Point3& a, const Point3& b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

class Turn
{
public:
    Turn(double heading, double tilt)
        : m_heading(radians(heading))
        , m_tilt(radians(tilt))
    {
    }

    Point3 operator()(const Point3& p) const
    {
        const double x = p.x * std::cos(m_heading) + p.z * std::sin(m_heading);
        const double z = p.z * std::cos(m_heading) - p.x * std::sin(m_heading);
        return {x, p.y * std::cos(m_tilt) - z * std::sin(m_tilt),
                p.y * std::sin(m_tilt) + z * std::cos(m_tilt)};
    }

private:
    double m_heading;
    double m_tilt;
};

COLORREF lit(COLORREF colour, const Point3& normal)
{
    const double light = kAmbient + (1 - kAmbient) * std::max(0.0, dot(normal, kLight));
    const auto channel = [light](int value) { return static_cast<int>(value * light); };
    return RGB(channel(GetRValue(colour)), channel(GetGValue(colour)), channel(GetBValue(colour)));
}

/// The four corners of the face across `axis` (0 to 2), on its positive or negative side.
std::array<Point3, 4> corners(int axis, double side)
{
    std::array<Point3, 4> face{};
    constexpr double kSigns[4][2] = {{-1, -1}, {1, -1}, {1, 1}, {-1, 1}};
    for (std::size_t i = 0; i < face.size(); ++i) {
        const double u = kSigns[i][0];
        const double v = kSigns[i][1];
        const Point3 sign = axis == 0   ? Point3{side, u, v}
                            : axis == 1 ? Point3{u, side, v}
                                        : Point3{u, v, side};
        face[i] = {sign.x * kHalf.x, sign.y * kHalf.y, sign.z * kHalf.z};
    }
    return face;
}

} // namespace

bool TurnedBox::create(CWnd& parent)
{
    const LPCTSTR cls =
        AfxRegisterWndClass(CS_HREDRAW | CS_VREDRAW, ::LoadCursorW(nullptr, IDC_ARROW), nullptr);
    return CreateEx(0, cls, L"", WS_CHILD | WS_VISIBLE | WS_BORDER, CRect(), &parent, 1) != FALSE &&
           readsFromTheLeft(*this);
}

void TurnedBox::turn(double heading, double tilt)
{
    m_heading = heading;
    m_tilt = tilt;
    Invalidate(FALSE);
}

BOOL TurnedBox::OnEraseBkgnd(CDC*)
{
    return TRUE; // what is painted covers everything
}

void TurnedBox::OnPaint()
{
    CPaintDC dc(this);
    CRect client;
    GetClientRect(&client);
    CDC memory;
    memory.CreateCompatibleDC(&dc);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&dc, client.Width(), client.Height());
    CBitmap* const old = memory.SelectObject(&bitmap);
    draw(memory, client);
    dc.BitBlt(0, 0, client.Width(), client.Height(), &memory, 0, 0, SRCCOPY);
    memory.SelectObject(old);
}

void TurnedBox::draw(CDC& dc, const CRect& client) const
{
    dc.FillSolidRect(&client, ::GetSysColor(COLOR_WINDOW));
    const double unit = std::min(client.Width(), client.Height()) / kRoom;
    const CPoint middle = client.CenterPoint();
    const Turn turned(m_heading, m_tilt);
    CPen edge(PS_SOLID, 1, ::GetSysColor(COLOR_WINDOWTEXT));
    CPen* const oldPen = dc.SelectObject(&edge);
    for (int axis = 0; axis < 3; ++axis)
        for (const double side : {-1.0, 1.0}) {
            const Point3 normal = turned({axis == 0 ? side : 0, axis == 1 ? side : 0, axis == 2 ? side : 0});
            if (normal.z <= 0)
                continue; // faces away
            std::array<POINT, 4> outline{};
            std::size_t i = 0;
            for (const Point3& corner : corners(axis, side)) {
                const Point3 seen = turned(corner);
                outline[i++] = {middle.x + std::lround(seen.x * unit), middle.y - std::lround(seen.y * unit)};
            }
            CBrush brush(lit(kFaces[axis], normal));
            CBrush* const old = dc.SelectObject(&brush);
            dc.Polygon(outline.data(), static_cast<int>(outline.size()));
            dc.SelectObject(old);
        }
    dc.SelectObject(oldPen);
}
