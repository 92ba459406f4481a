/// Not exported: toolbars as accessibility sees them.
#pragma once

#include <afxext.h>

#include <memory>
#include <string>

namespace ovoui::toolbar
{

/// What is to be told about a bar and its buttons, which count from 0.
class AccessibleBar
{
public:
    virtual ~AccessibleBar() = default;

    /// Null once its window is gone; nothing else is asked then.
    virtual CToolBar* bar() const = 0;
    virtual std::wstring name() const = 0;
    virtual std::wstring nameOf(int index) const = 0;
    virtual bool opensFlyout(int index) const = 0;
    /// The button that the keyboard is at; -1 for none.
    virtual int focused() const = 0;
};

/// The answer to WM_GETOBJECT, whose wParam is given: an object that outlives the bar.
LRESULT accessibleObject(WPARAM wParam, std::shared_ptr<AccessibleBar> bar);

/// Posted to the bar when accessibility presses a button; wParam: its index.
UINT pressMessage();

/// Tells accessibility that the keyboard is at a button now.
void announceButton(HWND bar, int index);

} // namespace ovoui::toolbar
