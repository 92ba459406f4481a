#include <ovoui/images/AlphaImageButton.h>

#include <ovoui/frame/ThemeData.h>
#include <ovoui/images/StripReader.h>

#include <commctrl.h>
#include <vssym32.h>

#include <utility>

using namespace ovoui::images;

IMPLEMENT_DYNAMIC(CAlphaImageButton, CButton)

BEGIN_MESSAGE_MAP(CAlphaImageButton, CButton)
    ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

namespace
{

constexpr COLORREF kClassicFace = 0xC0C0C0;
constexpr COLORREF kClassicText = 0x000000;
constexpr int kLastState = 6; // hot under a pen, behind those of PUSHBUTTONSTATES

} // namespace

CAlphaImageButton::CAlphaImageButton() = default;

CAlphaImageButton::~CAlphaImageButton()
{
    if (m_classic)
        m_classic->DeleteObject();
    m_images.reset();
}

void CAlphaImageButton::setSize(unsigned int size)
{
    m_size = size;
}

void CAlphaImageButton::useDisabledImage(bool use)
{
    m_makesDisabled = use;
}

void CAlphaImageButton::loadImage(unsigned int id)
{
    if (CThemeData::getThemeData().IsAppThemed())
        loadThemed(id);
    else
        loadClassic(id);
}

void CAlphaImageButton::loadThemed(unsigned int id)
{
    const auto before = std::exchange(m_images, std::make_unique<CAlphaImageList>()); // shown until the end
    const auto size = static_cast<int>(m_size);
    const CSize images(size, size);
    const DWORD text = kClassicText;
    m_images->Create(size, size, 1);
    m_images->AddBitmap(id, false, 0, images, images, nullptr, &text);
    if (m_makesDisabled)
        addStates(id, images, &text);
    BUTTON_IMAGELIST list{};
    list.himl = m_images->GetImageList();
    list.uAlign = BUTTON_IMAGELIST_ALIGN_CENTER;
    SendMessage(BCM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(&list));
    if (m_hWnd) // or all windows would be invalid
        Invalidate();
}

/// With more than one image in the list, the button takes one for each of its states.
void CAlphaImageButton::addStates(unsigned int id, const CSize& size, const DWORD* remap)
{
    const std::optional<Strip> strip = Strip::resource(id);
    std::optional<StripPixels> pixels = strip ? pixelsOf(*strip, static_cast<int>(m_size)) : std::nullopt;
    if (!pixels)
        return;
    disable(*pixels);
    const UniqueBitmap disabled = bitmapOf(*pixels);
    for (int state = PBS_NORMAL + 1; state <= kLastState; ++state) {
        if (state == PBS_DISABLED)
            m_images->AddBitmap(0, false, 0, size, size, disabled.get(), nullptr);
        else
            m_images->AddBitmap(id, false, 0, size, size, nullptr, remap);
    }
}

void CAlphaImageButton::loadClassic(unsigned int id)
{
    COLORMAP colours[] = {{kClassicFace, ::GetSysColor(COLOR_BTNFACE)},
                          {kClassicText, ::GetSysColor(COLOR_BTNTEXT)}};
    const auto before = std::exchange(m_classic, std::make_unique<CBitmap>()); // shown until the end
    const HINSTANCE module = AfxFindResourceHandle(MAKEINTRESOURCE(id), RT_BITMAP);
    m_classic->Attach(::CreateMappedBitmap(module, static_cast<INT_PTR>(id), 0, colours, 2));
    SendMessage(BM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(m_classic->GetSafeHandle()));
}

/// What is erased is as large as the viewport: a single pixel in the usual mapping mode. The button itself
/// paints its background when it is drawn.
int CAlphaImageButton::OnEraseBkgnd(CDC* dc)
{
    SIZE extent{};
    ::GetViewportExtEx(dc->m_hAttribDC, &extent);
    const RECT rect{0, 0, extent.cx, extent.cy};
    return CThemeData::getThemeData().drawBackground(dc->m_hDC, &rect, m_hWnd, L"Button", PBS_NORMAL);
}
