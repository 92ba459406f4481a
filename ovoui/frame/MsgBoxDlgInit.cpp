// How the message box lays itself out when it opens.
#include <ovoui/frame/MsgBoxDlg.h>

#include <ovocor/ovocor.h>
#include <ovoui/frame/BoxRect.h>
#include <ovoui/frame/FontDC.h>
#include <ovoui/frame/Geometry.h>
#include <ovoui/frame/Module.h>
#include <ovoui/frame/Platform.h>
#include <ovoui/frame/ProfileSection.h>
#include <ovoui/frame/UncountedMoves.h>
#include <ovoui/frame/core/BoxAnswers.h>
#include <ovoui/frame/core/LineEnds.h>
#include <ovouires/resource.h>

#include <algorithm>

using namespace ovoui::frame;

namespace
{

int dotsPerInch()
{
    const CClientDC screen(nullptr);
    return screen.GetDeviceCaps(LOGPIXELSX);
}

/// Of all labels that there are, and of the box's own.
std::vector<int> labelWidths(CDC& dc, const MessageBoxButtons& buttons)
{
    std::vector<std::wstring> labels;
    for (const MessageBoxButton& button : allMessageBoxButtons())
        labels.push_back(ovoui::resourceString(button.label));
    for (const MessageBoxButton& button : buttons.buttons)
        labels.push_back(button.text);

    std::vector<int> widths;
    for (const std::wstring& label : labels) {
        SIZE extent{};
        if (!label.empty() &&
            ::GetTextExtentPoint32W(dc, label.data(), static_cast<int>(label.size()), &extent))
            widths.push_back(extent.cx);
    }
    return widths;
}

/// Sets the formatting rectangle. Where the control takes its margins and edge off it, it gets a larger one:
/// the rectangle has no room for them, and lines would be cut at their ends, and one line less shown.
void setFormatRect(CEdit& text, const CRect& rect)
{
    text.SetRect(&rect);
    if (!ovoui::platform().insetsFormatRect)
        return;
    CRect actual;
    text.GetRect(&actual);
    if (const std::optional<Box> larger = formatToAsk(toBox(rect), toBox(actual))) {
        const RECT asked = toRect(*larger);
        text.SetRect(&asked);
    }
}

Extent clientExtent(const CWnd& wnd)
{
    CRect client;
    wnd.GetClientRect(&client);
    return {client.Width(), client.Height()};
}

} // namespace

BoxMetrics COVOMsgBoxDlg::systemMetrics()
{
    BoxMetrics metrics;
    metrics.dotsPerInch = dotsPerInch();
    metrics.edgeWidth = ::GetSystemMetrics(SM_CXEDGE);
    metrics.borderWidth = ::GetSystemMetrics(SM_CXBORDER);
    metrics.borderHeight = ::GetSystemMetrics(SM_CYBORDER);
    metrics.frameWidth = ::GetSystemMetrics(SM_CXDLGFRAME);
    metrics.frameHeight = ::GetSystemMetrics(SM_CYDLGFRAME);
    metrics.captionHeight = ::GetSystemMetrics(SM_CYCAPTION);
    metrics.scrollBarWidth = ::GetSystemMetrics(SM_CXVSCROLL);
    metrics.scrollBarHeight = ::GetSystemMetrics(SM_CYHSCROLL);
    return metrics;
}

std::wstring COVOMsgBoxDlg::labelOf(const MessageBoxButton& button)
{
    return ovoui::frame::labelOf(button, ovoui::resourceString(button.label));
}

BOOL COVOMsgBoxDlg::OnInitDialog()
{
    m_moved = false;
    const UncountedMoves uncounted(m_moved); // only the user's moves count
    CDialog::OnInitDialog();
    m_focusSet = false;
    m_helpMessage = ::RegisterWindowMessageW(L"commdlg_help");

    readSavedPosition();
    useGuiFont();
    const Extent size = fitText();
    m_extras = extras();
    placeDialog(withExtras(size, m_extras, systemMetrics()));
    const Point text = textPlace(systemMetrics());
    m_text.SetWindowPos(nullptr, text.x, text.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    createButtons();
    createIcon();
    SetWindowText(m_caption);
    SetForegroundWindow();
    moveAnchorToSavedPosition();
    return !m_focusSet;
}

void COVOMsgBoxDlg::readSavedPosition()
{
    m_saved = withinReach(parsePosition(settingsSection().text(m_settingsKey.GetString())));
}

void COVOMsgBoxDlg::useGuiFont()
{
    CFont* font = CFont::FromHandle(static_cast<HFONT>(::GetStockObject(DEFAULT_GUI_FONT)));
    SetFont(font);
    m_text.SetFont(font);
}

/// Fills the text control, grows it to its text, and answers the size that the dialog needs.
Extent COVOMsgBoxDlg::fitText()
{
    const BoxMetrics metrics = systemMetrics();
    m_message = withWindowsLineEnds(m_message);
    CRect format;
    m_text.GetRect(&format);
    const Measured measured = measure(format.TopLeft());
    const DWORD margins = m_text.GetMargins();
    const TextArea area = textArea(measured.text, measured.lineHeight, LOWORD(margins) + HIWORD(margins),
                                   measured.widthLimit, metrics);
    if (area.vertical)
        addScrollBars(area);
    m_text.showWrapped(m_message, measured.text.width,
                       area.horizontal ? LongWords::Whole : LongWords::Broken);

    CRect window;
    m_text.GetWindowRect(&window);
    const Box grown = grownTextControl(toBox(window), clientExtent(m_text), area, metrics);
    m_text.SetWindowPos(nullptr, 0, 0, grown.width(), grown.height(), SWP_NOMOVE | SWP_NOZORDER);
    // No taller than what is shown: a control takes what lies in this rectangle for visible and would not
    // scroll to it.
    const int height = std::min(area.client.height, clientExtent(m_text).height);
    setFormatRect(m_text, {format.TopLeft(), CSize(measured.text.width, height)});

    return dialogSize(grown.width(), area.client.height, {m_buttonWidth, m_buttonHeight}, m_buttons.count(),
                      metrics);
}

/// Measures buttons and text, the latter in a formatting rectangle at `place` that is as wide as a text may
/// become.
COVOMsgBoxDlg::Measured COVOMsgBoxDlg::measure(CPoint place)
{
    FontDC font(m_text);
    const TEXTMETRICW fontMetrics = font.metrics();
    measureButtons(font.dc(), fontMetrics);

    Measured measured;
    measured.lineHeight = fontMetrics.tmHeight + fontMetrics.tmExternalLeading;
    measured.widthLimit = font.dc().GetDeviceCaps(HORZRES) * 2 / 3;
    setFormatRect(m_text, {place, CSize(measured.widthLimit, font.dc().GetDeviceCaps(VERTRES))});
    measured.text = measureText(font.dc());
    return measured;
}

void COVOMsgBoxDlg::measureButtons(CDC& dc, const TEXTMETRICW& font)
{
    const Extent size = ovoui::frame::buttonSize(font.tmHeight, font.tmAveCharWidth,
                                                 labelWidths(dc, m_buttons), systemMetrics());
    m_buttonWidth = size.width;
    m_buttonHeight = size.height;
}

Extent COVOMsgBoxDlg::measureText(CDC& dc)
{
    CRect format;
    m_text.GetRect(&format);
    dc.DrawText(m_message.c_str(), static_cast<int>(m_message.size()), &format,
                DT_CALCRECT | DT_WORDBREAK | DT_EXPANDTABS | DT_EXTERNALLEADING | DT_NOCLIP | DT_NOPREFIX |
                    DT_EDITCONTROL);
    return {format.Width(), format.Height()};
}

/// Makes the text control anew with a frame and scroll bars, large enough for both bars to take their room.
/// Merely changing the style would do on Windows, but not every system's control keeps a scroll bar up to
/// date that it was not made with.
void COVOMsgBoxDlg::addScrollBars(const TextArea& area)
{
    const DWORD style = m_text.GetStyle() | WS_VSCROLL | (area.horizontal ? WS_HSCROLL : 0);
    ::DestroyWindow(m_text.UnsubclassWindow());

    const HWND framed =
        ::CreateWindowExW(WS_EX_CLIENTEDGE, L"EDIT", L"", style, 0, 0, area.client.width, area.client.height,
                          m_hWnd, reinterpret_cast<HMENU>(IDC_MESSAGE_TEXT), ovoui::ownInstance(), nullptr);
    m_text.SubclassWindow(framed);
    m_text.SetFont(CFont::FromHandle(static_cast<HFONT>(::GetStockObject(DEFAULT_GUI_FONT))));
}

void COVOMsgBoxDlg::placeDialog(const Extent& size)
{
    RECT place = toRect(startPlace(m_saved, size, areaToCentreIn()));
    EnsureRectVisible(place);
    MoveWindow(&place, FALSE);
}

void COVOMsgBoxDlg::resize(const Extent& size)
{
    const UncountedMoves uncounted(m_moved);
    CRect place;
    GetWindowRect(&place);
    place = CRect(place.TopLeft(), CSize(size.width, size.height));
    EnsureRectVisible(place);
    MoveWindow(&place);
}

Box COVOMsgBoxDlg::areaToCentreIn() const
{
    CRect client;
    if (const CWnd* parent = GetParent())
        parent->GetClientRect(&client);
    RECT work{};
    const bool known = ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0) != FALSE;
    return ovoui::frame::areaToCentreIn(toBox(client), known ? std::optional(toBox(work)) : std::nullopt);
}

void COVOMsgBoxDlg::createButtons()
{
    for (const int position : tabOrder(m_buttons))
        createButton(m_buttons.buttons[static_cast<std::size_t>(position)], position);
}

void COVOMsgBoxDlg::createButton(const MessageBoxButton& button, int position)
{
    const bool isDefault = position == m_buttons.defaultPosition;
    const Extent client = clientExtent(*this);
    const Box place = buttonBox(position, m_buttons.count(), buttonSize(),
                                {client.width, client.height - m_extras.below}, systemMetrics());
    const HWND wnd = ::CreateWindowExW(
        0, L"BUTTON", labelOf(button).c_str(),
        WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_NOTIFY | (isDefault ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON),
        place.left, place.top, place.width(), place.height(), m_hWnd,
        reinterpret_cast<HMENU>(static_cast<INT_PTR>(button.id)), ovoui::ownInstance(), nullptr);
    if (!wnd)
        return;
    ::SendMessageW(wnd, WM_SETFONT, reinterpret_cast<WPARAM>(::GetStockObject(DEFAULT_GUI_FONT)), TRUE);
    if (!isDefault)
        return;
    // The dialog manager knows no default button made after the template's: without it Enter in the text
    // would answer IDOK in a box that has no such button.
    SetDefID(button.id);
    ::SetFocus(wnd);
    m_focusSet = true;
    m_anchor = wnd;
}

void COVOMsgBoxDlg::createIcon()
{
    constexpr int kAnySize = 10; // the control takes the icon's size
    const INT_PTR noId = -1;
    const Point place = iconPlace(systemMetrics());
    ::CreateWindowExW(0, L"STATIC", messageBoxIcon(m_type), WS_CHILD | WS_VISIBLE | SS_ICON, place.x, place.y,
                      kAnySize, kAnySize, m_hWnd, reinterpret_cast<HMENU>(noId), ovoui::ownInstance(),
                      nullptr);
}

void COVOMsgBoxDlg::moveAnchorToSavedPosition()
{
    if (!m_saved.remembered() || !m_anchor)
        return;
    CRect anchor;
    ::GetWindowRect(m_anchor, &anchor);
    CRect place;
    GetWindowRect(&place);
    place.OffsetRect(m_saved.x - anchor.left, m_saved.y - anchor.top);
    EnsureRectVisible(place);
    MoveWindow(&place);
}
