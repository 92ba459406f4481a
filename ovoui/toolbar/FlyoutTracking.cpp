// CFlyoutToolbar: the hot entry, its prompt and its tip.
#include <ovoui/toolbar/FlyoutToolbar.h>

#include <ovoui/frame/BoxRect.h>
#include <ovoui/toolbar/BarButtons.h>
#include <ovoui/toolbar/ButtonNames.h>
#include <ovoui/toolbar/FlyoutTip.h>
#include <ovoui/toolbar/TipTimers.h>
#include <ovoui/toolbar/core/BarWalk.h>
#include <ovoui/toolbar/core/ButtonRules.h>
#include <ovoui/toolbar/core/FlyoutEntries.h>

#include <afxpriv.h>

#include <utility>

using namespace ovoui::toolbar;

bool CFlyoutToolbar::covers(CPoint screen) const
{
    if (!m_hWnd || !IsWindowVisible())
        return false;
    CRect window;
    GetWindowRect(&window);
    return window.PtInRect(screen) != FALSE;
}

/// The button at a point of the screen that is no separator; kNoEntry where there is none.
int CFlyoutToolbar::buttonUnder(CPoint screen) const
{
    if (!m_hWnd || !IsWindowVisible())
        return kNoEntry;
    CRect client;
    GetClientRect(&client);
    CPoint point = screen;
    ScreenToClient(&point);
    if (!client.PtInRect(point))
        return kNoEntry;
    // Negative for separators, except for one that is the first entry.
    const int hit = GetToolBarCtrl().HitTest(&point);
    return entryUnder(hit, static_cast<int>(m_entries.size()), isSeparator(fieldsOf(m_hWnd, hit)));
}

CFlyoutToolbar::Entry CFlyoutToolbar::track(CPoint screen)
{
    makeHot(buttonUnder(screen));
    return hotEntry();
}

CFlyoutToolbar::Entry CFlyoutToolbar::hotEntry() const
{
    return m_hot == kNoEntry ? Entry{} : entryAt(m_hot);
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
        all.push_back({ovoui::frame::toBox(place), !isSeparator(fieldsOf(m_hWnd, i))});
    }
    return all;
}

void CFlyoutToolbar::makeHot(int index)
{
    const int before = std::exchange(m_hot, index);
    for (const HotStep step : hotSteps(before, index))
        switch (step) {
        case HotStep::Release:
            showPressed(before, false);
            break;
        case HotStep::HideTip:
            hideTip();
            break;
        case HotStep::Press:
            showPressed(index, true);
            break;
        case HotStep::ShowPrompt:
            showPrompt(static_cast<UINT>(buttonAt(index).idCommand));
            break;
        case HotStep::ShowIdlePrompt:
            showPrompt(AFX_IDS_IDLEMESSAGE);
            break;
        case HotStep::AwaitTip:
            TipTimers(*this).await(m_tipWasShown ? m_nextTipDelay : m_tipDelay);
            break;
        }
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
    if (id == kHoldTimer) {
        KillTimer(id);
        show();
        return;
    }
    switch (TipTimers(*this).due(id)) {
    case TipTimers::Due::Show:
        showTip();
        break;
    case TipTimers::Due::Hide:
        hideTip();
        break;
    case TipTimers::Due::Nothing:
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
    const std::wstring text = m_hot == kNoEntry ? std::wstring() : nameOf(m_hot);
    if (text.empty())
        return;
    if (!m_tip) {
        auto tip = std::make_unique<CFlyoutTip>();
        if (!tip->create(*this))
            return; // tried again at the next entry
        m_tip = std::move(tip);
    }
    CRect entry;
    GetItemRect(m_hot, &entry);
    ClientToScreen(&entry);
    m_tip->show(text, entry);
    m_tipWasShown = true;
    TipTimers(*this).shown(m_tipTime);
}

void CFlyoutToolbar::hideTip()
{
    TipTimers(*this).stop();
    if (m_tip)
        m_tip->hide();
}
