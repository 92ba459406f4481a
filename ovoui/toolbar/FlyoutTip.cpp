#include <ovoui/toolbar/FlyoutTip.h>

#include <ovoui/frame/NonClientMetrics.h>
#include <ovoui/frame/Tip.h>

namespace
{

constexpr wchar_t kClass[] = L"OvoFlyoutTip";
constexpr int kMarginX = 5; // pixels from the border to the text
constexpr int kMarginY = 3;

bool registerClass()
{
    WNDCLASSW cls{};
    cls.style = CS_DROPSHADOW | CS_SAVEBITS;
    cls.lpfnWndProc = ::DefWindowProcW;
    cls.hInstance = AfxGetInstanceHandle();
    cls.hCursor = ::LoadCursorW(nullptr, IDC_ARROW);
    cls.lpszClassName = kClass;
    return AfxRegisterClass(&cls) != FALSE;
}

} // namespace

BEGIN_MESSAGE_MAP(CFlyoutTip, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_NCHITTEST()
END_MESSAGE_MAP()

CFlyoutTip::~CFlyoutTip()
{
    DestroyWindow();
}

bool CFlyoutTip::create(CWnd& owner)
{
    const OvoNonClientMetrics metrics;
    m_font.CreateFontIndirect(&metrics.lfStatusFont);
    return registerClass() && CreateEx(WS_EX_TOOLWINDOW, kClass, L"OVO_FLYOUT_TOOLTIP", WS_POPUP, 0, 0, 0, 0,
                                       owner.m_hWnd, nullptr);
}

CSize CFlyoutTip::sizeOfText()
{
    CClientDC dc(this);
    CFont* const before = m_font.m_hObject ? dc.SelectObject(&m_font) : nullptr;
    CRect text;
    dc.DrawText(m_text.c_str(), static_cast<int>(m_text.size()), &text, DT_CALCRECT | DT_NOPREFIX);
    if (before)
        dc.SelectObject(before);
    return CSize(text.Width() + 2 * kMarginX, text.Height() + 2 * kMarginY);
}

void CFlyoutTip::show(const std::wstring& text, const CRect& entry)
{
    m_text = text;
    const CRect place = ovoui::frame::placeOfTip(entry, sizeOfText());
    SetWindowPos(&wndTop, place.left, place.top, place.Width(), place.Height(),
                 SWP_NOACTIVATE | SWP_SHOWWINDOW);
    Invalidate();
}

void CFlyoutTip::hide()
{
    ShowWindow(SW_HIDE);
}

void CFlyoutTip::OnPaint()
{
    CPaintDC dc(this);
    CRect rect;
    GetClientRect(&rect);
    dc.FillSolidRect(rect, ::GetSysColor(COLOR_INFOTEXT)); // the border
    rect.DeflateRect(1, 1);
    dc.FillSolidRect(rect, ::GetSysColor(COLOR_INFOBK));
    rect.DeflateRect(kMarginX - 1, kMarginY - 1);
    CFont* const before = m_font.m_hObject ? dc.SelectObject(&m_font) : nullptr;
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(::GetSysColor(COLOR_INFOTEXT));
    dc.DrawText(m_text.c_str(), static_cast<int>(m_text.size()), &rect, DT_NOPREFIX);
    if (before)
        dc.SelectObject(before);
}

BOOL CFlyoutTip::OnEraseBkgnd(CDC*)
{
    return TRUE; // OnPaint covers everything
}

LRESULT CFlyoutTip::OnNcHitTest(CPoint)
{
    return HTTRANSPARENT;
}
