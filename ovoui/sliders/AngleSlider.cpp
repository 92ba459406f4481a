#include <ovoui/sliders/AngleSlider.h>

#include <ovoui/frame/BoxRect.h>
#include <ovoui/frame/BufferedPaint.h>
#include <ovoui/frame/DcScopes.h>
#include <ovoui/frame/Lifeline.h>
#include <ovoui/frame/OwnWindow.h>
#include <ovoui/frame/PressWatch.h>
#include <ovoui/frame/TellParent.h>
#include <ovoui/sliders/AngleSliderOptions.h>
#include <ovoui/sliders/SystemShade.h>
#include <ovoui/sliders/core/CylinderDrag.h>
#include <ovoui/sliders/core/CylinderPicture.h>
#include <ovoui/sliders/core/SliderPlaces.h>

using namespace ovoui::sliders;

BEGIN_MESSAGE_MAP(CAngleSlider, CWnd)
    ON_WM_MOUSEMOVE() // mouse
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_LBUTTONUP()
    ON_WM_CAPTURECHANGED()
    ON_WM_DESTROY()
    ON_WM_MOUSEWHEEL()
    ON_WM_GETDLGCODE() // keyboard
    ON_WM_KEYDOWN()
    ON_WM_CHAR()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_PAINT() // painting
    ON_WM_ERASEBKGND()
    ON_WM_SIZE()
    ON_WM_ENABLE()
    ON_MESSAGE(WM_GETOBJECT, &CAngleSlider::OnGetObject)
END_MESSAGE_MAP()

namespace
{

constexpr int kFocus = 3; // the focus mark from the window's edge

COLORREF colorrefOf(const Shade& shade)
{
    return RGB(shade.red, shade.green, shade.blue);
}

CylinderColours systemColours(bool enabled)
{
    return {.dark = shadeOf(enabled ? COLOR_3DDKSHADOW : COLOR_GRAYTEXT),
            .light = shadeOf(COLOR_3DLIGHT),
            .face = shadeOf(enabled ? COLOR_WINDOW : COLOR_GRAYTEXT)};
}

} // namespace

CAngleSlider::CAngleSlider(Axis axis, Turn turn, bool reversed)
    : m_drag(std::make_unique<CylinderDrag>(turn))
    , m_axis(axis)
    , m_reversed(reversed)
    , m_options(std::make_unique<Options>())
{
    m_drag->limitBy([this](double degrees) { return limited(degrees); });
}

CAngleSlider::~CAngleSlider() = default;

BOOL CAngleSlider::createNamed(LPCTSTR text, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    const LPCTSTR windowClass =
        ovoui::frame::arrowClass(CS_DBLCLKS, reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1));
    return CWnd::Create(windowClass, text, style, rect, parent, id);
}

double CAngleSlider::GetPos() const
{
    return m_drag->position();
}

void CAngleSlider::SetPos(double degrees)
{
    m_drag->setPosition(degrees);
    if (m_hWnd)
        Invalidate();
    announceValue();
}

// Mouse

void CAngleSlider::OnLButtonDown(UINT flags, CPoint point)
{
    OnLButtonDblClk(flags, point);
}

void CAngleSlider::OnLButtonDblClk(UINT, CPoint point)
{
    const Lifeline::Watch watch(*this);
    const ovoui::frame::PressWatch press;
    if (m_options->keyboard)
        SetFocus();
    if (!watch.alive() || !press.goesOn())
        return;
    m_drag->press(angleAt(point, true));
    SetCapture();
}

void CAngleSlider::OnMouseMove(UINT, CPoint point)
{
    const auto angle = m_drag->move(angleAt(point, false), snapNow());
    if (!angle || !tellParent(SB_THUMBTRACK, *angle))
        return;
    m_drag->track(*angle);
    Invalidate(FALSE);
    announceValue();
}

void CAngleSlider::OnLButtonUp(UINT, CPoint point)
{
    const bool dragging = m_drag->dragging();
    m_drag->cancel(); // so that losing the capture does not count as an interruption
    ::ReleaseCapture();
    if (dragging && tellParent(SB_THUMBPOSITION, m_drag->release(angleAt(point, false), snapNow())))
        announceValue();
}

void CAngleSlider::OnCaptureChanged(CWnd* wnd)
{
    if (m_drag->dragging()) {
        m_drag->cancel();
        Invalidate(FALSE); // the committed angle shows again
        announceValue();
    }
    CWnd::OnCaptureChanged(wnd);
}

/// A window that goes in the middle of a drag may lose the capture without a word. The next one of this
/// object begins without a drag.
void CAngleSlider::OnDestroy()
{
    m_drag->cancel();
    CWnd::OnDestroy();
}

/// Whether the slider still has its window afterwards.
bool CAngleSlider::tellParent(UINT code, double degrees)
{
    const UINT message = m_axis == Axis::Vertical ? WM_HSCROLL : WM_VSCROLL;
    return ovoui::frame::tellParent(*this, message, MAKEWPARAM(code, messageAngle(degrees)));
}

CRect CAngleSlider::cylinder() const
{
    CRect rect;
    GetClientRect(&rect);
    return ovoui::frame::toRect(cylinderPlace(ovoui::frame::toBox(rect)));
}

int CAngleSlider::along(CPoint point) const
{
    return m_axis == Axis::Vertical ? point.x : point.y;
}

double CAngleSlider::DegreesFromCentre(int coordinate) const
{
    const CRect rect = cylinder();
    const double degrees = m_axis == Axis::Vertical ? angleUnder(coordinate, rect.left, rect.right)
                                                    : angleUnder(coordinate, rect.top, rect.bottom);
    return m_reversed ? -degrees : degrees;
}

double CAngleSlider::angleAt(CPoint point, bool)
{
    return DegreesFromCentre(along(point));
}

double CAngleSlider::limited(double degrees) const
{
    return degrees;
}

void CAngleSlider::useClicks(bool nudge)
{
    m_drag->nudgeByClicks(nudge);
}

// Painting

void CAngleSlider::OnPaint()
{
    BufferedPaint paint(*this);
    CDC& dc = paint.dc();
    CRect rect;
    GetClientRect(&rect);
    paintBody(dc, rect, m_drag->shown());
    if (showsFocus()) {
        rect.DeflateRect(kFocus, kFocus);
        dc.DrawFocusRect(&rect);
    }
}

void CAngleSlider::paintBody(CDC& dc, const CRect& client, double shown)
{
    CRect rect = client;
    dc.FillSolidRect(&rect, ::GetSysColor(COLOR_BTNFACE));
    rect.DeflateRect(1, 1);
    if (rect.IsRectEmpty())
        return;
    dc.DrawEdge(&rect, EDGE_ETCHED, BF_RECT);
    rect.DeflateRect(1, 1);
    ShadeRect(rect, &dc);
    if (IsWindowEnabled())
        drawOnCylinder(dc, rect, shown);
}

void CAngleSlider::drawOnCylinder(CDC&, const CRect&, double) {}

/// What is painted covers all of the window, so erasing would only flicker.
BOOL CAngleSlider::OnEraseBkgnd(CDC*)
{
    return TRUE;
}

void CAngleSlider::OnSize(UINT type, int width, int height)
{
    CWnd::OnSize(type, width, height);
    Invalidate(FALSE);
}

void CAngleSlider::OnEnable(BOOL enable)
{
    CWnd::OnEnable(enable);
    Invalidate(FALSE);
}

void CAngleSlider::ShadeRect(const CRect& rect, CDC* dc)
{
    const bool enabled = IsWindowEnabled() != FALSE;
    const bool sideways = m_axis == Axis::Vertical;
    const double rotation = m_reversed ? -m_drag->shown() : m_drag->shown();
    const int from = sideways ? rect.left : rect.top;
    const int to = sideways ? rect.right : rect.bottom;
    const CylinderPicture picture = cylinderPicture(from, to, rotation, systemColours(enabled), enabled);
    const ovoui::frame::SelectedTool pen(*dc, ::GetStockObject(DC_PEN));
    for (const Strip& strip : seenStrips(picture)) {
        if (strip.from > from && strip.to - strip.from == 1) {
            ::SetDCPenColor(*dc, colorrefOf(strip.colour));
            DrawLine(dc, rect, strip.from);
        } else {
            const RECT place =
                ovoui::frame::toRect(stripPlace(ovoui::frame::toBox(rect), sideways, strip.from, strip.to));
            dc->FillSolidRect(&place, colorrefOf(strip.colour));
        }
    }
}

/// In the DC's pen, only strictly inside the rectangle.
void CAngleSlider::DrawLine(CDC* dc, const CRect& rect, int coordinate)
{
    if (m_axis == Axis::Vertical) {
        if (coordinate <= rect.left || coordinate >= rect.right)
            return;
        dc->MoveTo(coordinate, rect.top);
        dc->LineTo(coordinate, rect.bottom);
    } else {
        if (coordinate <= rect.top || coordinate >= rect.bottom)
            return;
        dc->MoveTo(rect.left, coordinate);
        dc->LineTo(rect.right, coordinate);
    }
}
