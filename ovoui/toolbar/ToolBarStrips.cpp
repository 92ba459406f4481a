// CVantorToolBar: images by the resolution of the monitor, and their disabled forms.
#include <ovoui/images/ResolutionWatch.h>
#include <ovoui/images/core/StripChoice.h>
#include <ovoui/toolbar/ToolBarState.h>

#include <afxpriv.h>

#include <utility>

using ovoui::images::atResolution;
using ovoui::images::resolutionOf;

namespace
{

constexpr SIZE kAroundImage{8, 7}; // of a button, in pixels at the usual resolution

} // namespace

void CVantorToolBar::UseStrips(const std::vector<Strip>& strips, int imageSize)
{
    std::vector<CImageStrips::Strip> sources;
    for (const Strip& strip : strips)
        sources.push_back({.bitmapId = strip.bitmapId, .size = strip.size});
    UseStrips(CImageStrips(std::move(sources), imageSize));
}

void CVantorToolBar::UseStrips(CImageStrips strips)
{
    if (m_state->images.GetImageList())
        m_state->imagesBefore = std::move(m_state->images); // the control shows them until it has others
    m_state->images = std::move(strips);
    m_state->images.UseDisabledImages(m_state->makesDisabled);
    loadStrip(resolutionOf(m_hWnd));
}

void CVantorToolBar::UseDisabledImages(bool use)
{
    if (use == m_state->makesDisabled)
        return;
    m_state->makesDisabled = use;
    m_state->images.UseDisabledImages(use);
    if (use)
        renewImages();
    else
        SendMessage(TB_SETDISABLEDIMAGELIST, 0, 0);
}

/// The bar's images at a resolution; nothing happens when they have the size already.
void CVantorToolBar::loadStrip(int dotsPerInch)
{
    const std::shared_ptr<State> state = m_state; // a drawing of the host's may destroy the bar
    const HIMAGELIST before = state->images.GetImageList();
    const int sizeBefore = state->images.GetSize();
    if (m_hWnd && state->images.Load(dotsPerInch) && state->usable() &&
        state->images.GetImageList() != before)
        showImages(dotsPerInch, sizeBefore);
}

/// The same images once more, after a change of what they are made from.
void CVantorToolBar::renewImages()
{
    const std::shared_ptr<State> state = m_state;
    const int size = state->images.GetSize();
    if (m_hWnd && state->images.Reload() && state->usable())
        showImages(resolutionOf(m_hWnd), size);
}

void CVantorToolBar::showImages(int dotsPerInch, int sizeBefore)
{
    const CImageStrips& images = m_state->images;
    const auto before = reinterpret_cast<const void*>(SendMessage(TB_GETIMAGELIST));
    SendMessage(TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(images.GetImageList()));
    if (m_state->makesDisabled)
        SendMessage(TB_SETDISABLEDIMAGELIST, 0, reinterpret_cast<LPARAM>(images.GetDisabledImageList()));
    m_state->records.replaceImageList(before, images.GetImageList());
    if (images.GetSize() == sizeBefore) {
        Invalidate();
        return;
    }
    const CSize size(images.GetSize(), images.GetSize());
    SetSizes(
        size + CSize(atResolution(kAroundImage.cx, dotsPerInch), atResolution(kAroundImage.cy, dotsPerInch)),
        size);
    UpdateBarBitmapSize(size.cx);
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

/// `resolution` is 0 when the message does not tell it. False when a drawing of the host's has destroyed the
/// bar.
bool CVantorToolBar::onResolutionChanged(int resolution)
{
    const std::shared_ptr<State> state = m_state;
    loadStrip(resolution ? resolution : resolutionOf(m_hWnd));
    return state->usable();
}
