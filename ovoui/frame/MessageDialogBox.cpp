#include <ovoui/frame/MessageDialogBox.h>

#include <ovoui/frame/BoxRect.h>
#include <ovoui/frame/FontDC.h>
#include <ovoui/frame/HeldKeysNow.h>
#include <ovoui/frame/MessageBoxIds.h>
#include <ovoui/frame/Module.h>
#include <ovoui/frame/core/BoxAnswers.h>
#include <ovoui/frame/core/BoxKeys.h>
#include <ovoui/frame/core/LineEnds.h>
#include <ovouires/resource.h>

using namespace ovoui::frame;

namespace
{

constexpr UINT_PTR kCountTimer = 1;
constexpr UINT kCountInterval = 200; ///< milliseconds; a second is not to be missed
constexpr int kDetailLines = 8;
constexpr int kCheckMark = 18; ///< pixels at 96 dots per inch beside a check box's label

} // namespace

BEGIN_MESSAGE_MAP(COVOMessageDialogBox, COVOMsgBoxDlg)
    ON_BN_CLICKED(kNotAgainId, &COVOMessageDialogBox::OnNotAgain)
    ON_BN_CLICKED(kDetailsButtonId, &COVOMessageDialogBox::OnDetails)
    ON_WM_CLOSE()
    ON_WM_TIMER()
END_MESSAGE_MAP()

COVOMessageDialogBox::COVOMessageDialogBox(const COVOMessageDialog& message)
    : COVOMsgBoxDlg({message.m_owner, message.m_text.c_str(), message.m_caption.c_str(), message.m_type,
                     message.m_settingsKey.c_str(), message.m_helpId},
                    buttonsOf(message))
    , m_message(message)
{
    if (m_message.m_seconds == 0)
        return;
    m_defaultLabel = labelOf(defaultButton());
    defaultButton().text = countedLabel(m_defaultLabel, m_message.m_seconds); // measured as wide as it gets
}

COVOMessageDialogBox::~COVOMessageDialogBox() = default;

MessageBoxButtons COVOMessageDialogBox::buttonsOf(const COVOMessageDialog& message)
{
    std::vector<MessageBoxButton> own;
    for (const COVOMessageDialog::Button& button : message.m_buttons)
        own.push_back({button.id, 0, L"", button.label});
    return own.empty() ? messageBoxButtons(message.m_type)
                       : messageBoxButtons(message.m_type, std::move(own));
}

bool COVOMessageDialogBox::mayBeKept(int answer) const
{
    return ovoui::frame::mayBeKept(buttons(), answer);
}

BOOL COVOMessageDialogBox::OnInitDialog()
{
    const BOOL focus = COVOMsgBoxDlg::OnInitDialog();
    createControls();
    if (m_message.m_seconds > 0) {
        m_countdown = Countdown(m_message.m_seconds, ::GetTickCount64());
        SetTimer(kCountTimer, kCountInterval, nullptr);
    }
    return focus;
}

/// The host's buttons answer with their ids.
BOOL COVOMessageDialogBox::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const int id = LOWORD(wParam);
    if (isAnswer(buttons(), id, HIWORD(wParam))) {
        m_answered = true;
        EndDialog(id);
        return TRUE;
    }
    return COVOMsgBoxDlg::OnCommand(wParam, lParam);
}

void COVOMessageDialogBox::OnClose()
{
    m_answered = true;
    COVOMsgBoxDlg::OnClose();
}

void COVOMessageDialogBox::OnNotAgain()
{
    m_keepsAnswer = IsDlgButtonChecked(kNotAgainId) == BST_CHECKED;
}

// Countdown

BOOL COVOMessageDialogBox::PreTranslateMessage(MSG* message)
{
    if (endsCountdown(message->message))
        stopCountdown();
    if (copiesDetails(*message)) {
        GetDlgItem(kDetailsId)->SendMessage(WM_COPY);
        return TRUE;
    }
    return COVOMsgBoxDlg::PreTranslateMessage(message);
}

void COVOMessageDialogBox::OnTimer(UINT_PTR timer)
{
    if (timer != kCountTimer) {
        COVOMsgBoxDlg::OnTimer(timer);
        return;
    }
    if (!IsWindowEnabled())
        return; // what the host shows in front of the box is answered first
    const ULONGLONG now = ::GetTickCount64();
    switch (m_countdown.tick(now)) {
    case CountTick::Press:
        stopCountdown();
        SendMessage(WM_COMMAND, MAKEWPARAM(defaultButton().id, BN_CLICKED));
        break;
    case CountTick::Show:
        showCount(countedLabel(m_defaultLabel, m_countdown.left(now)));
        break;
    case CountTick::Nothing:
        break;
    }
}

void COVOMessageDialogBox::stopCountdown()
{
    if (!KillTimer(kCountTimer))
        return;
    m_countdown.stop();
    showCount(m_defaultLabel);
}

void COVOMessageDialogBox::showCount(const std::wstring& label)
{
    CString shown;
    GetDlgItemText(defaultButton().id, shown);
    if (shown != label.c_str())
        SetDlgItemText(defaultButton().id, label.c_str());
}

// Controls

/// Measures what the box has beside text and buttons.
BoxExtras COVOMessageDialogBox::extras()
{
    const BoxMetrics metrics = systemMetrics();
    if (!m_message.m_entry.empty()) {
        m_controls.check = measuredLabel(m_message.m_checkLabel);
        m_controls.check.width += scaled(kCheckMark, metrics);
    }
    if (!m_message.m_details.empty())
        m_controls.detailsButton = buttonSize();
    return boxExtras(m_controls, metrics);
}

Extent COVOMessageDialogBox::measuredLabel(const std::wstring& label)
{
    FontDC font(text());
    CRect size;
    font.dc().DrawText(label.c_str(), static_cast<int>(label.size()), &size, DT_CALCRECT | DT_SINGLELINE);
    return {size.Width(), size.Height()};
}

void COVOMessageDialogBox::createControls()
{
    if (m_controls.check.height > 0)
        createControl(L"BUTTON", m_message.m_checkLabel, BS_AUTOCHECKBOX | WS_TABSTOP | WS_VISIBLE, 0,
                      kNotAgainId);
    if (m_controls.detailsButton.height > 0) {
        createControl(L"BUTTON", ovoui::resourceString(IDS_MESSAGE_SHOW_DETAILS),
                      BS_PUSHBUTTON | BS_NOTIFY | WS_TABSTOP | WS_VISIBLE, 0, kDetailsButtonId);
        createControl(L"EDIT", withWindowsLineEnds(m_message.m_details),
                      ES_MULTILINE | ES_READONLY | ES_AUTOVSCROLL | WS_VSCROLL | WS_TABSTOP, WS_EX_CLIENTEDGE,
                      kDetailsId);
    }
    placeControls();
}

HWND COVOMessageDialogBox::createControl(const wchar_t* windowClass, const std::wstring& text, DWORD style,
                                         DWORD extendedStyle, int id)
{
    const HWND wnd =
        ::CreateWindowExW(extendedStyle, windowClass, text.c_str(), WS_CHILD | style, 0, 0, 0, 0, m_hWnd,
                          reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), ovoui::ownInstance(), nullptr);
    if (wnd)
        ::SendMessageW(wnd, WM_SETFONT, reinterpret_cast<WPARAM>(::GetStockObject(DEFAULT_GUI_FONT)), TRUE);
    return wnd;
}

void COVOMessageDialogBox::placeControls()
{
    CRect client;
    GetClientRect(&client);
    const ExtraPlaces places =
        extraPlaces(m_controls, {client.Width(), client.Height()}, buttonSize().height, systemMetrics());
    const auto place = [this](int id, const Box& box) {
        if (CWnd* const control = GetDlgItem(id)) {
            const RECT rect = toRect(box);
            control->MoveWindow(&rect);
        }
    };
    place(kNotAgainId, places.check);
    place(kDetailsButtonId, places.detailsButton);
    if (m_controls.detailsHeight > 0)
        place(kDetailsId, places.details);
}

// Details

/// Whether a key copies what is selected in the details, where it goes to, and not the message.
bool COVOMessageDialogBox::copiesDetails(const MSG& message)
{
    const CWnd* const details = GetDlgItem(kDetailsId);
    if (message.message != WM_KEYDOWN || !details || message.hwnd != details->m_hWnd ||
        !isCopyKey(static_cast<unsigned>(message.wParam), heldKeysNow()))
        return false;
    DWORD begin = 0;
    DWORD end = 0;
    details->SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&begin), reinterpret_cast<LPARAM>(&end));
    return begin != end;
}

void COVOMessageDialogBox::OnDetails()
{
    showDetails(m_controls.detailsHeight == 0);
}

/// The box grows and shrinks at its lower edge; its buttons stay where they are unless the screen ends there.
void COVOMessageDialogBox::showDetails(bool show)
{
    CWnd* const details = GetDlgItem(kDetailsId);
    if (!details)
        return; // they could not be made
    const int before = boxExtras(m_controls, systemMetrics()).below;
    m_controls.detailsHeight = show ? detailsHeight() : 0;
    const int grown = boxExtras(m_controls, systemMetrics()).below - before;

    if (!show && GetFocus() == details)
        GetDlgItem(kDetailsButtonId)->SetFocus();
    CRect window;
    GetWindowRect(&window);
    resize({window.Width(), window.Height() + grown});
    placeControls();
    details->ShowWindow(show ? SW_SHOWNA : SW_HIDE);
    SetDlgItemText(kDetailsButtonId,
                   ovoui::resourceString(show ? IDS_MESSAGE_HIDE_DETAILS : IDS_MESSAGE_SHOW_DETAILS).c_str());
}

int COVOMessageDialogBox::detailsHeight()
{
    FontDC font(text());
    return kDetailLines * font.metrics().tmHeight + 4 * systemMetrics().edgeWidth;
}
