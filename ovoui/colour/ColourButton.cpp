#include <ovoui/colour/ColourButton.h>

#include <ovoui/colour/AccessibleColours.h>
#include <ovoui/colour/ColPickerPaletteDlg.h>
#include <ovoui/colour/ColourButtonFace.h>
#include <ovoui/colour/ColourDrop.h>
#include <ovoui/colour/ColourText.h>
#include <ovoui/colour/core/ControlKeys.h>
#include <ovoui/colour/core/TypedColour.h>
#include <ovoui/frame/Exceptions.h>
#include <ovoui/frame/LoadedText.h>
#include <ovoui/frame/TellParent.h>
#include <ovoui/frame/WindowText.h>
#include <ovoui/frame/core/LabelText.h>
#include <ovouires/resource.h>

#include <oleacc.h>

#include <algorithm>
#include <utility>

using namespace ovoui::colour;
using ovoui::frame::keepFirst;
using ovoui::frame::keeping;
using ovoui::frame::raise;

IMPLEMENT_DYNAMIC(CColourButton, CButton)

BEGIN_MESSAGE_MAP(CColourButton, CButton)
    ON_WM_LBUTTONDOWN() // mouse
    ON_WM_LBUTTONDBLCLK()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
    ON_WM_KEYDOWN() // keyboard
    ON_WM_KEYUP()
    ON_WM_SYSKEYDOWN()
    ON_WM_GETDLGCODE()
    ON_WM_KILLFOCUS()
    ON_MESSAGE(BM_CLICK, &CColourButton::OnClick)
    ON_MESSAGE(WM_GETOBJECT, &CColourButton::OnGetObject)
    ON_WM_DESTROY()
END_MESSAGE_MAP()

namespace
{

constexpr int kColumns = 8;

/// Greys, then rows of hues from dark to pale.
constexpr COLORREF kPalette[] = {
    RGB(0, 0, 0),       RGB(64, 64, 64),    RGB(96, 96, 96),    RGB(128, 128, 128), RGB(160, 160, 160),
    RGB(192, 192, 192), RGB(224, 224, 224), RGB(255, 255, 255), RGB(128, 0, 0),     RGB(128, 64, 0),
    RGB(128, 128, 0),   RGB(0, 96, 0),      RGB(0, 96, 96),     RGB(0, 0, 128),     RGB(72, 0, 128),
    RGB(128, 0, 96),    RGB(255, 0, 0),     RGB(255, 128, 0),   RGB(255, 224, 0),   RGB(0, 176, 0),
    RGB(0, 192, 192),   RGB(0, 64, 255),    RGB(128, 0, 255),   RGB(255, 0, 192),   RGB(255, 102, 102),
    RGB(255, 178, 102), RGB(255, 240, 128), RGB(128, 224, 128), RGB(128, 224, 224), RGB(112, 160, 255),
    RGB(192, 128, 255), RGB(255, 128, 224), RGB(255, 204, 204), RGB(255, 229, 204), RGB(255, 250, 208),
    RGB(208, 244, 208), RGB(208, 244, 244), RGB(208, 224, 255), RGB(229, 208, 255), RGB(255, 208, 244)};

} // namespace

CColourButton::CColourButton()
    : m_palette(std::begin(kPalette), std::end(kPalette))
    , m_columns(kColumns)
    , m_identity(std::make_shared<ColourIdentity>())
{
    m_identity->role = ROLE_SYSTEM_BUTTONDROPDOWN;
    m_identity->name = [this] { return ovoui::frame::withoutMnemonic(ovoui::frame::windowText(*this)); };
    m_identity->value = [this] { return nameOrCodeOfColour(m_colour); };
    m_identity->action = [this] {
        return IsWindowEnabled() ? ovoui::frame::loadedText(IDS_COLOUR_OPEN) : std::wstring();
    };
    m_identity->press = [this] { PostMessage(BM_CLICK); };
}

CColourButton::~CColourButton()
{
    m_identity->window = nullptr;
    ::DestroyWindow(m_hWnd);
}

BOOL CColourButton::PreCreateWindow(CREATESTRUCT& cs)
{
    cs.style = (cs.style & ~BS_TYPEMASK) | BS_OWNERDRAW;
    return CButton::PreCreateWindow(cs);
}

void CColourButton::PreSubclassWindow()
{
    ModifyStyle(BS_TYPEMASK, BS_OWNERDRAW);
    m_identity->window = m_hWnd;
    CButton::PreSubclassWindow();
}

void CColourButton::SetColour(const Colour& colour)
{
    m_colour = colour;
    if (!m_hWnd)
        return;
    Invalidate(FALSE);
    ovoui::frame::announce(EVENT_OBJECT_VALUECHANGE, m_hWnd);
}

void CColourButton::SetPalette(std::vector<COLORREF> colours, int columns)
{
    m_palette = std::move(colours);
    m_columns = columns;
}

// The palette

void CColourButton::DropDown()
{
    if (m_drop || !m_hWnd || !IsWindowEnabled())
        return;
    ColourDrop::Content content;
    content.colours = m_palette;
    content.columns = m_columns;
    if (m_usesDialog)
        content.line = ovoui::frame::loadedText(IDS_COLOUR_MORE);
    const auto present = std::ranges::find(m_palette, m_colour.colorref());
    if (present != m_palette.end())
        content.current = static_cast<int>(present - m_palette.begin());
    m_drop = std::make_unique<ColourDrop>(std::move(content),
                                          ColourDrop::Calls{.pointed = [this](int) { tell(kPointed); },
                                                            .chosen = [this](int cell) { choose(cell); },
                                                            .closed = [this] { CloseUp(); }});
    if (!m_drop->open(*this)) {
        m_drop.reset();
        return;
    }
    Invalidate(FALSE);
    tell(kDropped);
}

void CColourButton::CloseUp()
{
    // Moved out first: the popup loses the capture when it goes, and would close once more.
    const std::unique_ptr<ColourDrop> drop = std::move(m_drop);
    if (!drop)
        return;
    drop->DestroyWindow();
    if (!m_hWnd)
        return;
    Invalidate(FALSE);
    tell(kClosed);
}

std::optional<Colour> CColourButton::PointedColour() const
{
    const int cell = m_drop ? m_drop->current() : -1;
    if (cell < 0 || cell >= static_cast<int>(m_palette.size()))
        return std::nullopt;
    return fromPalette(cell);
}

Colour CColourButton::fromPalette(int cell) const
{
    return withAlphaOf(Colour::colorref(m_palette[static_cast<std::size_t>(cell)]), m_colour);
}

/// Of a cell of the palette, or of the line below.
void CColourButton::choose(int cell)
{
    if (cell < static_cast<int>(m_palette.size()))
        closeAndTake(fromPalette(cell));
    else
        closeAndAsk();
}

/// The user has chosen the colour, whatever the parent raises when it hears that the palette has closed: it
/// is told of both.
void CColourButton::closeAndTake(const Colour& colour)
{
    const Lifeline::Watch watch(m_lifeline);
    std::exception_ptr raised = keeping([this] { CloseUp(); });
    if (watch.alive() && m_hWnd)
        keepFirst(raised, [&] { take(colour); });
    raise(raised);
}

void CColourButton::closeAndAsk()
{
    const Lifeline::Watch watch(m_lifeline);
    CloseUp();
    if (!watch.alive() || !m_hWnd)
        return;
    const std::optional<Colour> answer = askForColour(Colour(m_colour));
    if (answer && watch.alive() && m_hWnd)
        take(*answer);
}

void CColourButton::take(const Colour& colour)
{
    SetColour(colour);
    tell(kChosen);
}

std::optional<Colour> CColourButton::askForColour(const Colour& colour)
{
    ColPickerPaletteDlg dialog(*AfxGetApp(), ColPickerModeHLS, colour, nullptr, this);
    if (dialog.DoModal() != IDOK)
        return std::nullopt;
    return dialog.GetColour();
}

/// Whether the button still has its window afterwards.
bool CColourButton::tell(UINT code)
{
    return ovoui::frame::tellParent(*this, code);
}

// Mouse. While the palette is open it has the mouse.

void CColourButton::OnLButtonDown(UINT, CPoint)
{
    const Lifeline::Watch watch(m_lifeline);
    SetFocus();
    if (watch.alive() && m_hWnd)
        DropDown();
}

void CColourButton::OnLButtonDblClk(UINT flags, CPoint point)
{
    OnLButtonDown(flags, point);
}

void CColourButton::OnLButtonUp(UINT, CPoint) {}

void CColourButton::OnMouseMove(UINT, CPoint)
{
    Default();
    if (std::exchange(m_hot, true))
        return;
    TRACKMOUSEEVENT tracking{sizeof tracking, TME_LEAVE, m_hWnd, 0};
    ::TrackMouseEvent(&tracking);
    Invalidate(FALSE);
}

void CColourButton::OnMouseLeave()
{
    m_hot = false;
    Invalidate(FALSE);
    Default();
}

// Keyboard

/// While the palette is open every key is the button's.
UINT CColourButton::OnGetDlgCode()
{
    const auto usual = static_cast<UINT>(Default());
    return m_drop ? usual | DLGC_WANTALLKEYS : usual | DLGC_WANTARROWS;
}

void CColourButton::OnKeyDown(UINT key, UINT, UINT flags)
{
    carryOut(dropButtonKey(key, false, (flags & KF_REPEAT) != 0, m_drop != nullptr), key);
}

void CColourButton::carryOut(DropButtonKey meaning, UINT key)
{
    switch (meaning) {
    case DropButtonKey::Open:
        DropDown();
        break;
    case DropButtonKey::Close:
        CloseUp();
        break;
    case DropButtonKey::CloseAndGoOn:
        closeAndGoOn();
        break;
    case DropButtonKey::ToPalette:
        m_drop->press(key);
        break;
    case DropButtonKey::Ignore:
        break;
    case DropButtonKey::Platform:
        Default();
    }
}

void CColourButton::closeAndGoOn()
{
    const HWND parent = ::GetParent(m_hWnd);
    const Lifeline::Watch watch(m_lifeline);
    CloseUp();
    if (watch.alive() && m_hWnd)
        ::PostMessageW(parent, WM_NEXTDLGCTL, ::GetKeyState(VK_SHIFT) < 0, FALSE);
}

void CColourButton::OnKeyUp(UINT key, UINT, UINT)
{
    if (!actsOnPressAlone(key))
        Default();
}

void CColourButton::OnSysKeyDown(UINT key, UINT, UINT flags)
{
    carryOut(dropButtonKey(key, true, (flags & KF_REPEAT) != 0, m_drop != nullptr), key);
}

/// A parent that asks for it (BS_NOTIFY) is told, and may do anything.
void CColourButton::OnKillFocus(CWnd*)
{
    const Lifeline::Watch watch(m_lifeline);
    Default();
    if (watch.alive())
        CloseUp();
}

/// As a mnemonic or accessibility presses the button.
LRESULT CColourButton::OnClick(WPARAM, LPARAM)
{
    OnLButtonDown(0, CPoint());
    return 0;
}

// Painting, accessibility, end

void CColourButton::DrawItem(LPDRAWITEMSTRUCT item)
{
    ColourButtonFace(*this, m_colour, {.dropped = IsDropped(), .hot = m_hot})
        .paint(*CDC::FromHandle(item->hDC), item->rcItem, item->itemState);
}

LRESULT CColourButton::OnGetObject(WPARAM wParam, LPARAM lParam)
{
    if (!ovoui::frame::asksForContents(lParam))
        return Default();
    return ovoui::frame::accessibleAnswer(wParam, accessibleColours(m_identity));
}

void CColourButton::OnDestroy()
{
    m_drop.reset();
    m_identity->window = nullptr;
    Default();
}

// Data exchange

void DDX_Colour(CDataExchange* exchange, CColourButton& button, Colour& colour)
{
    if (exchange->m_bSaveAndValidate)
        colour = button.GetColour();
    else
        button.SetColour(colour);
}

void DDX_Colour(CDataExchange* exchange, CColourButton& button, COLORREF& colour)
{
    if (exchange->m_bSaveAndValidate)
        colour = button.GetColour().colorref();
    else
        button.SetColour(Colour::colorref(colour));
}
