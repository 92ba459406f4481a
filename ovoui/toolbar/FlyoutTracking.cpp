// CFlyoutToolbar: the hot entry, its prompt and its tip.
#include <ovoui/toolbar/FlyoutToolbar.h>

#include <ovoui/frame/BoxRect.h>
#include <ovoui/toolbar/ButtonNames.h>
#include <ovoui/toolbar/FlyoutTip.h>
#include <ovoui/toolbar/core/BarWalk.h>

#include <afxpriv.h>

using namespace ovoui::toolbar;

namespace
{

constexpr int kNone = -1;

} // namespace

bool CFlyoutToolbar::covers(CPoint screen) const
{
    if (!m_hWnd || !IsWindowVisible())
        return false;
    CRect window;
    GetWindowRect(&window);
    return window.PtInRect(screen) != FALSE;
}

/// The button at a point of the screen that is no separator; kNone where there is none.
int CFlyoutToolbar::buttonUnder(CPoint screen) const
{
    if (!m_hWnd || !IsWindowVisible())
        return kNone;
    CRect client;
    GetClientRect(&client);
    CPoint point = screen;
    ScreenToClient(&point);
    if (!client.PtInRect(point))
        return kNone;
    // Negative for separators, except for one that is the first entry.
    const int index = GetToolBarCtrl().HitTest(&point);
    const bool isEntry = index >= 0 && index < static_cast<int>(m_entries.size());
    return isEntry && !(buttonAt(index).fsStyle & TBSTYLE_SEP) ? index : kNone;
}

CFlyoutToolbar::Entry CFlyoutToolbar::track(CPoint screen)
{
    makeHot(buttonUnder(screen));
    return hotEntry();
}

CFlyoutToolbar::Entry CFlyoutToolbar::hotEntry() const
{
    return m_hot == kNone ? Entry{} : entryAt(m_hot);
}

CFlyoutToolbar::Entry CFlyoutToolbar::entryAt(int index) const
{
    const TBBUTTON button = buttonAt(index);
    return {m_entries[static_cast<std::size_t>(index)], button.idCommand,
            (button.fsState & TBSTATE_ENABLED) != 0};
}

std::vector<Stop> CFlyoutToolbar::stops() const
{
    std::vector<Stop> all;
    for (int i = 0; i < static_cast<int>(m_entries.size()); ++i) {
        CRect place;
        GetItemRect(i, &place);
        all.push_back({ovoui::frame::toBox(place), !(buttonAt(i).fsStyle & TBSTYLE_SEP)});
    }
    return all;
}

void CFlyoutToolbar::makeHot(int index)
{
    if (index == m_hot)
        return;
    if (m_hot != kNone)
        showPressed(m_hot, false);
    m_hot = index;
    hideTip();
    KillTimer(kTipTimer);
    if (index == kNone) {
        showPrompt(AFX_IDS_IDLEMESSAGE);
        return;
    }
    showPressed(index, true);
    showPrompt(static_cast<UINT>(buttonAt(index).idCommand));
    SetTimer(kTipTimer, m_tipWasShown ? m_nextTipDelay : m_tipDelay, nullptr);
}

void CFlyoutToolbar::showPressed(int index, bool pressed)
{
    TBBUTTON button = buttonAt(index);
    const auto command = static_cast<WPARAM>(button.idCommand);
    if (SendMessage(TB_COMMANDTOINDEX, command) == index) {
        SendMessage(TB_PRESSBUTTON, command, MAKELPARAM(pressed, 0));
        return;
    }
    // Another entry has the same command and would be pressed in its place.
    button.fsState =
        static_cast<BYTE>(pressed ? button.fsState | TBSTATE_PRESSED : button.fsState & ~TBSTATE_PRESSED);
    SendMessage(TB_DELETEBUTTON, static_cast<WPARAM>(index));
    SendMessage(TB_INSERTBUTTON, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&button));
}

/// Posted, since the frame may do anything when it looks up the text.
void CFlyoutToolbar::showPrompt(UINT id) const
{
    if (m_frame)
        ::PostMessageW(m_frame, WM_SETMESSAGESTRING, id, 0);
}

// Tips

void CFlyoutToolbar::OnTimer(UINT_PTR id)
{
    switch (id) {
    case kHoldTimer:
        KillTimer(id);
        show();
        break;
    case kTipTimer:
        KillTimer(id);
        showTip();
        break;
    case kTipEndTimer:
        hideTip();
        break;
    default:
        CToolBar::OnTimer(id);
    }
}

std::wstring CFlyoutToolbar::nameOf(int index) const
{
    const std::wstring tip = tipOfCommand(buttonAt(index).idCommand);
    if (!tip.empty())
        return tip;
    const auto entry = static_cast<std::size_t>(m_entries[static_cast<std::size_t>(index)]);
    return entry < m_names.size() ? m_names[entry] : std::wstring();
}

void CFlyoutToolbar::showTip()
{
    const std::wstring text = m_hot == kNone ? std::wstring() : nameOf(m_hot);
    if (text.empty())
        return;
    if (!m_tip) {
        m_tip = std::make_unique<CFlyoutTip>();
        if (!m_tip->create(*this))
            return;
    }
    CRect entry;
    GetItemRect(m_hot, &entry);
    ClientToScreen(&entry);
    m_tip->show(text, entry);
    m_tipWasShown = true;
    SetTimer(kTipEndTimer, m_tipTime, nullptr);
}

void CFlyoutToolbar::hideTip()
{
    KillTimer(kTipEndTimer);
    if (m_tip)
        m_tip->hide();
}
