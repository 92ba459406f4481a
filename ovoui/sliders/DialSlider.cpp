#include <ovoui/sliders/DialSlider.h>

#include <ovoui/frame/BoxRect.h>
#include <ovoui/frame/LeftToRight.h>
#include <ovoui/frame/MemoryBitmap.h>
#include <ovoui/sliders/SystemShade.h>
#include <ovoui/sliders/core/CylinderDrag.h>
#include <ovoui/sliders/core/DialPicture.h>
#include <ovoui/sliders/core/DialTurn.h>
#include <ovoui/sliders/core/SliderPlaces.h>

using namespace ovoui::sliders;

struct CDialSlider::Turning
{
    DialTurn turn;
    DialRange range;
    double tickStep = 0;
};

namespace
{

DialColours systemColours(bool enabled)
{
    return {.back = shadeOf(COLOR_BTNFACE),
            .light = shadeOf(COLOR_BTNHIGHLIGHT),
            .dark = shadeOf(enabled ? COLOR_3DDKSHADOW : COLOR_GRAYTEXT),
            .face = shadeOf(COLOR_BTNFACE), // the one that the pointer's is made for
            .pointer = shadeOf(enabled ? COLOR_BTNTEXT : COLOR_GRAYTEXT)};
}

void putPixels(CDC& dc, const CRect& place, const std::vector<Shade>& pixels)
{
    std::vector<DWORD> bits;
    bits.reserve(pixels.size());
    for (const Shade& shade : pixels)
        bits.push_back(static_cast<DWORD>(shade.red << 16 | shade.green << 8 | shade.blue));
    const BITMAPINFO info = ovoui::frame::topDownInfo(place.Width(), place.Height());
    ::SetDIBitsToDevice(dc, place.left, place.top, static_cast<DWORD>(place.Width()),
                        static_cast<DWORD>(place.Height()), 0, 0, 0, static_cast<UINT>(place.Height()),
                        bits.data(), &info, DIB_RGB_COLORS);
}

} // namespace

CDialSlider::CDialSlider()
    : CAngleSlider(Axis::Vertical, Turn::Endless, false)
    , m_turning(std::make_unique<Turning>())
{
    useClicks(false);
}

CDialSlider::~CDialSlider() = default;

BOOL CDialSlider::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return createNamed(L"DialSlider", style, rect, parent, id);
}

void CDialSlider::SetStops(double low, double high)
{
    m_turning->range = {low, high, true};
    if (m_hWnd)
        Invalidate(FALSE);
}

void CDialSlider::RemoveStops()
{
    m_turning->range.stops = false;
    if (m_hWnd)
        Invalidate(FALSE);
}

void CDialSlider::SetTicks(double degrees)
{
    m_turning->tickStep = degrees;
    if (m_hWnd)
        Invalidate(FALSE);
}

double CDialSlider::angleAt(CPoint point, bool pressed)
{
    CRect client;
    GetClientRect(&client);
    const double direction =
        dialDirection(ovoui::frame::toBox(client), point.x, point.y, (GetExStyle() & WS_EX_LAYOUTRTL) != 0);
    if (pressed)
        m_turning->turn.begin(direction);
    return m_turning->turn.follow(direction);
}

double CDialSlider::limited(double degrees) const
{
    return m_turning->range.accepted(degrees);
}

void CDialSlider::paintBody(CDC& dc, const CRect& client, double shown)
{
    dc.FillSolidRect(&client, ::GetSysColor(COLOR_BTNFACE));
    const CRect place(ovoui::frame::toRect(dialPlace(ovoui::frame::toBox(client))));
    const std::vector<Shade> pixels =
        dialPicture(place.Width(), shown, dialTicks(m_turning->range, m_turning->tickStep),
                    systemColours(IsWindowEnabled() != FALSE));
    if (pixels.empty())
        return;
    const ovoui::frame::LeftToRight layout(dc);
    putPixels(dc, layout.place(place), pixels);
}
