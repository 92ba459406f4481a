#include "PicturePreview.h"

#include "Resolution.h"

#include <ovoui/frame/Geometry.h>

#include <gdiplus.h>

#include <algorithm>

namespace
{

constexpr UINT_PTR kFollow = 1;
constexpr UINT kFollowInterval = 30; ///< milliseconds
constexpr int kWidth = 220;          ///< pixels at 96 dots per inch, as the others
constexpr int kGap = 8;

/// The largest place of the picture's proportions in the middle of the pane.
CRect fitted(CSize picture, const CRect& pane)
{
    const double scale =
        std::min({1.0, double(pane.Width()) / picture.cx, double(pane.Height()) / picture.cy});
    const CSize size(std::max(1, static_cast<int>(picture.cx * scale)),
                     std::max(1, static_cast<int>(picture.cy * scale)));
    return {CPoint(pane.CenterPoint().x - size.cx / 2, pane.CenterPoint().y - size.cy / 2), size};
}

/// A copy: GDI+ holds a file as long as there is an image of it. Null when the file holds no picture.
std::unique_ptr<Gdiplus::Bitmap> copyOf(const std::wstring& path)
{
    Gdiplus::Bitmap file(path.c_str());
    if (file.GetLastStatus() != Gdiplus::Ok || file.GetWidth() == 0 || file.GetHeight() == 0)
        return nullptr;
    const auto width = static_cast<INT>(file.GetWidth());
    const auto height = static_cast<INT>(file.GetHeight());
    auto copy = std::make_unique<Gdiplus::Bitmap>(width, height, PixelFormat32bppPARGB);
    if (copy->GetLastStatus() != Gdiplus::Ok ||
        Gdiplus::Graphics(copy.get()).DrawImage(&file, 0, 0, width, height) != Gdiplus::Ok)
        return nullptr;
    return copy;
}

} // namespace

BEGIN_MESSAGE_MAP(PicturePreview, CWnd)
    ON_WM_PAINT()
    ON_WM_TIMER()
END_MESSAGE_MAP()

PicturePreview::PicturePreview() = default;
PicturePreview::~PicturePreview() = default;

bool PicturePreview::createIn(CWnd& parent, const CRect& place)
{
    return CreateEx(WS_EX_STATICEDGE, AfxRegisterWndClass(0), L"Preview", WS_CHILD | WS_VISIBLE, place,
                    &parent, 0);
}

bool PicturePreview::createBeside(CWnd& dialog)
{
    m_beside = dialog.m_hWnd;
    if (!CreateEx(WS_EX_TOOLWINDOW, AfxRegisterWndClass(0), L"Preview", WS_POPUP | WS_BORDER,
                  CRect(0, 0, 0, 0), &dialog, 0))
        return false;
    goBeside();
    ShowWindow(SW_SHOWNOACTIVATE);
    SetTimer(kFollow, kFollowInterval, nullptr);
    return true;
}

void PicturePreview::goBeside()
{
    CRect dialog;
    ::GetWindowRect(m_beside, &dialog);
    const int gap = scaled(m_hWnd, kGap);
    const int width = scaled(m_hWnd, kWidth);
    const CRect room = GetWorkArea(dialog);
    const bool fits = dialog.right + gap + width <= room.right || dialog.left - gap - width < room.left;
    const int left = fits ? dialog.right + gap : dialog.left - gap - width;
    SetWindowPos(nullptr, left, dialog.top, width, dialog.Height(), SWP_NOZORDER | SWP_NOACTIVATE);
}

void PicturePreview::show(const std::wstring& path)
{
    m_picture = copyOf(path);
    if (m_hWnd)
        Invalidate(FALSE);
}

void PicturePreview::OnTimer(UINT_PTR)
{
    goBeside();
}

void PicturePreview::OnPaint()
{
    CPaintDC dc(this);
    CRect pane;
    GetClientRect(&pane);
    dc.FillSolidRect(&pane, ::GetSysColor(COLOR_APPWORKSPACE));
    if (!m_picture)
        return;
    pane.DeflateRect(scaled(m_hWnd, kGap), scaled(m_hWnd, kGap));
    const CRect place =
        fitted({static_cast<int>(m_picture->GetWidth()), static_cast<int>(m_picture->GetHeight())}, pane);
    Gdiplus::Graphics graphics(dc.m_hDC);
    graphics.SetInterpolationMode(Gdiplus::InterpolationModeHighQualityBicubic);
    graphics.DrawImage(m_picture.get(), place.left, place.top, place.Width(), place.Height());
}
