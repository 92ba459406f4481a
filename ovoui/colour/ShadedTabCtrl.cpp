#include <ovoui/colour/ShadedTabCtrl.h>

#include <ovoui/colour/core/BrushPlace.h>
#include <ovoui/frame/ThemeData.h>

#include <string_view>

using namespace ovoui::colour;

IMPLEMENT_DYNAMIC(CShadedTabCtrl, CTabCtrl)

BEGIN_MESSAGE_MAP(CShadedTabCtrl, CTabCtrl)
    ON_WM_CTLCOLOR()
    ON_WM_SIZE()
    ON_WM_THEMECHANGED()
END_MESSAGE_MAP()

std::map<COLORREF, HBRUSH> CShadedTabCtrl::ms_brushes;

namespace
{

/// Where the tab control's client area begins, in the coordinates of a window or, without one, of the screen.
CPoint originIn(const CWnd* wnd, const CWnd& tabs)
{
    CPoint origin(0, 0);
    ::MapWindowPoints(tabs.m_hWnd, wnd ? wnd->m_hWnd : nullptr, &origin, 1);
    return origin;
}

CPoint inDeviceUnits(const CDC& dc, CPoint point)
{
    if (dc.GetMapMode() == MM_TEXT &&
        dc.GetGraphicsMode() == GM_COMPATIBLE) { // as nearly always, and quickly
        const CPoint window = dc.GetWindowOrg();
        const CPoint viewport = dc.GetViewportOrg();
        return {point.x - window.x + viewport.x, point.y - window.y + viewport.y};
    }
    dc.LPtoDP(&point);
    return point;
}

/// A DC with a picture of a tab control in it, in the tab control's own coordinates.
class PictureDc
{
public:
    PictureDc(CDC* compatibleWith, const CBitmap& picture)
    {
        if (!m_dc.CreateCompatibleDC(compatibleWith))
            return;
        m_before = ::SelectObject(m_dc, picture);
        m_dc.SetLayout(0); // it may have got that of the screen's DC
    }
    ~PictureDc()
    {
        if (m_before)
            ::SelectObject(m_dc, m_before);
    }
    PictureDc(const PictureDc&) = delete;
    PictureDc& operator=(const PictureDc&) = delete;

    explicit operator bool() const { return m_before != nullptr; }
    CDC* operator->() { return &m_dc; }
    operator CDC*() { return &m_dc; }

private:
    CDC m_dc;
    HGDIOBJ m_before = nullptr;
};

BrushFor brushFor(UINT type)
{
    if (type == CTLCOLOR_EDIT)
        return BrushFor::Edit;
    return type == CTLCOLOR_LISTBOX ? BrushFor::List : BrushFor::Other;
}

bool isGroupBox(const CWnd& control, UINT type)
{
    constexpr DWORD kKind = 0x0F;
    if (type != CTLCOLOR_STATIC || (control.GetStyle() & kKind) != BS_GROUPBOX)
        return false;
    wchar_t name[128]{};
    ::GetClassNameW(control.m_hWnd, name, static_cast<int>(std::size(name)));
    return std::wstring_view(name) == L"Button";
}

/// Null when the system has no brush left.
HBRUSH solidBrush(COLORREF colour)
{
    const auto known = CShadedTabCtrl::ms_brushes.find(colour);
    if (known != CShadedTabCtrl::ms_brushes.end())
        return known->second;
    const HBRUSH brush = ::CreateSolidBrush(colour);
    if (brush)
        CShadedTabCtrl::ms_brushes.emplace(colour, brush);
    return brush;
}

} // namespace

CShadedTabCtrl::CShadedTabCtrl() = default;

CShadedTabCtrl::~CShadedTabCtrl() = default;

/// A picture of the window before, as of a dialog that is opened again, may have another size or theme.
void CShadedTabCtrl::PreSubclassWindow()
{
    m_captured = false;
    CTabCtrl::PreSubclassWindow();
}

// The picture

void CShadedTabCtrl::captureBackground()
{
    m_captured = true;
    m_flippedBrush.DeleteObject();
    m_brush.DeleteObject();
    m_picture.DeleteObject();
    if (!CThemeData::getThemeData().IsAppThemed())
        return;

    const HWND wnd = m_hWnd;
    CBitmap picture;
    // Painting is up to the host's class, too, which may take another picture or destroy this object
    // meanwhile.
    if (!takePicture(picture) || FromHandlePermanent(wnd) != this)
        return;
    m_brush.DeleteObject();
    m_picture.DeleteObject();
    if (m_brush.CreatePatternBrush(&picture))
        m_picture.Attach(picture.Detach());
}

bool CShadedTabCtrl::takePicture(CBitmap& picture)
{
    CRect window;
    if (!::GetWindowRect(m_hWnd, &window) || window.IsRectEmpty())
        return false;
    CWindowDC screen(this);
    if (!picture.CreateCompatibleBitmap(&screen, window.Width(), window.Height()))
        return false;
    PictureDc memory(&screen, picture);
    if (!memory)
        return false;
    // What the control does not paint, beside its tabs, has the colour of dialogs.
    memory->FillSolidRect(0, 0, window.Width(), window.Height(), ::GetSysColor(COLOR_BTNFACE));
    SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(memory->m_hDC),
                PRF_NONCLIENT | PRF_CLIENT | PRF_ERASEBKGND);
    return true;
}

/// Takes the picture at the first use. False without a brush, and when this object went while it was painted.
bool CShadedTabCtrl::hasBackground()
{
    const HWND wnd = m_hWnd;
    if (!m_captured)
        captureBackground();
    return FromHandlePermanent(wnd) == this && m_brush.GetSafeHandle();
}

// The brush

CShadedTabCtrl* CShadedTabCtrl::above(CWnd* child)
{
    if (!child)
        return nullptr;
    for (CWnd* wnd = child->GetParent(); wnd; wnd = wnd->GetParent())
        if (auto* const tabs = DYNAMIC_DOWNCAST(CShadedTabCtrl, wnd))
            return tabs;
    return nullptr;
}

bool CShadedTabCtrl::GetBackgroundBrush(CWnd* child, HBRUSH& brush, CPoint& origin)
{
    CShadedTabCtrl* const tabs = above(child);
    return tabs && tabs->GetBackgroundBrush(brush, origin, child);
}

bool CShadedTabCtrl::GetBackgroundBrush(HBRUSH& brush, CPoint& origin, CWnd* relativeTo)
{
    if (!hasBackground())
        return false;
    origin = originIn(relativeTo, *this);
    brush = m_brush;
    return true;
}

HBRUSH CShadedTabCtrl::AmendCtlColor(CDC* dc, CWnd* control, UINT type, HBRUSH defaultBrush)
{
    CShadedTabCtrl* const tabs = showsThrough(brushFor(type), true) ? above(control) : nullptr;
    return tabs ? tabs->amended(dc, type, defaultBrush, control) : defaultBrush;
}

HBRUSH CShadedTabCtrl::AmendCtlColor(CDC* dc, UINT type, HBRUSH defaultBrush, CWnd* control)
{
    return showsThrough(brushFor(type), false) ? amended(dc, type, defaultBrush, control) : defaultBrush;
}

HBRUSH CShadedTabCtrl::amended(CDC* dc, UINT type, HBRUSH defaultBrush, CWnd* control)
{
    if (!hasBackground())
        return defaultBrush;
    if (isGroupBox(*control, type)) {
        const CPoint origin = originIn(control, *this);
        const COLORREF colour = colourAt(CPoint(-origin.x, -origin.y));
        const HBRUSH brush = colour == CLR_INVALID ? nullptr : solidBrush(colour);
        return brush ? brush : defaultBrush;
    }
    dc->SetBkMode(TRANSPARENT);
    return alignedBrush(*dc, *control);
}

/// The brush for a DC with the coordinates of a control, with its origin set.
HBRUSH CShadedTabCtrl::alignedBrush(CDC& dc, const CWnd& control)
{
    // Three points: two would be taken for a rectangle, whose sides are put in order.
    CPoint points[]{CPoint(0, 0), CPoint(1, 0), CPoint(0, 0)};
    ::MapWindowPoints(m_hWnd, control.m_hWnd, points, 3);
    const bool mirroredDc = (dc.GetLayout() & LAYOUT_RTL) != 0;
    const TabColumns columns{points[0].x, points[1].x};
    const bool flipped = wantsMirrorImage(columns, mirroredDc);
    CPoint origin = points[0];
    if (flipped) {
        CRect window;
        GetWindowRect(&window);
        origin.x = mirrorImageStart(columns, window.Width());
    }
    // The control's coordinates may be moved: some let their parent paint into their own DC.
    origin = inDeviceUnits(dc, origin);
    // The origin is an edge between pixels. Of the two beside it the other one is at its right in a mirrored
    // DC.
    dc.SetBrushOrg(mirroredDc ? origin + CSize(1, 0) : origin);
    return flipped ? flippedBrush() : m_brush;
}

/// The plain brush when the system has no room for another picture.
HBRUSH CShadedTabCtrl::flippedBrush()
{
    if (!m_flippedBrush.GetSafeHandle())
        makeFlippedBrush();
    return m_flippedBrush.GetSafeHandle() ? m_flippedBrush : m_brush;
}

void CShadedTabCtrl::makeFlippedBrush()
{
    CClientDC screen(this);
    BITMAP size{};
    m_picture.GetBitmap(&size);
    CBitmap picture;
    if (!picture.CreateCompatibleBitmap(&screen, size.bmWidth, size.bmHeight))
        return;
    {
        PictureDc from(&screen, m_picture);
        PictureDc to(&screen, picture);
        if (!from || !to ||
            !to->StretchBlt(0, 0, size.bmWidth, size.bmHeight, from, size.bmWidth - 1, 0, -size.bmWidth,
                            size.bmHeight, SRCCOPY))
            return;
    }
    m_flippedBrush.CreatePatternBrush(&picture);
}

/// The picture's colour at a point of the client area; CLR_INVALID outside of it.
COLORREF CShadedTabCtrl::colourAt(CPoint point)
{
    PictureDc memory(nullptr, m_picture);
    return memory ? memory->GetPixel(point) : CLR_INVALID;
}

// Messages

HBRUSH CShadedTabCtrl::OnCtlColor(CDC* dc, CWnd* control, UINT type)
{
    const HWND child = control->m_hWnd;
    const HBRUSH defaultBrush = CTabCtrl::OnCtlColor(dc, control, type);
    // The control may have been asked itself, and be gone.
    return ::IsWindow(child) ? AmendCtlColor(dc, FromHandle(child), type, defaultBrush) : defaultBrush;
}

void CShadedTabCtrl::OnSize(UINT type, int width, int height)
{
    const HWND wnd = m_hWnd;
    CTabCtrl::OnSize(type, width, height);
    if (FromHandlePermanent(wnd) == this)
        captureBackground();
}

/// The next use takes the picture in the new theme, or finds that there are no themes any more.
LRESULT CShadedTabCtrl::OnThemeChanged()
{
    m_captured = false;
    return Default();
}
