// Shift+F1: the user points at what to get help on.
#include <afxpriv.h>

#include <detail/help.h>
#include <detail/pending.h>

using afxdetail::callOut;

namespace
{

HCURSOR helpCursor()
{
    const LPCTSTR name = MAKEINTRESOURCEW(AFX_IDC_CONTEXTHELP);
    const HCURSOR own = ::LoadCursorW(AfxFindResourceHandle(name, RT_GROUP_CURSOR), name);
    return own ? own : ::LoadCursorW(nullptr, IDC_HELP);
}

bool isMouse(UINT message)
{
    return (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST) ||
           (message >= WM_NCMOUSEMOVE && message <= WM_NCMBUTTONDBLCLK);
}

bool isKey(UINT message)
{
    return message >= WM_KEYFIRST && message <= WM_KEYLAST;
}

/// Asks the window under a point of the screen, and those around it, for the context of help there; 0 for
/// none.
DWORD_PTR contextAt(HWND wnd, CPoint screen)
{
    for (; wnd; wnd = ::GetParent(wnd)) {
        CPoint client = screen;
        ::ScreenToClient(wnd, &client);
        const LRESULT context =
            CWnd::FromHandle(wnd)->SendMessage(WM_HELPHITTEST, 0, MAKELPARAM(client.x, client.y));
        if (context)
            return static_cast<DWORD_PTR>(context);
    }
    return 0;
}

/// The mode, from the key to the choice.
class HelpMode
{
public:
    HelpMode(CWinApp& app, CWnd& main)
        : m_app(app)
        , m_main(main.m_hWnd)
        , m_cursor(helpCursor())
    {
        m_app.m_bHelpMode = TRUE;
        tell(AFX_IDS_HELPMODEMESSAGE);
        takePointer();
    }
    ~HelpMode()
    {
        letPointerGo();
        m_app.m_bHelpMode = FALSE;
    }
    HelpMode(const HelpMode&) = delete;
    HelpMode& operator=(const HelpMode&) = delete;

    void run();

private:
    bool goesOn() const { return m_app.m_bHelpMode && ::GetCapture() == m_main; }
    void end();
    void tell(UINT textId);
    void takePointer();
    void letPointerGo();
    void handle(MSG& message);
    void handleKey(MSG& message);
    void choose(CPoint screen);
    void openMenu(HWND wnd, WPARAM hit, CPoint screen);
    void dispatch(MSG& message);

    CWinApp& m_app;
    const HWND m_main;
    const HCURSOR m_cursor;
    bool m_ended = false;
};

void HelpMode::run()
{
    for (LONG idle = 0; goesOn();) {
        MSG message;
        if (!callOut([&] { return ::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE); })) {
            if (!m_app.OnIdle(idle++) && goesOn())
                ::WaitMessage();
            continue;
        }
        if (message.message == WM_QUIT) {
            AfxPostQuitMessage(static_cast<int>(message.wParam)); // for the loop outside
            break;
        }
        handle(message);
        idle = 0;
    }
    end();
}

void HelpMode::handle(MSG& message)
{
    switch (message.message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_NCLBUTTONDOWN:
        choose(message.pt);
        return;
    case WM_MOUSEMOVE:
        ::SetCursor(m_cursor);
        return;
    }
    if (isKey(message.message))
        handleKey(message);
    else if (!isMouse(message.message))
        dispatch(message);
}

/// Keys open menus and choose commands; no others have an effect.
void HelpMode::handleKey(MSG& message)
{
    if (message.message == WM_KEYDOWN && message.wParam == VK_ESCAPE) {
        end();
        return;
    }
    // The system translates no accelerators and opens no menus while a window has the pointer.
    letPointerGo();
    CWnd* main = CWnd::FromHandlePermanent(m_main);
    const bool translated = main && main->PreTranslateMessage(&message);
    const bool opensMenu = message.message >= WM_SYSKEYDOWN && message.message <= WM_SYSDEADCHAR;
    if (!translated && opensMenu)
        dispatch(message);
    takePointer();
}

void HelpMode::choose(CPoint screen)
{
    const HWND wnd = ::WindowFromPoint(screen);
    if (!wnd || ::GetWindowThreadProcessId(wnd, nullptr) != ::GetCurrentThreadId()) {
        end();
        return;
    }
    const auto hit = static_cast<WPARAM>(
        CWnd::FromHandle(wnd)->SendMessage(WM_NCHITTEST, 0, MAKELPARAM(screen.x, screen.y)));
    if (hit == HTMENU || hit == HTSYSMENU) {
        openMenu(wnd, hit, screen);
        return;
    }
    const DWORD_PTR context = hit == HTCLIENT ? contextAt(wnd, screen) : HID_BASE_NCAREAS + hit;
    end();
    if (!afxdetail::showHelp(context))
        CWnd::FromHandle(m_main)->SendMessage(WM_COMMAND, ID_DEFAULT_HELP);
}

/// The command that is chosen there comes to the frame, which shows help on it.
void HelpMode::openMenu(HWND wnd, WPARAM hit, CPoint screen)
{
    letPointerGo();
    CWnd::FromHandle(wnd)->SendMessage(WM_NCLBUTTONDOWN, hit, MAKELPARAM(screen.x, screen.y));
    takePointer();
}

void HelpMode::dispatch(MSG& message)
{
    callOut([&] {
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    });
}

void HelpMode::end()
{
    if (std::exchange(m_ended, true))
        return;
    m_app.m_bHelpMode = FALSE;
    letPointerGo();
    tell(AFX_IDS_IDLEMESSAGE);
}

void HelpMode::tell(UINT textId)
{
    if (CWnd* main = CWnd::FromHandlePermanent(m_main))
        main->SendMessage(WM_SETMESSAGESTRING, textId);
}

void HelpMode::takePointer()
{
    if (!m_app.m_bHelpMode || !::IsWindow(m_main))
        return;
    ::SetCapture(m_main);
    ::SetCursor(m_cursor);
}

void HelpMode::letPointerGo()
{
    if (::GetCapture() == m_main)
        ::ReleaseCapture();
    ::SetCursor(::LoadCursorW(nullptr, IDC_ARROW));
}

} // namespace

void CWinApp::OnContextHelp()
{
    CWnd* main = AfxGetMainWnd();
    if (!m_bHelpMode && main && ::IsWindow(main->GetSafeHwnd()))
        HelpMode(*this, *main).run();
}
