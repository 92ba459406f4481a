// The picker's keyboard: ring, triangle and swatches.
#include <ovoui/colour/ColPickerStops.h>
#include <ovoui/colour/ColourWheelImage.h>
#include <ovoui/colour/ColourCells.h>
#include <ovoui/colour/ColourText.h>
#include <ovoui/colour/core/ControlKeys.h>
#include <ovoui/colour/core/FocusMark.h>
#include <ovoui/frame/DcScopes.h>
#include <ovoui/frame/HeldKeysNow.h>
#include <ovoui/frame/LoadedText.h>
#include <ovouires/resource.h>

#include <oleacc.h>

#include <utility>

using namespace ovoui::colour;
using ovoui::frame::heldKeysNow;
using ovoui::frame::loadedText;

namespace
{

/// Dots in the colour of texts, the same ones each time: drawing them again changes nothing.
template <std::size_t Points>
void drawDots(CDC& dc, const std::array<Vector<2>, Points>& outline, CSize offset)
{
    const LOGBRUSH ink{BS_SOLID, ::GetSysColor(COLOR_BTNTEXT), 0};
    CPen pen(PS_COSMETIC | PS_ALTERNATE, 1, &ink);
    const ovoui::frame::SelectedTool selected(dc, &pen);
    const int mode = dc.SetBkMode(TRANSPARENT);
    POINT points[Points];
    for (std::size_t i = 0; i < Points; ++i)
        points[i] = {std::lround(outline[i].x()) + offset.cx, std::lround(outline[i].y()) + offset.cy};
    dc.Polyline(points, static_cast<int>(Points));
    dc.SetBkMode(mode);
}

} // namespace

// Making

void ColPicker::makeStops(CWnd* wnd)
{
    m_stops.reset();
    if (!m_keysEnabled || !hasWheel())
        return;
    m_stops = std::make_unique<Stops>();
    const auto make = [&](UINT name, std::function<std::wstring()> value) {
        auto identity = std::make_shared<ColourIdentity>();
        identity->role = ROLE_SYSTEM_SLIDER;
        identity->name = [name] { return loadedText(name); };
        identity->value = std::move(value);
        return std::make_unique<PickerStop>(
            PickerStop::Calls{[](UINT key) { return wheelKeyOf(key).has_value(); },
                              [this, wnd] { wnd->InvalidateRect(&m_wheelRect, TRUE); }},
            std::move(identity));
    };
    m_stops->ring = make(IDS_COLOUR_RING, [this] { return std::to_wstring(hueOf(m_colour)); });
    m_stops->ring->create(*wnd, m_wheelRect, Stops::kRingId, wnd->GetDlgItem(IDC_WHEEL));
    m_stops->triangle = make(IDS_COLOUR_TRIANGLE, [this] { return shadeText(); });
    const ovoui::frame::Box& inner = m_wheel->triangle().rect();
    CRect place(asDrawn({inner.left, inner.top}), asDrawn({inner.right - 1, inner.bottom - 1}));
    place.NormalizeRect();
    place.BottomRight() += CSize(1, 1);
    m_stops->triangle->create(*wnd, place, Stops::kTriangleId, m_stops->ring.get());
    m_stops->told.begin(m_colour);
    if (m_customAreaId != 0)
        makeSwatchStop(wnd);
}

void ColPicker::makeSwatchStop(CWnd* wnd)
{
    auto identity = std::make_shared<ColourIdentity>();
    identity->role = ROLE_SYSTEM_LIST;
    identity->name = [] { return loadedText(IDS_COLOUR_CUSTOM); };
    identity->cells = static_cast<int>(m_swatches.size());
    identity->cellName = [this](int cell) { return nameOrCodeOfColour(Colour::colorref(customCols(cell))); };
    identity->cellPlace = [this, wnd](int cell) {
        CRect place = m_swatches[static_cast<std::size_t>(cell)];
        wnd->ClientToScreen(&place);
        return place;
    };
    identity->current = [this] { return m_stops->swatch; };
    identity->cellAction = [] { return loadedText(IDS_COLOUR_TAKE); };
    identity->pressCell = [this, wnd](int cell) {
        postClick(*wnd, m_swatches[static_cast<std::size_t>(cell)].CenterPoint());
    };
    m_stops->swatches = std::make_unique<PickerStop>(
        PickerStop::Calls{[](UINT key) { return swatchKey(key) != SwatchKey::None; },
                          [this, wnd] { wnd->InvalidateRect(&m_customRect, FALSE); }},
        identity);
    m_stops->swatches->create(*wnd, m_customRect, Stops::kSwatchesId, wnd->GetDlgItem(m_customAreaId));
}

/// The part that was pressed takes the focus, where it can. Whether picker and window still exist.
bool ColPicker::focusPart(CWnd* wnd, Drag part)
{
    if (!m_stops)
        return true;
    const Lifeline::Watch watch(m_lifeline);
    if (part == Drag::Triangle)
        m_stops->triangle->SetFocus();
    else if (part == Drag::Ring)
        m_stops->ring->SetFocus();
    return watch.alive() && wnd->m_hWnd;
}

bool ColPicker::focusSwatch(CWnd* wnd, int swatch)
{
    if (!m_stops || !m_stops->swatches)
        return true;
    const Lifeline::Watch watch(m_lifeline);
    m_stops->swatch = swatch;
    wnd->InvalidateRect(&m_customRect, FALSE);
    m_stops->swatches->SetFocus();
    return watch.alive() && wnd->m_hWnd;
}

// Keys

/// What a stop tells the dialog. Whether it was one.
bool ColPicker::carryOutKey(CWnd* wnd, HWND from)
{
    if (!m_stops || !from)
        return false;
    for (PickerStop* const stop : {m_stops->ring.get(), m_stops->triangle.get(), m_stops->swatches.get()})
        if (stop && stop->m_hWnd == from) {
            if (stop->key() != 0 && !isDragging(wnd))
                carryOutKey(wnd, *stop);
            return true;
        }
    return false;
}

void ColPicker::carryOutKey(CWnd* wnd, const PickerStop& stop)
{
    if (&stop == m_stops->swatches.get()) {
        carryOutSwatchKey(wnd, stop.key());
        return;
    }
    const auto move = wheelKeyOf(stop.key());
    if (move && &stop == m_stops->ring.get())
        moveHue(wnd, *move);
    else if (move)
        moveShade(wnd, *move);
}

void ColPicker::carryOutSwatchKey(CWnd* wnd, UINT key)
{
    switch (swatchKey(key)) {
    case SwatchKey::Take:
        takeSwatch(wnd, m_stops->swatch);
        break;
    case SwatchKey::Keep:
        keepInSwatch(wnd, m_stops->swatch);
        break;
    case SwatchKey::Move:
        moveToSwatch(wnd, m_mirrored ? mirrored(*wheelKeyOf(key)) : *wheelKeyOf(key));
        break;
    case SwatchKey::None:
        break;
    }
}

void ColPicker::moveHue(CWnd* wnd, WheelKey key)
{
    changeByKey(wnd, withHue(m_colour, hueAfter(hueOf(m_colour), key, heldKeysNow())));
}

void ColPicker::moveShade(CWnd* wnd, WheelKey key)
{
    changeByKey(wnd, m_stops->shade.moved(m_colour, key, heldKeysNow()));
}

void ColPicker::moveToSwatch(CWnd* wnd, WheelKey key)
{
    const int count = static_cast<int>(m_swatches.size());
    const int next = cellAfter(m_stops->swatch, count, count / 2, key);
    if (std::exchange(m_stops->swatch, next) == next)
        return;
    wnd->InvalidateRect(&m_customRect, FALSE);
    m_stops->swatches->announceCell(next);
}

/// A key that goes on being held leaves no time for painting, and the edits show the colour when it is
/// painted.
void ColPicker::changeByKey(CWnd* wnd, const Colour& colour)
{
    const Lifeline::Watch watch(m_lifeline);
    SetColour(wnd, colour, true);
    if (watch.alive() && wnd->m_hWnd)
        wnd->UpdateWindow();
    if (watch.alive() && wnd->m_hWnd)
        UpdateExternalColours(true);
}

// What is shown and told

/// Behind the markers, which invert what is under them. `offset` leads from the wheel's coordinates to those
/// of the DC.
void ColPicker::drawFocusMark(CDC* dc, CSize offset) const
{
    if (!m_stops)
        return;
    if (m_stops->ring->hasFocus())
        drawDots(*dc, focusMark(m_wheel->ring()), offset);
    else if (m_stops->triangle->hasFocus())
        drawDots(*dc, focusMark(m_wheel->triangle()), offset);
}

void ColPicker::drawSwatchMark(CDC* dc) const
{
    if (!m_stops || !m_stops->swatches || !m_stops->swatches->hasFocus())
        return;
    CRect frame = m_swatches[static_cast<std::size_t>(m_stops->swatch)];
    frame.DeflateRect(1, 1);
    drawCellMark(*dc, frame);
}

std::wstring ColPicker::shadeText() const
{
    const Shade shade = m_stops->shade.of(m_colour);
    CString text;
    text.Format(IDS_COLOUR_SHADE, shade.lightness, shade.saturation);
    return std::wstring(text);
}

void ColPicker::announceColour()
{
    if (!m_stops || !m_stops->ring)
        return;
    const ToldColour::News news = m_stops->told.news(m_colour);
    if (news.hue)
        m_stops->ring->announceValue();
    if (news.shade)
        m_stops->triangle->announceValue();
}
