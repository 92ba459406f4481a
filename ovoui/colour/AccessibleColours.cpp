#include <ovoui/colour/AccessibleColours.h>

#include <oleacc.h>

#include <utility>

namespace ovoui::colour
{

namespace
{

class AccessibleColours final : public frame::Accessible
{
public:
    explicit AccessibleColours(std::shared_ptr<ColourIdentity> identity)
        : m_identity(std::move(identity))
    {
    }

    HWND window() const override { return m_identity->window; }
    int partCount() const override { return m_identity->cells; }

    LONG role(int part) const override
    {
        return part == kSelf ? m_identity->role : static_cast<LONG>(ROLE_SYSTEM_LISTITEM);
    }
    std::wstring name(int part) const override
    {
        return part == kSelf ? told(m_identity->name) : m_identity->cellName(part);
    }
    std::wstring value(int part) const override
    {
        return part == kSelf ? told(m_identity->value) : std::wstring();
    }
    std::wstring action(int part) const override
    {
        return told(part == kSelf ? m_identity->action : m_identity->cellAction);
    }
    std::optional<LONG> state(int part) const override
    {
        if (part == kSelf)
            return std::nullopt;
        const bool focus = focused() == part;
        return STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_SELECTABLE |
               (focus ? STATE_SYSTEM_FOCUSED | STATE_SYSTEM_SELECTED : 0);
    }
    std::optional<CRect> place(int part) const override
    {
        return part == kSelf ? std::nullopt : std::optional(m_identity->cellPlace(part));
    }
    std::optional<int> focused() const override
    {
        if (m_identity->cells == 0)
            return std::nullopt;
        return hasFocus() ? m_identity->current() : kNone;
    }
    void act(int part) override
    {
        // The call may end the control, and with it the functions.
        if (part == kSelf) {
            if (const auto press = m_identity->press)
                press();
        } else if (const auto press = m_identity->pressCell) {
            press(part);
        }
    }

private:
    bool hasFocus() const
    {
        return m_identity->hasFocus ? m_identity->hasFocus() : ::GetFocus() == m_identity->window;
    }
    static std::wstring told(const std::function<std::wstring()>& text)
    {
        return text ? text() : std::wstring();
    }

    std::shared_ptr<ColourIdentity> m_identity;
};

} // namespace

void postClick(const CWnd& window, CPoint point)
{
    const LPARAM at = MAKELPARAM(point.x, point.y);
    ::PostMessageW(window.m_hWnd, WM_LBUTTONDOWN, MK_LBUTTON, at);
    ::PostMessageW(window.m_hWnd, WM_LBUTTONUP, 0, at);
}

std::shared_ptr<frame::Accessible> accessibleColours(std::shared_ptr<ColourIdentity> identity)
{
    return std::make_shared<AccessibleColours>(std::move(identity));
}

} // namespace ovoui::colour
