/// Strips of images from drawings, at the very size that is wanted.
///
///     using namespace ovosvg;
///     const SvgStrip strip({SvgDrawing::fromResource(IDR_NEW), SvgDrawing::fromResource(IDR_SAVE)});
///     CImageStrips images(strip, 16);
///     images.Load(*this);
#pragma once

#include <ovosvg/SvgDrawing.h>

#include <memory>
#include <vector>

namespace ovosvg
{

/// A function that makes a strip, as CImageStrips takes one. Copies share the drawings.
class OVOSVG_API SvgStrip
{
public:
    /// The images are those of `drawings`, from the left; `currentColour` as SvgDrawing::draw takes it.
    explicit SvgStrip(std::vector<SvgDrawing> drawings, COLORREF currentColour = CLR_DEFAULT);
    ~SvgStrip();
    SvgStrip(const SvgStrip&);
    SvgStrip& operator=(const SvgStrip&);

    /// All drawings side by side, `size` by `size` pixels each, in a new DIB section with straight colours,
    /// which the caller owns. Null without drawings, for a size without pixels, and when the bitmap cannot be
    /// made. Raises SvgError when a drawing is too intricate.
    HBITMAP operator()(int size) const;

private:
    struct State;

    std::shared_ptr<const State> m_state;
};

/// The same at once, for a strip that is added to a CAlphaImageList: the images of `drawings`, `size` by
/// `size` pixels each, with `currentColour` as SvgDrawing::draw takes it. The caller owns the bitmap.
OVOSVG_API HBITMAP svgStrip(const std::vector<SvgDrawing>& drawings, int size,
                            COLORREF currentColour = CLR_DEFAULT);

} // namespace ovosvg
