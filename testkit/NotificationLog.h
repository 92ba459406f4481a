#pragma once

#include <afxwin.h>
#include <afxcmn.h>

#include <iosfwd>
#include <set>
#include <string>
#include <vector>

namespace ovo::testkit
{

/// One WM_COMMAND, WM_NOTIFY or other recorded message, with what it carried at the time it was sent.
struct Notification
{
    UINT message = 0;    ///< WM_COMMAND, WM_NOTIFY, or another recorded message
    UINT id = 0;         ///< of the control or command
    UINT code = 0;       ///< the notification code; for other messages wParam
    HWND from = nullptr; ///< the control; null for menu commands
    LPARAM lParam = 0;   ///< as sent: for WM_NOTIFY no longer valid

    // Tree views only; zero where the notification says nothing.
    UINT action = 0;             ///< how the change came about: TVC_, TVE_ or the virtual key
    HTREEITEM oldItem = nullptr; ///< the item left
    HTREEITEM newItem = nullptr; ///< the item concerned
    UINT state = 0;              ///< state bits of the item concerned
    LPARAM itemData = 0;         ///< lParam of the item concerned
    POINT point{};               ///< place of a drag, client coordinates
    std::wstring text;           ///< text of the item concerned, for label editing

    /// Whether its code is `wantedCode`.
    bool is(UINT wantedCode) const { return code == wantedCode; }
};

/// Notifications in the order in which they came. Those that windows send at will while drawing and
/// hovering (custom draw, cursors, requests for display data) are left out, and so are changes of the state
/// of tree items (TVN_ITEMCHANGING, TVN_ITEMCHANGED), of which not every platform tells.
class NotificationLog
{
public:
    NotificationLog();

    /// Takes down a `message` with its `wParam` and `lParam` if it is a notification or one of the recorded
    /// messages. To be called first thing in a window procedure.
    void note(UINT message, WPARAM wParam, LPARAM lParam);

    /// Takes down another message too, for example WM_HSCROLL or a private one.
    void record(UINT message) { m_messages.insert(message); }

    /// Leaves out the notification `code`.
    void ignore(UINT code) { m_ignored.insert(code); }
    /// Takes the notification `code` in again.
    void regard(UINT code) { m_ignored.erase(code); }

    /// All that was taken down, in order.
    const std::vector<Notification>& all() const { return m_all; }
    /// How many that are.
    size_t size() const { return m_all.size(); }
    /// Whether that is none.
    bool empty() const { return m_all.empty(); }
    /// Forgets them.
    void clear() { m_all.clear(); }

    /// How many came with this code.
    int count(UINT code) const;

    /// The codes in order.
    std::vector<UINT> codes() const;

    /// The last one with this code; fails the test and gives an empty one when there is none.
    Notification last(UINT code) const;

private:
    std::vector<Notification> m_all;
    std::set<UINT> m_messages;
    std::set<UINT> m_ignored;
};

/// The name of a `code` of WM_COMMAND or WM_NOTIFY, `message`, as in the system's headers, or its number.
std::string nameOfCode(UINT message, UINT code);

/// For GoogleTest: writes the names and numbers of `notification` to `out`.
void PrintTo(const Notification& notification, std::ostream* out);

} // namespace ovo::testkit
