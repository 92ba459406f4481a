#include "ImagesPage.h"

#include "Resolution.h"
#include "resource.h"

#include <ovoui/frame/ThemeData.h>

#include <ovouires/resource.h>

#include <iterator>
#include <string>

BEGIN_MESSAGE_MAP(ImageSamples, CWnd)
    ON_WM_PAINT()
END_MESSAGE_MAP()

namespace
{

constexpr int kImages = 12;

// Pixels at 96 dots per inch.
constexpr int kLabel = 100;
constexpr int kGap = 8;
constexpr int kSizes[] = {16, 24, 32};
constexpr int kButton = 16;

constexpr UINT kStrips[] = {IDB_TOOLBAR_16, IDB_TOOLBAR_24, IDB_TOOLBAR_32};

constexpr int kDrawn = 16; // pixels whatever the resolution: the example is to be seen pixel by pixel
constexpr int kScaled = 24;
constexpr int kZoom = 3;

void drawStrip(CDC& dc, CAlphaImageList& images, int left, int top, int size, int count)
{
    for (int i = 0; i < count; ++i)
        images.ImageList()->Draw(&dc, i, CPoint(left + i * (size + 2), top), ILD_NORMAL);
}

/// One image with every pixel as a square.
void drawZoomed(CDC& dc, CAlphaImageList& images, int image, CPoint place, int side)
{
    CDC memory;
    memory.CreateCompatibleDC(&dc);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&dc, kScaled, kScaled);
    CBitmap* const old = memory.SelectObject(&bitmap);
    memory.FillSolidRect(0, 0, kScaled, kScaled, ::GetSysColor(COLOR_WINDOW));
    images.ImageList()->Draw(&memory, image, CPoint(0, 0), ILD_NORMAL);
    dc.SetStretchBltMode(COLORONCOLOR);
    dc.StretchBlt(place.x, place.y, side, side, &memory, 0, 0, kScaled, kScaled, SRCCOPY | NOMIRRORBITMAP);
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

struct ButtonImages
{
    int size;   ///< in pixels
    UINT first; ///< the others follow
};

constexpr UINT kButtonImages = 6;

/// A button does not scale its image: the largest of those drawn that is not larger than wanted.
ButtonImages imagesForButtons(int size)
{
    constexpr ButtonImages kDrawn[] = {
        {32, IDB_ADD_32}, {24, IDB_ADD_24}, {20, IDB_ADD_20}, {16, IDB_ADD_16}};
    for (const ButtonImages& images : kDrawn)
        if (images.size <= size)
            return images;
    return kDrawn[std::size(kDrawn) - 1];
}

} // namespace

bool ImageSamples::create(CWnd& parent)
{
    for (std::size_t i = 0; i < m_sizes.size(); ++i)
        fill(m_sizes[i], kStrips[i], kSizes[i], scaled(parent, kSizes[i]), true);
    fill(m_soft, IDB_TOOLBAR_16, kDrawn, kScaled, false);
    fill(m_sharp, IDB_TOOLBAR_16, kDrawn, kScaled, true);
    const LPCTSTR cls = AfxRegisterWndClass(CS_HREDRAW | CS_VREDRAW, ::LoadCursorW(nullptr, IDC_ARROW),
                                            reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1));
    return CreateEx(0, cls, L"", WS_CHILD | WS_VISIBLE, CRect(), &parent, 1) != FALSE;
}

void ImageSamples::OnPaint()
{
    CPaintDC dc(this);
    CFont* const old = dc.SelectObject(GetParent()->GetFont());
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(::GetSysColor(COLOR_BTNTEXT));
    int top = drawSizes(dc, 0);
    top = drawScaled(dc, top);
    drawStates(dc, top);
    dc.SelectObject(old);
}

void ImageSamples::drawLabel(CDC& dc, const wchar_t* text, int top, int height)
{
    CRect place(0, top, scaled(m_hWnd, kLabel), top + height);
    dc.DrawText(text, -1, &place, DT_SINGLELINE | DT_VCENTER);
}

int ImageSamples::drawSizes(CDC& dc, int top)
{
    for (std::size_t i = 0; i < m_sizes.size(); ++i) {
        const int size = scaled(m_hWnd, kSizes[i]);
        drawLabel(dc, (std::to_wstring(size) + L" pixels").c_str(), top, size);
        drawStrip(dc, m_sizes[i], scaled(m_hWnd, kLabel), top, size, kImages);
        top += size + scaled(m_hWnd, kGap);
    }
    return top;
}

/// Each image soft and, beside it, sharpened.
int ImageSamples::drawScaled(CDC& dc, int top)
{
    const int side = kScaled * scaled(m_hWnd, kZoom);
    const int gap = scaled(m_hWnd, kGap);
    const struct
    {
        const wchar_t* text;
        int images[2];
    } rows[] = {{L"Soft and sharp", {2, 3}}, {L"(16 to 24 pixels)", {4, 9}}};
    for (const auto& [text, images] : rows) {
        drawLabel(dc, text, top, side);
        int left = scaled(m_hWnd, kLabel);
        for (const int image : images) {
            drawZoomed(dc, m_soft, image, CPoint(left, top), side);
            drawZoomed(dc, m_sharp, image, CPoint(left + side + gap / 2, top), side);
            left += 2 * side + 3 * gap;
        }
        top += side + gap;
    }
    return top;
}

int ImageSamples::drawStates(CDC& dc, int top)
{
    CAlphaImageList& images = m_sizes[1];
    const int size = scaled(m_hWnd, kSizes[1]);
    const int left = scaled(m_hWnd, kLabel);
    const int gap = scaled(m_hWnd, kGap);
    drawLabel(dc, L"Normal", top, size);
    drawStrip(dc, images, left, top, size, kImages);
    top += size + gap;
    drawLabel(dc, L"Hot, disabled", top, size);
    constexpr int kHalf = kImages / 2;
    for (int i = 0; i < kHalf; ++i)
        ::ImageList_Draw(images.GetHotImageList(), i, dc, left + i * (size + 2), top, ILD_NORMAL);
    for (int i = kHalf; i < kImages; ++i) {
        IMAGELISTDRAWPARAMS how{};
        how.cbSize = sizeof how;
        how.himl = images.GetImageList();
        how.i = i;
        how.hdcDst = dc;
        how.x = left + i * (size + 2);
        how.y = top;
        how.rgbBk = CLR_NONE;
        how.rgbFg = CLR_NONE;
        how.fStyle = ILD_TRANSPARENT;
        how.fState = ILS_SATURATE;
        ::ImageList_DrawIndirect(&how);
    }
    return top + size + gap;
}

// The page

BEGIN_MESSAGE_MAP(ImagesPage, GalleryPage)
    ON_BN_CLICKED(IDC_IMAGES_DRAWINGS, &ImagesPage::OnDrawings)
    ON_WM_SYSCOLORCHANGE()
END_MESSAGE_MAP()

ImagesPage::ImagesPage()
    : GalleryPage(IDD_PAGE_IMAGES)
{
}

ImagesPage::~ImagesPage() = default;

BOOL ImagesPage::OnInitDialog()
{
    GalleryPage::OnInitDialog();
    m_samples.create(*this);
    replace(IDC_IMAGES_SAMPLES, m_samples);
    m_drawings.create(*this);
    replace(IDC_IMAGES_DRAWING_SAMPLES, m_drawings);
    for (std::size_t i = 0; i < m_buttons.size(); ++i)
        m_buttons[i].SubclassDlgItem(IDC_IMAGES_BUTTON + static_cast<UINT>(i), this);
    loadImages();
    stretch(IDC_IMAGES_SAMPLES, {.growX = 100, .growY = 100});
    stretch(IDC_IMAGES_DRAWING_SAMPLES, {.growX = 100, .growY = 100});
    stretch(IDC_IMAGES_BUTTONS_LABEL, {.moveY = 100});
    stretch(IDC_IMAGES_DRAWINGS, {.moveY = 100});
    for (int i = 0; i < static_cast<int>(m_buttons.size()); ++i)
        stretch(IDC_IMAGES_BUTTON + i, {.moveY = 100});
    return FALSE;
}

std::vector<std::wstring> ImagesPage::poses() const
{
    return {L"drawings"};
}

bool ImagesPage::pose(const std::wstring& name)
{
    if (name != L"drawings")
        return false;
    CheckDlgButton(IDC_IMAGES_DRAWINGS, BST_CHECKED);
    OnDrawings();
    return true;
}

void ImagesPage::OnDrawings()
{
    const bool drawings = IsDlgButtonChecked(IDC_IMAGES_DRAWINGS) == BST_CHECKED;
    m_samples.ShowWindow(drawings ? SW_HIDE : SW_SHOWNA);
    m_drawings.ShowWindow(drawings ? SW_SHOWNA : SW_HIDE);
    log(drawings ? L"The images are drawn for each size." : L"The images come from strips.");
}

/// Images that are made with the system's colours are made anew.
void ImagesPage::OnSysColorChange()
{
    GalleryPage::OnSysColorChange();
    loadImages();
}

void ImagesPage::loadImages()
{
    const auto [size, first] = imagesForButtons(scaled(kButton));
    const UINT strip = CThemeData::getThemeData().IsAppThemed() ? first : IDB_ADD_16_CLASSIC;
    for (std::size_t i = 0; i < m_buttons.size(); ++i) {
        m_buttons[i].setSize(static_cast<unsigned>(size));
        m_buttons[i].useDisabledImage(true);
        m_buttons[i].loadImage(strip + static_cast<UINT>(i) % kButtonImages);
    }
}
