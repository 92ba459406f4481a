// CVantorToolBar: press a button, hold it, slide to an entry of its flyout, release.
#include <ovoui/frame/Exceptions.h>
#include <ovoui/frame/Geometry.h>
#include <ovoui/toolbar/BarButtons.h>
#include <ovoui/toolbar/ButtonNames.h>
#include <ovoui/toolbar/FlyoutToolbar.h>
#include <ovoui/toolbar/ToolBarState.h>
#include <ovoui/toolbar/core/ButtonRules.h>
#include <ovoui/toolbar/core/FlyoutGesture.h>
#include <ovoui/toolbar/core/FlyoutPlacement.h>

#include <utility>

using namespace ovoui::toolbar;
using ovoui::frame::keeping;
using ovoui::frame::raise;

Press CVantorToolBar::press()
{
    return {ms_dragging, ms_dragButton, ms_popupBar != nullptr};
}

bool CVantorToolBar::isPressed() const
{
    return ms_dragging && ms_activeBar == this;
}

/// Ends the press, and closes the flyout, where the interruption does so.
void CVantorToolBar::interrupt(Interruption interruption)
{
    if (endsPress(interruption, press(), ms_activeBar == this))
        endPress();
}

void CVantorToolBar::closeFlyout()
{
    if (const std::shared_ptr<CFlyoutToolbar> flyout = std::exchange(ms_popupBar, nullptr))
        flyout->DestroyWindow();
}

void CVantorToolBar::endPress()
{
    ms_dragging = false;
    ms_dragButton = kNoButton;
    ms_activeBar = nullptr;
    closeFlyout();
}

void CVantorToolBar::ActivateApp(BOOL active)
{
    if (!active && endsPress(Interruption::AppDeactivated, press(), false))
        endPress();
}

bool CVantorToolBar::ButtonHitTest(CPoint point, int& index, CRect& rect, bool& hasFlyout) const
{
    const int count = buttonCount();
    for (int i = 0; i < count; ++i) {
        CRect item;
        if (!GetToolBarCtrl().GetItemRect(i, &item) || !item.PtInRect(point))
            continue;
        ClientToScreen(&item);
        index = i;
        rect = item;
        hasFlyout = HasFlyout(i);
        return true;
    }
    return false;
}

// The press

void CVantorToolBar::OnLButtonDown(UINT flags, CPoint point)
{
    const std::shared_ptr<State> state = m_state;
    if (state->keyboard.on) {
        giveFocusBack();
        if (!state->usable())
            return;
    }
    ButtonUnderPointer under;
    CRect rect;
    ButtonHitTest(point, under.index, rect, under.hasFlyout);
    const MoveOutcome outcome = onPress(press(), under);
    if (outcome.action == FlyoutAction::OpenHeld) {
        CreatePopup(under.index, rect, 1);
        if (!state->usable())
            return;
        ms_activeBar = this; // also when the flyout has no entries
        ms_dragButton = outcome.next.button;
        ms_dragging = true;
    }
    CToolBar::OnLButtonDown(flags, point);
    if (state->usable() && takesMouse(press(), ms_activeBar == this, ::GetCapture() == m_hWnd))
        SetCapture();
}

void CVantorToolBar::CreatePopup(int index, const CRect& rect, int held)
{
    const std::shared_ptr<State> state = m_state;
    closeFlyout();
    const FlyoutRecord* const record = state->records.find(index);
    if (!record)
        return;
    const auto flyout = std::make_shared<CFlyoutToolbar>();
    const bool horizontal = isHorizontal();
    const bool showsOwnImages = record->imageList == state->images.GetImageList();
    if (!flyout->create(*this, FlyoutRecord(*record), horizontal))
        return;
    ms_popupBar = flyout;
    ms_activeBar = this;
    if (showsOwnImages && state->makesDisabled)
        flyout->SendMessage(TB_SETDISABLEDIMAGELIST, 0,
                            reinterpret_cast<LPARAM>(state->images.GetDisabledImageList()));
    flyout->whenChosen = [state](const FlyoutEntry& entry) {
        if (state->usable())
            state->control()->chooseEntry(entry);
    };
    if (state->accessible)
        flyout->useAccessibleNames(nameOfButton(*this, index));
    flyout->placeAt(rect, horizontal);
    if (held && flyout->showLater(holdDelay()))
        return;
    const std::exception_ptr foreign = keeping([&] { flyout->show(); }); // asks the host's update handlers
    if (foreign && ms_popupBar == flyout)
        closeFlyout(); // keys would walk in it although nobody sees it
    raise(foreign);
}

void CVantorToolBar::SetHoldDelay(UINT milliseconds)
{
    m_state->holdDelay = milliseconds;
}

UINT CVantorToolBar::holdDelay() const
{
    UINT menuDelay = m_state->holdDelay;
    if (menuDelay == kMenuDelay && !::SystemParametersInfoW(SPI_GETMENUSHOWDELAY, 0, &menuDelay, 0))
        menuDelay = State::kHoldDelay;
    return menuDelay;
}

bool CVantorToolBar::isHorizontal() const
{
    BarPosition position;
    position.floating = IsFloating();
    position.rows = GetToolBarCtrl().GetRows();
    position.atTheSide = (m_dwStyle & CBRS_ORIENT_VERT) != 0;
    return ovoui::toolbar::isHorizontal(position);
}

// The slide

void CVantorToolBar::OnMouseMove(UINT flags, CPoint point)
{
    const std::shared_ptr<State> state = m_state;
    if (isPressed())
        slide(point);
    if (state->usable())
        CToolBar::OnMouseMove(flags, point);
}

void CVantorToolBar::slide(CPoint point)
{
    const std::shared_ptr<State> state = m_state;
    CPoint screen = point;
    ClientToScreen(&screen);
    ButtonUnderPointer under;
    CRect rect;
    ButtonHitTest(point, under.index, rect, under.hasFlyout);
    const MoveOutcome outcome = onMove(press(), under, ms_popupBar && ms_popupBar->covers(screen));
    ms_dragButton = outcome.next.button;
    switch (outcome.action) {
    case FlyoutAction::OpenNow:
        CreatePopup(under.index, rect, 0);
        break;
    case FlyoutAction::Close:
        closeFlyout();
        break;
    default:
        break;
    }
    if (outcome.tracks && state->usable() && isPressed() && ms_popupBar)
        ms_popupBar->track(screen);
}

// The release

void CVantorToolBar::OnLButtonUp(UINT flags, CPoint point)
{
    const std::shared_ptr<State> state = m_state;
    const bool chosen = isPressed() && choose(point);
    if (!state->usable())
        return;
    endPress();
    if (chosen)
        releaseQuietly(flags, point);
    else
        CToolBar::OnLButtonUp(flags, point);
    if (state->usable() && ::GetCapture() == m_hWnd)
        ::ReleaseCapture();
}

/// Makes the entry under the pointer the button's command and issues it. False when there is none.
bool CVantorToolBar::choose(CPoint point)
{
    const std::shared_ptr<CFlyoutToolbar> flyout = ms_popupBar;
    ClientToScreen(&point);
    return takeEntry(press(), flyout ? flyout->track(point) : FlyoutEntry{});
}

/// The same for an entry, at the end of a press.
bool CVantorToolBar::takeEntry(const Press& press, const FlyoutEntry& entry)
{
    const ReleaseOutcome outcome = onRelease(press, entryState(entry.isHot(), entry.enabled));
    const FlyoutRecord* const record = m_state->records.find(ms_dragButton);
    if (!outcome.chooses || !record || !hasButton(ms_dragButton))
        return false;
    TBBUTTON button;
    _getButton(ms_dragButton, &button);
    const int image = imageOfEntry(*record, entry.index, button.iBitmap);
    const HWND bar = m_hWnd;
    const HWND target = commandTarget();
    showChoice(ms_dragButton, entry.command, image);
    if (outcome.sendsCommand)
        ::PostMessageW(target, WM_COMMAND, static_cast<WORD>(entry.command), reinterpret_cast<LPARAM>(bar));
    return true;
}

void CVantorToolBar::showChoice(int index, int command, int image)
{
    TBBUTTON button;
    _getButton(index, &button);
    const ButtonFields chosen = withChoice(fieldsOf(button), command, image);
    button.idCommand = chosen.command;
    button.iBitmap = chosen.image;
    button.fsState = chosen.state;
    button.fsStyle = chosen.style;
    _setButton(index, &button);
}

/// Lets the control end its own press while the button under the pointer cannot fire.
void CVantorToolBar::releaseQuietly(UINT flags, CPoint point)
{
    const std::shared_ptr<State> state = m_state;
    CPoint hit = point;
    const int index = GetToolBarCtrl().HitTest(&hit);
    const bool quiet = hasButton(index) && isEnabled(fieldsOf(m_hWnd, index));
    const auto setDisabled = [&](bool disabled) {
        if (!quiet || !state->usable() || !hasButton(index))
            return;
        SetButtonStyle(index, withEnabled(GetButtonStyle(index), !disabled));
    };
    setDisabled(true);
    const std::exception_ptr foreign =
        keeping([&] { CToolBar::OnLButtonUp(flags, point); }); // tells the owner of the capture
    setDisabled(false);
    raise(foreign);
}

void CVantorToolBar::OnCaptureChanged(CWnd* now)
{
    const std::shared_ptr<State> state = m_state;
    CToolBar::OnCaptureChanged(now);
    if (state->usable() && now->GetSafeHwnd() != m_hWnd)
        interrupt(Interruption::CaptureLost);
}

// The double click

void CVantorToolBar::OnLButtonDblClk(UINT flags, CPoint point)
{
    int index = kNoButton;
    CRect rect;
    bool hasFlyout = false;
    if (ButtonHitTest(point, index, rect, hasFlyout)) {
        const ButtonFields button = fieldsOf(m_hWnd, index);
        const auto command = static_cast<WPARAM>(button.command);
        CWnd* const mainWnd = AfxGetMainWnd();
        if (mainWnd && tellsOfDoubleClick(button, SendMessage(TB_ISBUTTONENABLED, command) != 0))
            mainWnd->PostMessage(WM_OVO_TOOLBAR_DBLCLK, command);
    }
    CToolBar::OnLButtonDblClk(flags, point);
}
