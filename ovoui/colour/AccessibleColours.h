/// Not exported. Parts of the colour controls as clients of accessibility see them.
#pragma once

#include <ovoui/frame/Accessible.h>

#include <functional>
#include <memory>
#include <string>

namespace ovoui::colour
{

/// What is to be told about a control, and about its cells where it has some. The control empties `window`
/// when it goes; nothing else is asked then.
struct ColourIdentity
{
    HWND window = nullptr;
    LONG role = 0; ///< ROLE_SYSTEM_...
    std::function<std::wstring()> name;
    std::function<std::wstring()> value;
    std::function<std::wstring()> action; ///< what `press` does; null where nothing can be done
    std::function<void()> press;          ///< posted, as by postClick

    int cells = 0;
    std::function<std::wstring(int)> cellName;
    std::function<CRect(int)> cellPlace; ///< on the screen
    std::function<int()> current;        ///< the cell with the focus mark; kSelf when there is none
    std::function<bool()> hasFocus;      ///< null where it is the window's own
    std::function<std::wstring()> cellAction;
    std::function<void(int)> pressCell; ///< the same
};

/// Clicks a window at a client point when it comes to its messages: a client that presses something waits for
/// the answer, and the host, which hears of the click, may show a dialog or raise an exception.
void postClick(const CWnd& window, CPoint point);

/// The object for accessibleAnswer.
std::shared_ptr<frame::Accessible> accessibleColours(std::shared_ptr<ColourIdentity> identity);

} // namespace ovoui::colour
