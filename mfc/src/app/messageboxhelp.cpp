// Help on message boxes.
#include <detail/help.h>

#include <detail/pending.h>

namespace afxdetail
{

namespace
{

thread_local const OpenMessageBox* t_current = nullptr;

} // namespace

OpenMessageBox::OpenMessageBox(UINT helpId, bool helpButton)
    : m_helpId(helpId)
    , m_helpButton(helpButton)
    , m_outer(std::exchange(t_current, this))
    , m_hook(::SetWindowsHookExW(WH_MSGFILTER, &filter, nullptr, ::GetCurrentThreadId()))
{
}

OpenMessageBox::~OpenMessageBox()
{
    ::UnhookWindowsHookEx(m_hook);
    t_current = m_outer;
}

const OpenMessageBox* OpenMessageBox::current()
{
    return t_current;
}

/// A box without a help button keeps F1 to itself: its keys are seen here.
LRESULT CALLBACK OpenMessageBox::filter(int code, WPARAM wParam, LPARAM lParam)
{
    const OpenMessageBox* box = t_current;
    const auto* message = reinterpret_cast<const MSG*>(lParam);
    if (code == MSGF_DIALOGBOX && box && box->helpId() != 0 && !box->hasHelpButton() && isHelpKey(*message)) {
        try {
            if (askForHelp())
                return TRUE;
        } catch (...) {
            storePendingException(); // on to the caller of the message box
            return TRUE;
        }
    }
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

bool helpOfMessageBox()
{
    const OpenMessageBox* box = t_current;
    if (!box)
        return false;
    if (box->hasHelpButton() && box->helpId() != 0)
        askForHelp();
    return true;
}

} // namespace afxdetail
