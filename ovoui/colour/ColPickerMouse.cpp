// The picker's mouse: ring, triangle, patch and swatches.
#include <ovoui/colour/ColPicker.h>

#include <ovoui/colour/ColourWheelImage.h>
#include <ovoui/colour/core/PickerGesture.h>
#include <ovoui/frame/Exceptions.h>
#include <ovoui/frame/PressWatch.h>
#include <ovouires/resource.h>

#include <utility>

using namespace ovoui::colour;
using ovoui::frame::keeping;
using ovoui::frame::PressWatch;
using ovoui::frame::raise;

namespace
{

/// How far from ring and triangle, in pixels, the user may press.
constexpr double kReach = 3;

Vector<2> vectorOf(CPoint point)
{
    return {point.x, point.y};
}

HCURSOR dragCursor()
{
    const LPCTSTR name = MAKEINTRESOURCE(IDC_DRAG_COLOUR);
    return ::LoadCursorW(AfxFindResourceHandle(name, RT_GROUP_CURSOR), name);
}

} // namespace

/// The point of the wheel that the user sees under the mouse. A mirrored window counts the mouse's points as
/// edges from its right side, so the first column has number 1; for a DC it has number 0.
CPoint ColPicker::inWheel(CPoint point) const
{
    return asDrawn(m_mirrored ? point - CSize(1, 0) : point);
}

/// None, too, where the swatches are.
ColPicker::Drag ColPicker::partAt(CPoint point) const
{
    if (hasWheel() && m_wheel->triangle().test(vectorOf(inWheel(point)), kReach).inTriangle)
        return Drag::Triangle;
    if (hasWheel() && m_wheel->ring().test(vectorOf(inWheel(point)), kReach).onRing)
        return Drag::Ring;
    return m_patchRect.PtInRect(point) ? Drag::Patch : Drag::None;
}

/// The colour to which a drag in the triangle or on the ring leads.
Colour ColPicker::colourAt(Drag part, CPoint point) const
{
    if (part == Drag::Triangle) {
        const ShadeTriangle::Hit hit = m_wheel->triangle().test(vectorOf(inWheel(point)), kReach);
        return Colour::hlsa(m_colour.h_hls(), hit.lightness, hit.saturation, m_colour.a());
    }
    const HueRing::Hit hit = m_wheel->ring().test(vectorOf(inWheel(point)), kReach);
    return Colour::hlsa(hit.hue, m_colour.l_hls(), m_colour.s_hls(), m_colour.a());
}

bool ColPicker::isOnSwatches(CPoint point) const
{
    return m_customAreaId != 0 && m_customRect.PtInRect(point);
}

bool ColPicker::DoLButtonDown(CWnd* wnd, UINT, CPoint point)
{
    const Drag part = partAt(point);
    const PressWatch press;
    if (!focusPart(wnd, part) || !press.goesOn())
        return true;
    switch (pickerAction(PickerInput::Press, part, isOnSwatches(point))) {
    case PickerAction::Take:
        takeByPress(wnd, part, point);
        return true;
    case PickerAction::DragPatch:
        beginPatchDrag(wnd);
        return true;
    case PickerAction::TakeSwatch:
        pickSwatch(wnd, point);
        return true;
    default:
        return false;
    }
}

void ColPicker::takeByPress(CWnd* wnd, Drag part, CPoint point)
{
    const PressWatch press;
    if (change(wnd, colourAt(part, point), choosesHue(part), false) && press.goesOn())
        beginDrag(wnd, part);
}

void ColPicker::beginPatchDrag(CWnd* wnd)
{
    m_cursorBefore = ::GetCursor();
    if (const HCURSOR cursor = dragCursor())
        ::SetCursor(cursor);
    beginDrag(wnd, Drag::Patch);
}

void ColPicker::beginDrag(CWnd* wnd, Drag drag)
{
    m_drag = drag;
    wnd->SetCapture();
}

void ColPicker::pickSwatch(CWnd* wnd, CPoint point)
{
    int swatch = 0;
    if (PtInCustomColour(point, swatch) && focusSwatch(wnd, swatch))
        takeSwatch(wnd, swatch);
}

void ColPicker::takeSwatch(CWnd* wnd, int swatch)
{
    const Lifeline::Watch watch(m_lifeline);
    const Colour colour = Colour::colorref(customCols(swatch));
    if (watch.alive() && wnd->m_hWnd)
        change(wnd, colour, false, true);
}

bool ColPicker::DoMouseMove(CWnd* wnd, UINT, CPoint point)
{
    if (!isDragging(wnd))
        return false;
    if (pickerAction(PickerInput::Move, m_drag, isOnSwatches(point)) == PickerAction::ShowTarget)
        showDragCursor(point);
    else
        followDrag(wnd, point);
    return true;
}

/// What the host raises ends the drag before it is shown: the box needs the mouse.
void ColPicker::followDrag(CWnd* wnd, CPoint point)
{
    const Lifeline::Watch watch(m_lifeline);
    const std::exception_ptr raised =
        keeping([&] { change(wnd, colourAt(m_drag, point), choosesHue(m_drag), false); });
    if (raised && watch.alive() && wnd->m_hWnd)
        cancelDrag(wnd);
    raise(raised);
}

void ColPicker::showDragCursor(CPoint point)
{
    int swatch = 0;
    const bool taken = takesPatch(m_patchRect.PtInRect(point) != FALSE, PtInCustomColour(point, swatch));
    const HCURSOR cursor = taken ? dragCursor() : ::LoadCursorW(nullptr, IDC_NO);
    ::SetCursor(cursor ? cursor : m_cursorBefore);
}

bool ColPicker::DoLButtonUp(CWnd* wnd, UINT, CPoint point)
{
    if (!isDragging(wnd))
        return false;
    // However the host's code ends that is called here, the drag is over.
    const struct End
    {
        ~End()
        {
            if (!watch.alive())
                return;
            picker.m_drag = Drag::None; // so that losing the capture is no interruption
            if (wnd->m_hWnd && ::GetCapture() == wnd->m_hWnd)
                ::ReleaseCapture();
        }
        ColPicker& picker;
        CWnd* wnd;
        Lifeline::Watch watch;
    } end{*this, wnd, Lifeline::Watch(m_lifeline)};
    endByRelease(wnd, point);
    return true;
}

void ColPicker::endByRelease(CWnd* wnd, CPoint point)
{
    if (pickerAction(PickerInput::Release, m_drag, isOnSwatches(point)) == PickerAction::DropPatch)
        dropPatch(wnd, point);
    else
        change(wnd, colourAt(m_drag, point), choosesHue(m_drag), true);
}

void ColPicker::dropPatch(CWnd* wnd, CPoint point)
{
    ::SetCursor(m_cursorBefore);
    int swatch = 0;
    if (PtInCustomColour(point, swatch))
        keepInSwatch(wnd, swatch);
}

void ColPicker::keepInSwatch(CWnd* wnd, int swatch)
{
    const Lifeline::Watch watch(m_lifeline);
    const COLORREF colour = m_colour.colorref();
    COLORREF& custom = customCols(swatch);
    if (!watch.alive() || !wnd->m_hWnd)
        return;
    custom = colour;
    wnd->InvalidateRect(&m_swatches[static_cast<std::size_t>(swatch)], FALSE);
}

bool ColPicker::DoLButtonDblClk(CWnd* wnd, UINT, CPoint point)
{
    const PickerAction action = pickerAction(PickerInput::DoubleClick, partAt(point), isOnSwatches(point));
    if (action == PickerAction::TakePureHue)
        takePureHue(wnd, point);
    return action != PickerAction::Pass;
}

void ColPicker::takePureHue(CWnd* wnd, CPoint point)
{
    const HueRing::Hit hit = m_wheel->ring().test(vectorOf(inWheel(point)), kReach);
    change(wnd, Colour::hls(hit.hue, 0.5, 1), true, true);
}

bool ColPicker::PtInCustomColour(const CPoint& point, int& index)
{
    if (m_customAreaId == 0)
        return false;
    for (std::size_t i = 0; i < m_swatches.size(); ++i)
        if (m_swatches[i].PtInRect(point)) {
            index = static_cast<int>(i);
            return true;
        }
    return false;
}

// The end of a drag

/// Whether one goes on. One that has lost the capture without a word does not any more.
bool ColPicker::isDragging(CWnd* wnd)
{
    if (m_drag != Drag::None && ::GetCapture() != wnd->m_hWnd)
        endDrag();
    return m_drag != Drag::None;
}

void ColPicker::endDrag()
{
    if (std::exchange(m_drag, Drag::None) == Drag::Patch)
        ::SetCursor(m_cursorBefore);
}

void ColPicker::DoCaptureChanged(CWnd* wnd, CWnd* gaining)
{
    if (gaining->GetSafeHwnd() != wnd->GetSafeHwnd())
        endDrag();
}

bool ColPicker::cancelDrag(CWnd* wnd)
{
    if (!isDragging(wnd))
        return false;
    endDrag();
    ::ReleaseCapture();
    return true;
}
