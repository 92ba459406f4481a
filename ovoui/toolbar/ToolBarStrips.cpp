// CVantorToolBar: images by the resolution of the monitor.
#include <ovoui/images/AlphaImageList.h>
#include <ovoui/toolbar/ToolBarState.h>
#include <ovoui/toolbar/core/StripChoice.h>

#include <afxpriv.h>

using namespace ovoui::toolbar;

namespace
{

constexpr SIZE kAroundImage{8, 7}; // of a button, in pixels at the usual resolution

int resolutionOf(HWND wnd)
{
    using GetDpi = UINT(WINAPI*)(HWND);
    const FARPROC entry = ::GetProcAddress(::GetModuleHandleW(L"user32.dll"), "GetDpiForWindow");
    const auto getDpi = reinterpret_cast<GetDpi>(reinterpret_cast<void*>(entry));
    if (const UINT dpi = getDpi ? getDpi(wnd) : 0)
        return static_cast<int>(dpi);
    const CClientDC screen(nullptr);
    return screen.GetDeviceCaps(LOGPIXELSY);
}

} // namespace

void CVantorToolBar::UseStrips(const std::vector<Strip>& strips, int imageSize)
{
    m_state->strips = strips;
    m_state->imageSize = imageSize;
    m_state->shownSize = 0;
    loadStrip(resolutionOf(m_hWnd));
}

/// The bar's images at a resolution; nothing happens when they have the size already.
void CVantorToolBar::loadStrip(int dotsPerInch)
{
    const int size = atResolution(m_state->imageSize, dotsPerInch);
    if (!m_hWnd || m_state->strips.empty() || size == m_state->shownSize)
        return;
    std::vector<int> sizes;
    for (const Strip& strip : m_state->strips)
        sizes.push_back(strip.size);
    const Strip& strip = m_state->strips[chooseStrip(sizes, size)];

    auto images = std::make_unique<CAlphaImageList>();
    const CSize from(strip.size, strip.size);
    const CSize to(size, size);
    if (!images->Create(size, size, 1) ||
        images->AddBitmap(strip.bitmapId, false, -1, from, to, nullptr, nullptr) < 0)
        return; // the images of before stay
    const auto before = reinterpret_cast<const void*>(SendMessage(TB_GETIMAGELIST));
    SendMessage(TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(images->GetImageList()));
    SetSizes(
        to + CSize(atResolution(kAroundImage.cx, dotsPerInch), atResolution(kAroundImage.cy, dotsPerInch)),
        to);
    m_state->records.replaceImageList(before, images->GetImageList());
    UpdateBarBitmapSize(size);
    m_state->images = std::move(images);
    m_state->shownSize = size;
    CFrameWnd* const frame = GetDockingFrame();
    if (frame && isPlacedBy(*frame))
        frame->RecalcLayout();
}

/// A bar in a dialog belongs to a frame too, but does not take room of it.
bool CVantorToolBar::isPlacedBy(const CFrameWnd& frame) const
{
    const CWnd* const parent = GetParent();
    return parent == &frame || dynamic_cast<const CDockBar*>(parent);
}

/// `resolution` is 0 when the message does not tell it.
void CVantorToolBar::onResolutionChanged(int resolution)
{
    loadStrip(resolution ? resolution : resolutionOf(m_hWnd));
}
