/// Not exported: toolbars as accessibility sees them.
#pragma once

#include <ovoui/frame/Accessible.h>

#include <afxext.h>

#include <string>

namespace ovoui::toolbar
{

/// A bar whose parts are its buttons. Deriving classes say which bar it is, and what the toolbar control does
/// not know of it.
class AccessibleBar : public frame::Accessible
{
public:
    HWND window() const override;
    int partCount() const override;
    LONG role(int part) const override;
    std::wstring name(int part) const override;
    std::wstring description(int part) const override;
    std::wstring action(int part) const override;
    std::optional<LONG> state(int part) const override;
    std::optional<CRect> place(int part) const override;
    HWND windowOf(int part) const override;
    std::optional<int> focused() const override;
    /// Posts pressMessage, since the command may show a dialog, for which the client must not wait.
    void act(int part) override;

protected:
    /// Null once its window is gone; nothing else is asked then.
    virtual CToolBar* bar() const = 0;
    virtual std::wstring nameOfButton(int index) const = 0;
    virtual bool opensFlyout(int index) const = 0;
    /// The button that the keyboard is at, or kNone.
    virtual int focusedButton() const = 0;

private:
    TBBUTTON button(int index) const;
    bool isSeparator(int index) const;
    bool canPress(int index) const;
    LONG stateOf(int index) const;
};

/// Posted to the bar when accessibility presses a button; wParam: its index.
UINT pressMessage();

/// Tells accessibility that the keyboard is at a button now.
void announceButton(HWND bar, int index);

} // namespace ovoui::toolbar
