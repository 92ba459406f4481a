#include "NotificationLog.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <ostream>

namespace ovo::testkit
{

namespace
{

#define OVO_NAMED(code)                                                                                      \
    {                                                                                                        \
        static_cast<UINT>(code), #code                                                                       \
    }

const std::map<UINT, const char*>& notifyNames()
{
    static const std::map<UINT, const char*> names{
        OVO_NAMED(NM_CLICK),           OVO_NAMED(NM_DBLCLK),
        OVO_NAMED(NM_RETURN),          OVO_NAMED(NM_RCLICK),
        OVO_NAMED(NM_RDBLCLK),         OVO_NAMED(NM_SETFOCUS),
        OVO_NAMED(NM_KILLFOCUS),       OVO_NAMED(NM_CUSTOMDRAW),
        OVO_NAMED(NM_SETCURSOR),       OVO_NAMED(NM_RELEASEDCAPTURE),
        OVO_NAMED(TVN_SELCHANGINGW),   OVO_NAMED(TVN_SELCHANGEDW),
        OVO_NAMED(TVN_ITEMEXPANDINGW), OVO_NAMED(TVN_ITEMEXPANDEDW),
        OVO_NAMED(TVN_BEGINDRAGW),     OVO_NAMED(TVN_BEGINRDRAGW),
        OVO_NAMED(TVN_DELETEITEMW),    OVO_NAMED(TVN_BEGINLABELEDITW),
        OVO_NAMED(TVN_ENDLABELEDITW),  OVO_NAMED(TVN_KEYDOWN),
        OVO_NAMED(TVN_GETDISPINFOW),   OVO_NAMED(TVN_SETDISPINFOW),
        OVO_NAMED(TVN_GETINFOTIPW),    OVO_NAMED(TVN_SINGLEEXPAND),
        OVO_NAMED(LVN_ITEMCHANGED),    OVO_NAMED(LVN_ITEMCHANGING),
        OVO_NAMED(LVN_COLUMNCLICK),    OVO_NAMED(LVN_KEYDOWN),
        OVO_NAMED(LVN_ITEMACTIVATE),   OVO_NAMED(TCN_SELCHANGE),
        OVO_NAMED(TCN_SELCHANGING),    OVO_NAMED(TTN_GETDISPINFOW),
        OVO_NAMED(TTN_SHOW),           OVO_NAMED(TTN_POP),
        OVO_NAMED(TBN_DROPDOWN),       OVO_NAMED(UDN_DELTAPOS),
    };
    return names;
}

const std::map<UINT, const char*>& commandNames()
{
    static const std::map<UINT, const char*> names{
        {0, "clicked (0)"},       OVO_NAMED(BN_DOUBLECLICKED), OVO_NAMED(EN_SETFOCUS),
        OVO_NAMED(EN_KILLFOCUS),  OVO_NAMED(EN_CHANGE),        OVO_NAMED(EN_UPDATE),
        OVO_NAMED(CBN_SELCHANGE), OVO_NAMED(CBN_DBLCLK),       OVO_NAMED(CBN_SETFOCUS),
        OVO_NAMED(CBN_KILLFOCUS), OVO_NAMED(CBN_DROPDOWN),     OVO_NAMED(CBN_CLOSEUP),
    };
    return names;
}

#undef OVO_NAMED

bool isTreeCode(UINT code)
{
    return code <= static_cast<UINT>(TVN_FIRST) && code >= static_cast<UINT>(TVN_LAST);
}

void takeItem(Notification& notification, const TVITEMW& item)
{
    notification.newItem = item.hItem;
    notification.state = item.state;
    notification.itemData = item.lParam;
}

void takeTreeData(Notification& notification, const NMHDR& header)
{
    switch (header.code) {
    case TVN_BEGINLABELEDITW:
    case TVN_ENDLABELEDITW: {
        const TVITEMW& item = reinterpret_cast<const NMTVDISPINFOW&>(header).item;
        takeItem(notification, item);
        if (item.pszText && item.pszText != LPSTR_TEXTCALLBACKW)
            notification.text = item.pszText;
        return;
    }
    case TVN_KEYDOWN:
        notification.action = reinterpret_cast<const NMTVKEYDOWN&>(header).wVKey;
        return;
    case TVN_ITEMCHANGINGW:
    case TVN_ITEMCHANGEDW: {
        const auto& change = reinterpret_cast<const NMTVITEMCHANGE&>(header);
        notification.newItem = change.hItem;
        notification.state = change.uStateNew;
        notification.itemData = change.lParam;
        return;
    }
    case TVN_GETDISPINFOW:
    case TVN_SETDISPINFOW:
    case TVN_GETINFOTIPW:
    case TVN_ASYNCDRAW:
        return;
    default: {
        const auto& change = reinterpret_cast<const NMTREEVIEWW&>(header);
        takeItem(notification, change.itemNew);
        notification.action = change.action;
        notification.oldItem = change.itemOld.hItem;
        notification.point = change.ptDrag;
        if (!change.itemNew.hItem)
            notification.itemData = change.itemOld.lParam;
    }
    }
}

} // namespace

NotificationLog::NotificationLog()
    : m_ignored{static_cast<UINT>(NM_CUSTOMDRAW),     static_cast<UINT>(NM_SETCURSOR),
                static_cast<UINT>(TVN_GETDISPINFOW),  static_cast<UINT>(LVN_GETDISPINFOW),
                static_cast<UINT>(TVN_ITEMCHANGINGW), static_cast<UINT>(TVN_ITEMCHANGEDW)}
{
}

void NotificationLog::note(UINT message, WPARAM wParam, LPARAM lParam)
{
    Notification notification{};
    notification.message = message;
    notification.lParam = lParam;
    if (message == WM_COMMAND) {
        notification.id = LOWORD(wParam);
        notification.code = HIWORD(wParam);
        notification.from = reinterpret_cast<HWND>(lParam);
    } else if (message == WM_NOTIFY) {
        const auto& header = *reinterpret_cast<const NMHDR*>(lParam);
        notification.id = static_cast<UINT>(header.idFrom);
        notification.code = header.code;
        notification.from = header.hwndFrom;
        if (m_ignored.contains(header.code))
            return;
        if (isTreeCode(header.code))
            takeTreeData(notification, header);
    } else if (m_messages.contains(message)) {
        notification.code = static_cast<UINT>(wParam);
    } else {
        return;
    }
    m_all.push_back(std::move(notification));
}

int NotificationLog::count(UINT code) const
{
    return static_cast<int>(std::ranges::count(m_all, code, &Notification::code));
}

std::vector<UINT> NotificationLog::codes() const
{
    std::vector<UINT> codes;
    std::ranges::transform(m_all, std::back_inserter(codes), &Notification::code);
    return codes;
}

Notification NotificationLog::last(UINT code) const
{
    const auto found =
        std::find_if(m_all.rbegin(), m_all.rend(), [code](const auto& n) { return n.code == code; });
    if (found != m_all.rend())
        return *found;
    ADD_FAILURE() << "no notification " << nameOfCode(WM_NOTIFY, code) << " came";
    return {};
}

std::string nameOfCode(UINT message, UINT code)
{
    const auto& names = message == WM_COMMAND ? commandNames() : notifyNames();
    const auto found = names.find(code);
    return found == names.end() ? std::to_string(static_cast<int>(code)) : found->second;
}

void PrintTo(const Notification& notification, std::ostream* out)
{
    if (notification.message == WM_COMMAND)
        *out << "WM_COMMAND ";
    else if (notification.message != WM_NOTIFY)
        *out << "message " << notification.message << ' ';
    *out << nameOfCode(notification.message, notification.code) << " from " << notification.id;
    if (notification.newItem || notification.oldItem)
        *out << " action " << notification.action << " old " << notification.oldItem << " new "
             << notification.newItem;
}

} // namespace ovo::testkit
