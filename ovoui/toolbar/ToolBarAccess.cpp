// CVantorToolBar and CFlyoutToolbar: what accessibility is told.
#include <ovoui/toolbar/AccessibleBar.h>
#include <ovoui/toolbar/ButtonNames.h>
#include <ovoui/toolbar/FlyoutToolbar.h>
#include <ovoui/toolbar/ToolBarState.h>

using namespace ovoui::toolbar;

// The bar

void CVantorToolBar::UseAccessibleNames(bool use)
{
    m_state->accessible = use;
}

void CVantorToolBar::announceFocus(int index) const
{
    if (m_state->accessible)
        announceButton(m_hWnd, index);
}

/// 0 when the platform answers.
LRESULT CVantorToolBar::onGetObject(WPARAM wParam, LPARAM lParam)
{
    if (!m_state->accessible || !ovoui::frame::asksForContents(lParam))
        return 0;

    // A client may keep it long after the bar is gone, whose images are not to stay for that.
    class Bar : public AccessibleBar
    {
    public:
        explicit Bar(const std::shared_ptr<State>& state)
            : m_state(state)
        {
        }

    private:
        CToolBar* bar() const override
        {
            const std::shared_ptr<State> state = m_state.lock();
            return state && state->usable() ? state->control() : nullptr;
        }
        std::wstring nameOfButton(int index) const override
        {
            return ovoui::toolbar::nameOfButton(*m_state.lock()->control(), index);
        }
        bool opensFlyout(int index) const override { return m_state.lock()->control()->HasFlyout(index); }
        int focusedButton() const override
        {
            const State::Keyboard& keyboard = m_state.lock()->keyboard;
            return keyboard.on && keyboard.button >= 0 ? keyboard.button : kNone;
        }

        std::weak_ptr<State> m_state;
    };
    return ovoui::frame::accessibleAnswer(wParam, std::make_shared<Bar>(m_state));
}

// The flyout

void CFlyoutToolbar::useAccessibleNames(const std::wstring& name)
{
    m_accessible = true;
    SetWindowText(name.c_str());
}

void CFlyoutToolbar::announceFocus(int index) const
{
    if (m_accessible)
        announceButton(m_hWnd, index);
}

LRESULT CFlyoutToolbar::onGetObject(WPARAM wParam, LPARAM lParam)
{
    if (!m_accessible || !ovoui::frame::asksForContents(lParam))
        return 0;

    class Flyout : public AccessibleBar
    {
    public:
        explicit Flyout(const std::shared_ptr<CFlyoutToolbar>& flyout)
            : m_flyout(flyout)
        {
        }

    private:
        CToolBar* bar() const override
        {
            const std::shared_ptr<CFlyoutToolbar> flyout = m_flyout.lock();
            return flyout && flyout->m_hWnd ? flyout.get() : nullptr;
        }
        std::wstring nameOfButton(int index) const override { return m_flyout.lock()->nameOf(index); }
        bool opensFlyout(int) const override { return false; }
        int focusedButton() const override
        {
            const int hot = m_flyout.lock()->hotIndex();
            return hot >= 0 ? hot : kNone;
        }

        std::weak_ptr<CFlyoutToolbar> m_flyout;
    };
    return ovoui::frame::accessibleAnswer(wParam, std::make_shared<Flyout>(shared_from_this()));
}
