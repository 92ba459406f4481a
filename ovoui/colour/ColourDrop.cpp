#include <ovoui/colour/ColourDrop.h>

#include <ovoui/colour/AccessibleColours.h>
#include <ovoui/colour/ColourCells.h>
#include <ovoui/colour/ColourText.h>
#include <ovoui/colour/core/ControlKeys.h>
#include <ovoui/colour/core/DropGesture.h>
#include <ovoui/frame/BoxRect.h>
#include <ovoui/frame/BufferedPaint.h>
#include <ovoui/frame/DcScopes.h>
#include <ovoui/frame/Geometry.h>
#include <ovoui/frame/LoadedText.h>
#include <ovoui/frame/OwnWindow.h>
#include <ovoui/frame/Resolution.h>
#include <ovoui/frame/core/LabelText.h>
#include <ovouires/resource.h>

#include <oleacc.h>

#include <utility>

namespace ovoui::colour
{

using frame::toBox;
using frame::toRect;

BEGIN_MESSAGE_MAP(ColourDrop, CWnd)
    ON_WM_MOUSEMOVE() // mouse
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSEACTIVATE()
    ON_WM_CAPTURECHANGED()
    ON_WM_PAINT() // painting
    ON_WM_ERASEBKGND()
    ON_WM_DESTROY()
    ON_MESSAGE(WM_GETOBJECT, &ColourDrop::OnGetObject)
END_MESSAGE_MAP()

namespace
{

// Pixels at 96 dots per inch
constexpr int kCell = 18;
constexpr int kMargin = 6;
constexpr int kLineMargin = 4; // around the line's text

} // namespace

ColourDrop::ColourDrop(Content content, Calls calls)
    : m_content(std::move(content))
    , m_calls(std::move(calls))
    , m_identity(std::make_shared<ColourIdentity>())
{
    m_identity->role = ROLE_SYSTEM_LIST;
    m_identity->cells = static_cast<int>(m_content.colours.size()) + !m_content.line.empty();
    m_identity->cellName = [this](int cell) { return nameOf(cell); };
    m_identity->cellPlace = [this](int cell) { return cellRect(cell); };
    m_identity->current = [this] { return current(); };
    m_identity->hasFocus = [this] { return ::GetFocus() == m_button->m_hWnd; };
    m_identity->cellAction = [] { return frame::loadedText(IDS_COLOUR_TAKE); };
    m_identity->pressCell = [this](int cell) {
        postClick(*this, CRect(toRect(m_layout->place(cell))).CenterPoint());
    };
}

ColourDrop::~ColourDrop()
{
    m_identity->window = nullptr;
    ::DestroyWindow(m_hWnd);
}

bool ColourDrop::open(CWnd& button)
{
    m_button = &button;
    if (!frame::createPopup(*this, frame::arrowClass(CS_DROPSHADOW | CS_SAVEBITS), button))
        return false;
    m_identity->window = m_hWnd;
    CClientDC dc(this);
    const auto scaled = [&dc](int length) { return frame::scaledTo(dc, length); };
    const frame::SelectedTool selected(dc, font());
    const std::wstring line = frame::withoutMnemonic(m_content.line);
    const CSize text = dc.GetTextExtent(line.c_str(), static_cast<int>(line.size()));
    m_layout = std::make_unique<DropLayout>(
        static_cast<int>(m_content.colours.size()), m_content.columns, !line.empty(),
        DropLayout::Lengths{.cell = scaled(kCell),
                            .margin = scaled(kMargin),
                            .line = text.cy + 2 * scaled(kLineMargin),
                            .lineWidth = text.cx + 2 * scaled(kLineMargin)});

    CRect under;
    button.GetWindowRect(&under);
    const frame::Box place =
        dropPlace(toBox(under), m_layout->width, m_layout->height, toBox(GetWorkArea(under)));
    SetWindowPos(&wndTopMost, place.left, place.top, place.width(), place.height(),
                 SWP_NOACTIVATE | SWP_SHOWWINDOW);
    ::GetCursorPos(&m_pointer);
    SetCapture();
    return true;
}

CFont* ColourDrop::font() const
{
    CFont* const own = m_button->GetFont();
    return own ? own : CFont::FromHandle(static_cast<HFONT>(::GetStockObject(DEFAULT_GUI_FONT)));
}

CRect ColourDrop::cellRect(int cell) const
{
    CRect place(toRect(m_layout->place(cell)));
    ClientToScreen(&place);
    return place;
}

std::wstring ColourDrop::nameOf(int cell) const
{
    if (cell < static_cast<int>(m_content.colours.size()))
        return nameOrCodeOfColour(Colour::colorref(m_content.colours[static_cast<std::size_t>(cell)]));
    return frame::withoutMnemonic(m_content.line);
}

// What the user does. The calls come last: there may be no popup afterwards.

void ColourDrop::point(int cell)
{
    if (cell == m_content.current)
        return;
    m_content.current = cell;
    Invalidate(FALSE);
    frame::announce(EVENT_OBJECT_FOCUS, m_hWnd, cell);
    const auto tell = m_calls.pointed;
    tell(cell);
}

void ColourDrop::press(UINT key)
{
    const auto tell = m_calls.chosen;
    const auto close = m_calls.closed;
    switch (paletteKey(key, m_content.current >= 0)) {
    case PaletteKey::Move:
        if (m_layout->last() >= 0)
            point(m_layout->after(m_content.current, *wheelKeyOf(key)));
        break;
    case PaletteKey::Choose:
        tell(m_content.current);
        break;
    case PaletteKey::Close:
        close();
        break;
    case PaletteKey::None:
        break;
    }
}

void ColourDrop::OnMouseMove(UINT, CPoint where)
{
    mouse(DropInput::Move, where);
}

void ColourDrop::OnLButtonDown(UINT, CPoint where)
{
    mouse(DropInput::Press, where);
}

void ColourDrop::OnLButtonUp(UINT, CPoint where)
{
    mouse(DropInput::Release, where);
}

void ColourDrop::mouse(DropInput input, CPoint where)
{
    CPoint pointer = where;
    ClientToScreen(&pointer);
    const bool moved = input == DropInput::Move && std::exchange(m_pointer, pointer) != pointer;
    CRect client;
    GetClientRect(&client);
    const int cell = m_layout->at(where.x, where.y);
    const auto choose = m_calls.chosen;
    const auto close = m_calls.closed;
    switch (dropAction(input, moved, client.PtInRect(where) != FALSE, cell >= 0)) {
    case DropAction::Point:
        point(cell);
        break;
    case DropAction::Choose:
        choose(cell);
        break;
    case DropAction::Close:
        close();
        break;
    case DropAction::Nothing:
        break;
    }
}

void ColourDrop::OnCaptureChanged(CWnd* wnd)
{
    if (wnd->GetSafeHwnd() == m_hWnd)
        return;
    const auto tell = m_calls.closed;
    tell();
}

int ColourDrop::OnMouseActivate(CWnd*, UINT, UINT)
{
    return MA_NOACTIVATE;
}

void ColourDrop::OnDestroy()
{
    m_identity->window = nullptr;
    Default();
}

LRESULT ColourDrop::OnGetObject(WPARAM wParam, LPARAM lParam)
{
    if (!frame::asksForContents(lParam))
        return Default();
    return frame::accessibleAnswer(wParam, accessibleColours(m_identity));
}

// Painting

void ColourDrop::OnPaint()
{
    BufferedPaint paint(*this);
    CDC& dc = paint.dc();
    CRect client;
    GetClientRect(&client);
    dc.FillSolidRect(&client, ::GetSysColor(COLOR_MENU));
    ::FrameRect(dc, &client, ::GetSysColorBrush(COLOR_BTNSHADOW));
    for (int i = 0; i < m_layout->cells.count; ++i)
        drawColourCell(dc, toRect(m_layout->place(i)), m_content.colours[static_cast<std::size_t>(i)], true);
    if (!m_content.line.empty())
        drawLine(dc);
    if (m_content.current >= 0 && m_content.current < m_layout->cells.count)
        drawCellMark(dc, toRect(m_layout->place(m_content.current)));
}

void ColourDrop::drawLine(CDC& dc) const
{
    CRect line(toRect(m_layout->line));
    const bool marked = m_content.current == m_layout->cells.count;
    if (marked)
        dc.FillSolidRect(&line, ::GetSysColor(COLOR_HIGHLIGHT));
    const frame::SelectedTool selected(dc, font());
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(::GetSysColor(marked ? COLOR_HIGHLIGHTTEXT : COLOR_MENUTEXT));
    dc.DrawText(m_content.line.c_str(), static_cast<int>(m_content.line.size()), &line,
                DT_SINGLELINE | DT_CENTER | DT_VCENTER | DT_HIDEPREFIX);
}

} // namespace ovoui::colour
