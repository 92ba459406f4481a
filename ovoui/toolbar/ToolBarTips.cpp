// CVantorToolBar: the tip of the button that the keyboard is at.
#include <ovoui/toolbar/TipTimers.h>
#include <ovoui/toolbar/ToolBarState.h>

using namespace ovoui::toolbar;

/// The keyboard has come to a button: its tip appears after a while.
void CVantorToolBar::awaitTip()
{
    hideTip();
    State::Keyboard& keyboard = m_state->keyboard;
    if (!(m_dwStyle & CBRS_TOOLTIPS) || !hasButton(keyboard.button))
        return;
    if (!keyboard.tip)
        keyboard.tip = std::make_unique<ovoui::frame::Tip>();
    if (keyboard.tip->create(m_hWnd, ovoui::frame::Tip::Tool::None))
        TipTimers(*this).await(keyboard.tip->delay());
}

void CVantorToolBar::hideTip()
{
    if (!m_state->keyboard.tip)
        return;
    TipTimers(*this).stop();
    m_state->keyboard.tip->hide();
}

/// False when the timer is none of the tip's.
bool CVantorToolBar::onTipTimer(UINT_PTR id)
{
    switch (TipTimers(*this).due(id)) {
    case TipTimers::Due::Show:
        showTip();
        return true;
    case TipTimers::Due::Hide:
        hideTip();
        return true;
    case TipTimers::Due::Nothing:
        break;
    }
    return false;
}

void CVantorToolBar::showTip()
{
    const std::shared_ptr<State> state = m_state;
    const int button = state->keyboard.button;
    const std::wstring text = tipOfButton(button);
    CRect place;
    const bool there = state->usable() && state->keyboard.tip && state->keyboard.button == button &&
                       GetToolBarCtrl().GetItemRect(button, &place);
    if (!there || text.empty())
        return;
    ClientToScreen(&place);
    state->keyboard.tip->setText(text);
    state->keyboard.tip->showBeside(place);
    TipTimers(*this).shown(state->keyboard.tip->time());
}

/// The owner is asked as for the tips that the mouse brings, and may do anything.
std::wstring CVantorToolBar::tipOfButton(int index) const
{
    if (!hasButton(index))
        return {};
    NMTTDISPINFOW asked{};
    asked.hdr.hwndFrom = m_hWnd;
    asked.hdr.idFrom = GetItemID(index);
    asked.hdr.code = TTN_GETDISPINFOW;
    asked.lpszText = asked.szText;
    SendMessage(WM_NOTIFY, asked.hdr.idFrom, reinterpret_cast<LPARAM>(&asked));
    if (!asked.lpszText || !IS_INTRESOURCE(asked.lpszText))
        return asked.lpszText ? asked.lpszText : std::wstring();
    CString text;
    text.LoadString(asked.hinst, LOWORD(reinterpret_cast<UINT_PTR>(asked.lpszText)));
    return text.GetString();
}
