// CVantorToolBar and CFlyoutToolbar: what accessibility is told.
#include <ovoui/toolbar/AccessibleBar.h>
#include <ovoui/toolbar/ButtonNames.h>
#include <ovoui/toolbar/FlyoutToolbar.h>
#include <ovoui/toolbar/ToolBarState.h>

using namespace ovoui::toolbar;

namespace
{

std::wstring titleOf(const CWnd& wnd)
{
    CString title;
    wnd.GetWindowText(title);
    return title.GetString();
}

bool asksForContents(LPARAM lParam)
{
    return static_cast<LONG>(static_cast<DWORD>(lParam)) == OBJID_CLIENT;
}

} // namespace

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
    if (!m_state->accessible || !asksForContents(lParam))
        return 0;

    class Bar : public AccessibleBar
    {
    public:
        explicit Bar(std::shared_ptr<State> state)
            : m_state(std::move(state))
        {
        }
        CToolBar* bar() const override { return m_state->usable() ? m_state->bar : nullptr; }
        std::wstring name() const override { return titleOf(*m_state->bar); }
        std::wstring nameOf(int index) const override { return nameOfButton(*m_state->bar, index); }
        bool opensFlyout(int index) const override { return m_state->bar->HasFlyout(index); }
        int focused() const override { return m_state->keyboard.on ? m_state->keyboard.button : -1; }

    private:
        std::shared_ptr<State> m_state;
    };
    return accessibleObject(wParam, std::make_shared<Bar>(m_state));
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
    if (!m_accessible || !asksForContents(lParam))
        return 0;

    class Flyout : public AccessibleBar
    {
    public:
        explicit Flyout(const std::shared_ptr<CFlyoutToolbar>& flyout)
            : m_flyout(flyout)
        {
        }
        CToolBar* bar() const override
        {
            const std::shared_ptr<CFlyoutToolbar> flyout = m_flyout.lock();
            return flyout && flyout->m_hWnd ? flyout.get() : nullptr;
        }
        std::wstring name() const override { return titleOf(*bar()); }
        std::wstring nameOf(int index) const override { return m_flyout.lock()->nameOf(index); }
        bool opensFlyout(int) const override { return false; }
        int focused() const override { return m_flyout.lock()->hotIndex(); }

    private:
        std::weak_ptr<CFlyoutToolbar> m_flyout;
    };
    return accessibleObject(wParam, std::make_shared<Flyout>(shared_from_this()));
}
