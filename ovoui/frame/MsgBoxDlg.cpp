#include <ovoui/frame/MsgBoxDlg.h>

#include <ovoui/frame/ClipboardText.h>
#include <ovoui/frame/HeldKeysNow.h>
#include <ovoui/frame/Module.h>
#include <ovoui/frame/ProfileSection.h>
#include <ovoui/frame/TellParent.h>
#include <ovoui/frame/UncountedMoves.h>
#include <ovoui/frame/core/BoxAnswers.h>
#include <ovoui/frame/core/BoxKeys.h>
#include <ovouires/resource.h>

using namespace ovoui::frame;

namespace
{

CString captionOrDefault(const wchar_t* caption)
{
    return caption && *caption ? caption : ovoui::resourceString(IDS_MESSAGE_CAPTION).c_str();
}

} // namespace

BEGIN_MESSAGE_MAP(COVOMsgBoxDlg, CDialog)
    // answers
    ON_COMMAND_EX(IDOK, &COVOMsgBoxDlg::OnAnswer)
    ON_COMMAND_EX(IDYES, &COVOMsgBoxDlg::OnAnswer)
    ON_COMMAND_EX(IDYESTOALL, &COVOMsgBoxDlg::OnAnswer)
    ON_COMMAND_EX(IDNO, &COVOMsgBoxDlg::OnAnswer)
    ON_COMMAND_EX(IDNOTOALL, &COVOMsgBoxDlg::OnAnswer)
    ON_COMMAND_EX(IDABORT, &COVOMsgBoxDlg::OnAnswer)
    ON_COMMAND_EX(IDRETRY, &COVOMsgBoxDlg::OnAnswer)
    ON_COMMAND_EX(IDIGNORE, &COVOMsgBoxDlg::OnAnswer)
    ON_WM_CLOSE()
    // help
    ON_COMMAND(IDHELP, &COVOMsgBoxDlg::OnHelp)
    ON_WM_HELPINFO()
    // the remembered position
    ON_WM_MOVE()
    ON_MESSAGE(WM_DPICHANGED, &COVOMsgBoxDlg::OnDpiChanged)
    ON_WM_DESTROY()
END_MESSAGE_MAP()

COVOMsgBoxDlg::COVOMsgBoxDlg(const Request& request)
    : COVOMsgBoxDlg(request, messageBoxButtons(request.type))
{
}

COVOMsgBoxDlg::COVOMsgBoxDlg(const Request& request, MessageBoxButtons buttons)
    : CDialog(IDD_MESSAGE_BOX, CWnd::FromHandle(request.owner))
    , m_owner(request.owner)
    , m_message(request.text ? request.text : L"")
    , m_caption(captionOrDefault(request.caption))
    , m_type(request.type)
    , m_settingsKey(request.settingsKey)
    , m_helpId(request.helpId)
    , m_buttons(std::move(buttons))
{
}

COVOMsgBoxDlg::~COVOMsgBoxDlg() = default;

MessageBoxButton& COVOMsgBoxDlg::defaultButton()
{
    return m_buttons.buttons[static_cast<std::size_t>(m_buttons.defaultPosition)];
}

void COVOMsgBoxDlg::DoDataExchange(CDataExchange* exchange)
{
    CDialog::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_MESSAGE_TEXT, m_text);
}

BOOL COVOMsgBoxDlg::PreTranslateMessage(MSG* message)
{
    // Windows that the host puts in front of the box belong to it as well, and have keys of their own.
    const bool isInside = message->hwnd == m_hWnd || ::IsChild(m_hWnd, message->hwnd);
    const bool down = message->message == WM_KEYDOWN && isInside;
    switch (down ? boxKey(static_cast<unsigned>(message->wParam), heldKeysNow()) : BoxKey::None) {
    case BoxKey::Cancel:
        SendMessage(WM_COMMAND, IDCANCEL);
        return TRUE;
    case BoxKey::Copy:
        copyByKeyboard();
        return TRUE;
    case BoxKey::None:
        break;
    }
    return CDialog::PreTranslateMessage(message);
}

BOOL COVOMsgBoxDlg::OnAnswer(UINT id)
{
    EndDialog(static_cast<int>(id));
    return TRUE;
}

void COVOMsgBoxDlg::OnCancel()
{
    EndDialog(IDCANCEL);
}

void COVOMsgBoxDlg::OnClose()
{
    EndDialog(closeAnswer(m_buttons));
}

void COVOMsgBoxDlg::OnHelp()
{
    ovoui::frame::sendToHost(m_owner, m_helpMessage, reinterpret_cast<WPARAM>(m_hWnd), 0);
}

BOOL COVOMsgBoxDlg::OnHelpInfo(HELPINFO* info)
{
    CWinApp* app = AfxGetApp();
    if (m_helpId == 0 || !app)
        return CWnd::OnHelpInfo(info);
    app->HtmlHelp(m_helpId, HH_HELP_CONTEXT);
    return TRUE;
}

void COVOMsgBoxDlg::OnMove(int, int)
{
    Default();
    m_moved = true;
}

/// The system moves the box to a place that suits the new resolution, which is no move by the user.
LRESULT COVOMsgBoxDlg::OnDpiChanged(WPARAM, LPARAM)
{
    const UncountedMoves uncounted(m_moved);
    return Default();
}

void COVOMsgBoxDlg::OnDestroy()
{
    CWnd::OnDestroy();
    if (m_moved)
        savePosition();
}

void COVOMsgBoxDlg::savePosition()
{
    RECT place{};
    ::GetWindowRect(m_anchor ? m_anchor : m_hWnd, &place);
    const std::wstring text = formatPosition({static_cast<int>(place.left), static_cast<int>(place.top)});
    settingsSection().write(m_settingsKey.GetString(), text);
}

void COVOMsgBoxDlg::copyByKeyboard()
{
    int start = 0;
    int end = 0;
    m_text.GetSel(start, end);
    if (start != end)
        m_text.Copy();
    else
        setClipboardText(m_hWnd, m_message);
}
