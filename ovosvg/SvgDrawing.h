/// Drawings in Scalable Vector Graphics, as icons use it, made into bitmaps of any size.
///
///     const auto drawing = ovosvg::SvgDrawing::fromResource(IDR_SAVE);
///     CBitmap save;
///     save.Attach(drawing.draw(24, 24));
#pragma once

#include <ovosvg/SvgNote.h>
#include <ovosvg/export.h>

#include <windows.h>

#include <commctrl.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace ovosvg
{

/// How colours are stored in a bitmap.
enum class SvgPixels
{
    Straight,     ///< as CAlphaImageList::AddBitmap takes them
    Premultiplied ///< as AlphaBlend and layered windows take them
};

/// A drawing that was read. Copies share it, and it never changes. What it may hold stands in docs/svg.md.
class OVOSVG_API SvgDrawing
{
public:
    /// From a text, `utf8`, which is not needed afterwards. Raises SvgError when it is no drawing.
    static SvgDrawing fromText(std::string_view utf8);
    /// From the file `path`. Raises WinError when it cannot be read, and as above.
    static SvgDrawing fromFile(const std::wstring& path);
    /// From the resource `id` of a `type`, a name or RT_RCDATA and the like, found by the framework's search.
    /// Raises WinError without such a resource, and as above.
    static SvgDrawing fromResource(UINT id, const wchar_t* type = L"SVG");

    ~SvgDrawing();
    SvgDrawing(const SvgDrawing&);
    SvgDrawing& operator=(const SvgDrawing&);

    /// A new top-down DIB section of `width` by `height` pixels, 32 bits each, in the form `pixels`; the
    /// caller owns it. `currentColour` is that of currentColor where the drawing says no other; CLR_DEFAULT
    /// stands for the colour of button texts. Null when the bitmap cannot be made, and for a size without
    /// pixels. Raises SvgError when the drawing is too intricate.
    HBITMAP draw(int width, int height, COLORREF currentColour = CLR_DEFAULT,
                 SvgPixels pixels = SvgPixels::Straight) const;

    /// What the drawing holds that is not drawn or cannot be read, once each. Raises SvgError when it is too
    /// intricate.
    std::vector<SvgNote> notes() const;

private:
    struct State;
    explicit SvgDrawing(std::string_view utf8);
    friend class SvgStrip;

    std::shared_ptr<const State> m_state;
};

} // namespace ovosvg
