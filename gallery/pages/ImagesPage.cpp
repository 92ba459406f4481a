#include "ImagesPage.h"

#include "resource.h"

#include <ovoui/frame/ThemeData.h>

#include <ovouires/resource.h>

#include <string>

BEGIN_MESSAGE_MAP(ImageSamples, CWnd)
ON_WM_PAINT()
END_MESSAGE_MAP()

namespace
{

constexpr int kImages = 12;
constexpr int kLabel = 100;
constexpr int kGap = 8;
constexpr int kSizes[] = {16, 24, 32};
constexpr UINT kStrips[] = {IDB_TOOLBAR_16, IDB_TOOLBAR_24, IDB_TOOLBAR_32};

constexpr int kScaled = 24;
constexpr int kZoom = 3;

void label(CDC& dc, const wchar_t* text, int top, int height)
{
    CRect place(0, top, kLabel, top + height);
    dc.DrawText(text, -1, &place, DT_SINGLELINE | DT_VCENTER);
}

void drawStrip(CDC& dc, CAlphaImageList& images, int left, int top, int size, int count)
{
    for (int i = 0; i < count; ++i)
        images.ImageList()->Draw(&dc, i, CPoint(left + i * (size + 2), top), ILD_NORMAL);
}

/// One image with every pixel as a square.
void drawZoomed(CDC& dc, CAlphaImageList& images, int image, CPoint place)
{
    CDC memory;
    memory.CreateCompatibleDC(&dc);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&dc, kScaled, kScaled);
    CBitmap* const old = memory.SelectObject(&bitmap);
    memory.FillSolidRect(0, 0, kScaled, kScaled, ::GetSysColor(COLOR_WINDOW));
    images.ImageList()->Draw(&memory, image, CPoint(0, 0), ILD_NORMAL);
    dc.SetStretchBltMode(COLORONCOLOR);
    dc.StretchBlt(place.x, place.y, kScaled * kZoom, kScaled * kZoom, &memory, 0, 0, kScaled, kScaled,
                  SRCCOPY);
    memory.SelectObject(old);
}

void fill(CAlphaImageList& images, UINT strip, int from, int to, bool sharpen)
{
    images.Create(to, to, kImages);
    images.SetSharpenMode(sharpen);
    images.SetInterpolationMode(Gdiplus::InterpolationModeHighQualityBilinear);
    images.AddBitmap(strip, false, -1, CSize(from, from), CSize(to, to), nullptr, nullptr);
    images.AddBitmap(strip, true, -1, CSize(from, from), CSize(to, to), nullptr, nullptr);
}

} // namespace

bool ImageSamples::create(CWnd& parent, const CRect& place)
{
    for (std::size_t i = 0; i < m_sizes.size(); ++i)
        fill(m_sizes[i], kStrips[i], kSizes[i], kSizes[i], true);
    fill(m_soft, IDB_TOOLBAR_16, 16, kScaled, false);
    fill(m_sharp, IDB_TOOLBAR_16, 16, kScaled, true);
    const LPCTSTR cls = AfxRegisterWndClass(CS_HREDRAW | CS_VREDRAW, ::LoadCursorW(nullptr, IDC_ARROW),
                                            reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1));
    return CreateEx(0, cls, L"", WS_CHILD | WS_VISIBLE, place, &parent, 1) != FALSE;
}

void ImageSamples::OnPaint()
{
    CPaintDC dc(this);
    CFont* const old = dc.SelectObject(GetParent()->GetFont());
    dc.SetBkMode(TRANSPARENT);
    int top = drawSizes(dc, 0);
    top = drawScaled(dc, top);
    drawStates(dc, top);
    dc.SelectObject(old);
}

int ImageSamples::drawSizes(CDC& dc, int top)
{
    for (std::size_t i = 0; i < m_sizes.size(); ++i) {
        const int size = kSizes[i];
        label(dc, (std::to_wstring(size) + L" pixels").c_str(), top, size);
        drawStrip(dc, m_sizes[i], kLabel, top, size, kImages);
        top += size + kGap;
    }
    return top;
}

/// Each image soft and, beside it, sharpened.
int ImageSamples::drawScaled(CDC& dc, int top)
{
    constexpr int kSide = kScaled * kZoom;
    const struct
    {
        const wchar_t* text;
        int images[2];
    } rows[] = {{L"16 to 24 pixels,", {2, 3}}, {L"soft and sharp", {4, 9}}};
    for (const auto& [text, images] : rows) {
        label(dc, text, top, kSide);
        int left = kLabel;
        for (const int image : images) {
            drawZoomed(dc, m_soft, image, CPoint(left, top));
            drawZoomed(dc, m_sharp, image, CPoint(left + kSide + kGap / 2, top));
            left += 2 * kSide + 3 * kGap;
        }
        top += kSide + kGap;
    }
    return top;
}

int ImageSamples::drawStates(CDC& dc, int top)
{
    CAlphaImageList& images = m_sizes[1];
    const int size = kSizes[1];
    label(dc, L"Normal", top, size);
    drawStrip(dc, images, kLabel, top, size, kImages);
    top += size + kGap;
    label(dc, L"Hot, disabled", top, size);
    constexpr int kHalf = kImages / 2;
    for (int i = 0; i < kHalf; ++i)
        ::ImageList_Draw(images.GetHotImageList(), i, dc, kLabel + i * (size + 2), top, ILD_NORMAL);
    for (int i = kHalf; i < kImages; ++i) {
        IMAGELISTDRAWPARAMS how{};
        how.cbSize = sizeof how;
        how.himl = images.GetImageList();
        how.i = i;
        how.hdcDst = dc;
        how.x = kLabel + i * (size + 2);
        how.y = top;
        how.rgbBk = CLR_NONE;
        how.rgbFg = CLR_NONE;
        how.fStyle = ILD_TRANSPARENT;
        how.fState = ILS_SATURATE;
        ::ImageList_DrawIndirect(&how);
    }
    return top + size + kGap;
}

// The page

ImagesPage::ImagesPage()
    : GalleryPage(IDD_PAGE_IMAGES)
{
}

ImagesPage::~ImagesPage() = default;

BOOL ImagesPage::OnInitDialog()
{
    GalleryPage::OnInitDialog();
    CRect place;
    GetDlgItem(IDC_IMAGES_SAMPLES)->GetWindowRect(&place);
    ScreenToClient(&place);
    m_samples.create(*this, place);

    const bool themed = CThemeData::getThemeData().IsAppThemed();
    for (std::size_t i = 0; i < m_buttons.size(); ++i) {
        m_buttons[i].SubclassDlgItem(IDC_IMAGES_BUTTON + static_cast<UINT>(i), this);
        m_buttons[i].setSize(16);
        const UINT image = static_cast<UINT>(i) % 6;
        m_buttons[i].loadImage(themed ? IDB_ADD_16 + image : IDB_ADD_16_CLASSIC + image);
    }
    return FALSE;
}
