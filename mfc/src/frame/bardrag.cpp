#include "bardrag.h"

#include "bararea.h"
#include "core/floatrules.h"
#include "dockmemory.h"
#include "floatplace.h"

#include <afxext.h>

#include <detail/pending.h>

namespace afxdetail
{

namespace
{

constexpr int kDockedThickness = 1; // of the outline
constexpr int kFloatingThickness = 3;

bool isDown(int key)
{
    return ::GetKeyState(key) < 0;
}

Place placeOf(const POINT& point)
{
    return {point.x, point.y};
}

Extent dragDistance()
{
    return {::GetSystemMetrics(SM_CXDRAG), ::GetSystemMetrics(SM_CYDRAG)};
}

/// The mouse is a window's, until the end of the scope or until another one takes it.
class HeldMouse
{
public:
    explicit HeldMouse(HWND wnd)
        : m_wnd(wnd)
    {
        ::SetCapture(wnd);
    }
    ~HeldMouse()
    {
        if (::GetCapture() == m_wnd)
            ::ReleaseCapture();
    }
    HeldMouse(const HeldMouse&) = delete;
    HeldMouse& operator=(const HeldMouse&) = delete;

private:
    const HWND m_wnd;
};

/// A bar that says for the rest of the scope that it floats, or that it does not.
class Pretended
{
public:
    Pretended(CControlBar& bar, bool floats)
        : m_bar(bar)
        , m_wnd(bar.m_hWnd)
        , m_style(bar.m_dwStyle)
    {
        constexpr DWORD kFloating = CBRS_FLOATING;
        bar.m_dwStyle = floats ? m_style | kFloating : m_style & ~kFloating;
    }
    ~Pretended()
    {
        if (CWnd::FromHandlePermanent(m_wnd) == &m_bar)
            m_bar.m_dwStyle = m_style;
    }
    Pretended(const Pretended&) = delete;
    Pretended& operator=(const Pretended&) = delete;

private:
    CControlBar& m_bar;
    const HWND m_wnd;
    const DWORD m_style;
};

} // namespace

BarDrag::BarDrag(CControlBar& bar, CWnd& held, CPoint grab)
    : m_bar(bar)
    , m_frame(*bar.m_pDockSite)
    , m_barWnd(bar.m_hWnd)
    , m_held(held.m_hWnd)
    , m_pointer(placeOf(grab))
{
    m_dragged.grab = m_pointer;
    m_dragged.from = areaOf(screenRectOf(held));
}

bool BarDrag::isAlive() const
{
    return CWnd::FromHandlePermanent(m_barWnd) == &m_bar && m_bar.isDockable() &&
           m_bar.m_pDockSite == &m_frame;
}

/// Asks the bar for its size in each state, last in the one that it is in: some bars break their rows when
/// they are asked. A floating bar has no gripper. A bar that has gone when it was asked is asked no more.
void BarDrag::measure()
{
    const DWORD style = m_bar.GetBarStyle();
    const bool floats = (style & CBRS_FLOATING) != 0;
    const bool lies = (style & CBRS_ORIENT_HORZ) != 0;
    const auto ask = [&](bool floating, DWORD mode) {
        if (!isAlive())
            return CSize(0, 0);
        const Pretended pretended(m_bar, floating);
        return m_bar.CalcDynamicLayout(-1, mode);
    };
    const auto askFloating = [&](DWORD mode) {
        return extentOf(CMiniDockFrameWnd::outerSize(ask(true, mode), style));
    };
    const Extent horizontally = askFloating(LM_HORZ | LM_MRUWIDTH);
    // A bar whose rows its user breaks has no other direction.
    const Extent vertically = (style & CBRS_SIZE_DYNAMIC) ? horizontally : askFloating(LM_VERTDOCK);
    m_dragged.floating = floats && !lies ? vertically : horizontally;
    m_dragged.floatingOther = floats && !lies ? horizontally : vertically;
    m_dragged.vertical = extentOf(ask(false, LM_VERTDOCK));
    m_dragged.horizontal = extentOf(ask(false, LM_HORZ | LM_HORZDOCK));
    if (!lies)
        ask(floats, LM_VERTDOCK);
    else if (floats)
        ask(true, LM_HORZ | LM_MRUWIDTH);
}

/// Where the bar may be docked now: sides may come and go while it is dragged.
void BarDrag::collectSides()
{
    m_sides.clear();
    m_strips.clear();
    for (const auto& side : m_frame.m_dockBars) {
        if (!(side->GetBarStyle() & m_bar.m_dwDockStyle & CBRS_ALIGN_ANY))
            continue;
        m_sides.push_back(side.get());
        m_strips.push_back({sideOf(side->GetBarStyle()), areaOf(screenRectOf(*side))});
    }
    if (!(m_bar.m_dwDockStyle & CBRS_FLOAT_MULTI))
        return;
    for (CMiniDockFrameWnd* window : m_frame.m_floats) {
        CDockBar& other = window->m_wndDockBar;
        const std::vector<CControlBar*> bars = other.bars();
        const bool takes = window->IsWindowVisible() && &other != m_bar.m_pDockBar &&
                           std::all_of(bars.begin(), bars.end(), [](const CControlBar* bar) {
                               return (bar->m_dwDockStyle & CBRS_FLOAT_MULTI) != 0;
                           });
        if (!takes)
            continue;
        m_sides.push_back(&other);
        m_strips.push_back({sideOf(other.GetBarStyle()), areaOf(screenRectOf(other))});
    }
}

/// Of a bar that is alive. The sides are those of this moment.
DragTarget BarDrag::target()
{
    collectSides();
    return outlineAt(m_dragged, m_strips, m_pointer, {isDown(VK_CONTROL), isDown(VK_SHIFT)});
}

void BarDrag::run()
{
    End end = End::GivenUp;
    {
        const HeldMouse mouse(m_held);
        end = followMouse();
    }
    if (end == End::Dropped && m_moved && isAlive())
        drop(target());
}

/// Whatever is no input for the drag goes its ordinary way, and may end the bar.
BarDrag::End BarDrag::followMouse()
{
    while (::GetCapture() == m_held) {
        MSG message;
        if (!callOut([&] { return ::GetMessageW(&message, nullptr, 0, 0); })) {
            ::PostQuitMessage(static_cast<int>(message.wParam));
            return End::GivenUp;
        }
        switch (message.message) {
        case WM_MOUSEMOVE:
        case WM_LBUTTONUP:
            m_pointer = placeOf(message.pt);
            follow();
            if (message.message == WM_LBUTTONUP)
                return isAlive() ? End::Dropped : End::GivenUp;
            break;
        case WM_RBUTTONDOWN:
            return End::GivenUp;
        case WM_KEYDOWN:
        case WM_KEYUP:
        case WM_SYSKEYDOWN:
        case WM_SYSKEYUP:
            if (message.message == WM_KEYDOWN && message.wParam == VK_ESCAPE)
                return End::GivenUp;
            follow(); // Ctrl and Shift count
            break;
        default:
            callOut([&] { ::DispatchMessageW(&message); });
        }
    }
    return End::GivenUp;
}

void BarDrag::follow()
{
    if (!isAlive())
        return;
    if (!m_moved) {
        if (!isDrag(m_dragged.grab, m_pointer, dragDistance()))
            return;
        m_moved = true;
        measure();
        if (!isAlive())
            return;
    }
    const DragTarget where = target();
    m_outline.show(rectOf(where.area), where.strip ? kDockedThickness : kFloatingThickness);
}

void BarDrag::drop(const DragTarget& where)
{
    const CRect rect = rectOf(where.area);
    if (where.strip) {
        m_frame.DockControlBar(&m_bar, m_sides[*where.strip], rect);
    } else {
        const bool floats = m_bar.IsFloating() != FALSE;
        const bool lay = !floats || (m_bar.GetBarStyle() & CBRS_ORIENT_HORZ) != 0;
        m_frame.FloatControlBar(&m_bar, rect.TopLeft(),
                                lay != where.turned ? CBRS_ALIGN_TOP : CBRS_ALIGN_LEFT);
    }
    m_frame.RecalcLayout();
}

// From one state to the other

void BarDrag::toggle(CControlBar& bar)
{
    if (bar.IsFloating())
        dockAgain(bar);
    else
        makeFloat(bar);
}

void BarDrag::makeFloat(CControlBar& bar)
{
    const DockMemory memory = bar.m_dockMemory ? *bar.m_dockMemory : DockMemory{};
    const HWND wnd = bar.m_hWnd;
    CPoint point;
    if (memory.floated) {
        point = placeToFloatAgain(bar, memory.floatPoint, memory.horizontal);
    } else {
        const Place first = firstFloatPlace(areaOf(screenRectOf(bar)), ::GetSystemMetrics(SM_CYSMCAPTION));
        point = CPoint(first.x, first.y);
    }
    if (CWnd::FromHandlePermanent(wnd) != &bar || !bar.isDockable())
        return; // the bar that was asked for its size has gone
    CFrameWnd& frame = *bar.m_pDockSite;
    frame.FloatControlBar(&bar, point, memory.horizontal ? CBRS_ALIGN_TOP : CBRS_ALIGN_LEFT);
    frame.RecalcLayout();
}

void BarDrag::dockAgain(CControlBar& bar)
{
    CFrameWnd& frame = *bar.m_pDockSite;
    const DockMemory memory = bar.m_dockMemory ? *bar.m_dockMemory : DockMemory{};
    if (CDockBar* before = frame.dockBar(memory.dockBar))
        before->take(bar, memory.place, memory.start);
    else if (CDockBar* first = frame.firstDockBarFor(bar))
        first->take(bar, first->lastPlace(), 0);
    frame.RecalcLayout();
}

} // namespace afxdetail
