// CVantorToolBar: its buttons and their images.
#include <ovoui/frame/Platform.h>
#include <ovoui/frame/RedrawHold.h>
#include <ovoui/toolbar/BarButtons.h>
#include <ovoui/toolbar/ImageStrip.h>
#include <ovoui/toolbar/ToolBarState.h>
#include <ovoui/toolbar/WithoutOwner.h>
#include <ovoui/toolbar/core/BarRules.h>
#include <ovoui/toolbar/core/FlyoutGesture.h>

#include <list>
#include <memory>
#include <string_view>

using namespace ovoui::toolbar;
using ovoui::frame::RedrawHold;

namespace
{

/// The text of a button that has one of its own, not one of the control's list.
const wchar_t* ownText(const TBBUTTON& button)
{
    const bool isPointer = button.iString != -1 && !IS_INTRESOURCE(button.iString);
    return isPointer ? reinterpret_cast<const wchar_t*>(button.iString) : nullptr;
}

ButtonChange changeBetween(const TBBUTTON& before, const TBBUTTON& after)
{
    ButtonFields wanted = fieldsOf(after);
    const wchar_t* const one = ownText(before);
    const wchar_t* const other = ownText(after);
    if (one && other && std::wstring_view(one) == other)
        wanted.text = before.iString; // the same words elsewhere
    return changeOf(fieldsOf(before), wanted);
}

/// In the end as much of a window, and of the controls in it, is invalid as at the beginning.
class SameInvalid
{
public:
    explicit SameInvalid(HWND wnd)
    {
        note(wnd, reinterpret_cast<LPARAM>(this));
        ::EnumChildWindows(wnd, &note, reinterpret_cast<LPARAM>(this));
    }
    ~SameInvalid()
    {
        for (const Part& part : m_parts)
            part.restore();
    }
    SameInvalid(const SameInvalid&) = delete;
    SameInvalid& operator=(const SameInvalid&) = delete;

private:
    struct Part
    {
        HWND wnd;
        CRgn region;
        bool any;

        explicit Part(HWND window)
            : wnd(window)
        {
            region.CreateRectRgn(0, 0, 0, 0);
            any = ::GetUpdateRgn(wnd, region, FALSE) != NULLREGION;
        }
        void restore() const
        {
            ::RedrawWindow(wnd, nullptr, nullptr, RDW_VALIDATE | RDW_NOCHILDREN);
            if (any) // its frame, too, which was to be painted with it
                ::RedrawWindow(wnd, nullptr, region, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_NOCHILDREN);
        }
    };

    static BOOL CALLBACK note(HWND wnd, LPARAM self)
    {
        reinterpret_cast<SameInvalid*>(self)->m_parts.emplace_back(wnd);
        return TRUE;
    }

    std::list<Part> m_parts;
};

/// Not asked of the parents, which may be hidden for the time being.
bool isHidden(HWND wnd)
{
    return (::GetWindowLongPtrW(wnd, GWL_STYLE) & WS_VISIBLE) == 0;
}

/// A change during which the control does not redraw, and does not tell the owner, which could destroy it in
/// the middle. Where the platform invalidates all of the bar when it may redraw again, that is taken back. A
/// hidden bar does not redraw anyway, and by default a window that may redraw again shows.
class QuietChange
{
public:
    explicit QuietChange(HWND wnd)
        : m_withoutOwner(wnd)
        , m_sameInvalid(ovoui::platform().invalidatesWholeBar ? std::make_unique<SameInvalid>(wnd) : nullptr)
        , m_hold(isHidden(wnd) ? nullptr : std::make_unique<RedrawHold>(wnd, RedrawHold::By::Control))
    {
    }

private:
    // They end in the opposite order.
    const WithoutOwner m_withoutOwner;
    const std::unique_ptr<SameInvalid> m_sameInvalid;
    const std::unique_ptr<RedrawHold> m_hold;
};

} // namespace

int CVantorToolBar::buttonCount() const
{
    return m_hWnd ? toCount(static_cast<std::size_t>(::SendMessageW(m_hWnd, TB_BUTTONCOUNT, 0, 0))) : 0;
}

bool CVantorToolBar::hasButton(int index) const
{
    return index >= 0 && index < buttonCount();
}

std::vector<TBBUTTON> CVantorToolBar::allButtons() const
{
    std::vector<TBBUTTON> buttons(static_cast<std::size_t>(buttonCount()));
    for (std::size_t i = 0; i < buttons.size(); ++i)
        _getButton(static_cast<int>(i), &buttons[i]);
    return buttons;
}

BOOL CVantorToolBar::InsertButton(int index, TBBUTTON* button)
{
    if (m_state->records.insert(index) && ms_activeBar == this)
        ms_dragButton = afterInsertion(ms_dragButton, index);
    if (!button)
        return 1;
    const std::shared_ptr<State> state = m_state;
    if (index >= 0) // else it comes last
        state->keyboard.button = afterInsertion(state->keyboard.button, index);
    const auto inserted = static_cast<BOOL>(
        SendMessage(TB_INSERTBUTTON, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(button)));
    if (state->usable())
        m_nCount = buttonCount();
    return inserted;
}

BOOL CVantorToolBar::DeleteButton(int index)
{
    m_state->records.erase(index);
    if (ms_activeBar == this && index >= 0) {
        if (losesFlyout(ms_dragButton, index))
            closeFlyout();
        ms_dragButton = afterDeletion(ms_dragButton, index);
    }
    const std::shared_ptr<State> state = m_state;
    if (hasButton(index))
        state->keyboard.button = afterDeletion(state->keyboard.button, index);
    const auto deleted = static_cast<BOOL>(SendMessage(TB_DELETEBUTTON, static_cast<WPARAM>(index)));
    if (state->usable()) // the owner is told of the deletion
        m_nCount = buttonCount();
    return deleted;
}

void CVantorToolBar::_getButton(int index, TBBUTTON* button) const
{
    *button = buttonOf(m_hWnd, index);
}

void CVantorToolBar::_setButton(int index, const TBBUTTON* button)
{
    if (!hasButton(index))
        return;
    TBBUTTON before;
    _getButton(index, &before);
    const ButtonChange change = changeBetween(before, *button);
    if (change == ButtonChange::None)
        return;

    TBBUTTON wanted = *button;
    std::wstring text; // the control frees its copy with the button
    if (const wchar_t* const words = ownText(wanted)) {
        text = words;
        wanted.iString = reinterpret_cast<INT_PTR>(text.c_str());
    }
    {
        const QuietChange quiet(m_hWnd);
        SendMessage(TB_DELETEBUTTON, static_cast<WPARAM>(index));
        SendMessage(TB_INSERTBUTTON, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&wanted));
    }
    CRect rect;
    if (change == ButtonChange::Look && SendMessage(TB_GETITEMRECT, static_cast<WPARAM>(index),
                                                    reinterpret_cast<LPARAM>(static_cast<RECT*>(&rect))))
        InvalidateRect(&rect);
    else
        Invalidate();
}

// Images

void CVantorToolBar::noteBitmap(int bitmapId, int offset)
{
    m_state->bitmapOffsets[bitmapId] = offset;
}

int CVantorToolBar::AddBitmap(int bitmapId, int bitmapSize)
{
    const auto noted = m_state->bitmapOffsets.find(bitmapId);
    if (noted != m_state->bitmapOffsets.end())
        return noted->second;
    const int first = addStrip(m_hWnd, bitmapId, bitmapSize);
    if (first >= 0)
        noteBitmap(bitmapId, first);
    return first;
}
