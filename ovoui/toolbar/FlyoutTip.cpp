#include <ovoui/toolbar/FlyoutTip.h>

#include <ovoui/frame/Exceptions.h>
#include <ovoui/frame/NonClientMetrics.h>
#include <ovoui/frame/Tip.h>

namespace
{

constexpr wchar_t kClass[] = L"OvoFlyoutTip";
constexpr int kMarginX = 5; // pixels from the window's edge to the text, at the usual resolution
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

CFlyoutTip::CFlyoutTip()
    : TipWindow(CSize(kMarginX, kMarginY))
{
}

/// Where the system does not tell its font for tips, that of dialogs serves: a tip is no reason for an error.
bool CFlyoutTip::create(CWnd& owner)
{
    ovoui::frame::quietly([this] {
        const OvoNonClientMetrics metrics;
        if (m_statusFont.CreateFontIndirect(&metrics.lfStatusFont))
            setFont(m_statusFont);
    });
    return registerClass() && CreateEx(WS_EX_TOOLWINDOW, kClass, L"OVO_FLYOUT_TOOLTIP", WS_POPUP, 0, 0, 0, 0,
                                       owner.m_hWnd, nullptr);
}

void CFlyoutTip::show(const std::wstring& text, const CRect& entry)
{
    setText(text);
    showAt(ovoui::frame::placeOfTip(entry, sizeAroundText()), wndTop);
}
