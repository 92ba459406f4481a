#include <ovoui/lists/ComboCompletion.h>

#include <ovoui/lists/ComboBox.h>

#include <map>

namespace ovoui::lists
{

namespace
{

/// Whether a message to a list box changes its items, or how they compare with a text.
bool changesItems(UINT message)
{
    switch (message) {
    case LB_ADDSTRING:
    case LB_INSERTSTRING:
    case LB_DELETESTRING:
    case LB_RESETCONTENT:
    case LB_DIR:
    case LB_ADDFILE:
    case LB_SETCOUNT:
    case LB_SETLOCALE:
    case WM_SETTINGCHANGE:
        return true;
    default:
        return false;
    }
}

/// A list's window procedure of before, and who hears of its items.
struct WatchedList
{
    WNDPROC procedure = nullptr;
    ComboCompletion* completion = nullptr; ///< null when its combo box has gone first
};

std::map<HWND, WatchedList> s_lists; ///< until the window goes

} // namespace

ComboCompletion::ComboCompletion(COVOComboBox& combo)
    : m_combo(combo)
{
}

ComboCompletion::~ComboCompletion()
{
    leaveList();
}

int ComboCompletion::itemFor(const std::wstring& text)
{
    if (!watchesList())
        m_search.forget();
    return m_search.itemFor(
        text, m_combo.GetCount(), [&](int after) { return m_combo.FindString(after, text.c_str()); },
        [this](int item) { return m_combo.itemText(item); });
}

/// By the window procedure itself: with SetWindowSubclass some platforms ask their server for every message,
/// and a search sends several.
bool ComboCompletion::watchesList()
{
    COMBOBOXINFO info{};
    info.cbSize = sizeof info;
    if (m_list || !m_combo.GetComboBoxInfo(&info))
        return m_list != nullptr;
    m_list = info.hwndList;
    const auto [list, isNew] = s_lists.try_emplace(m_list);
    list->second.completion = this;
    if (isNew)
        list->second.procedure = reinterpret_cast<WNDPROC>(
            ::SetWindowLongPtrW(m_list, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&listProcedure)));
    return true;
}

void ComboCompletion::leaveList()
{
    if (const auto list = s_lists.find(m_list); list != s_lists.end())
        list->second.completion = nullptr;
    m_list = nullptr;
    m_search.forget();
}

/// The parent of an owner-drawn list hears of changes while they are made: it may search then, or destroy the
/// combo box.
LRESULT CALLBACK ComboCompletion::listProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const auto found = s_lists.find(window);
    if (found == s_lists.end())
        return ::DefWindowProcW(window, message, wParam, lParam);
    const WatchedList list = found->second;
    if (message == WM_NCDESTROY) {
        if (list.completion)
            list.completion->leaveList();
        s_lists.erase(window);
    }
    if (!list.completion || !changesItems(message))
        return ::CallWindowProcW(list.procedure, window, message, wParam, lParam);
    list.completion->m_search.forget();
    const Lifeline::Watch watch(list.completion->m_lifeline);
    const LRESULT result = ::CallWindowProcW(list.procedure, window, message, wParam, lParam);
    if (watch.alive())
        list.completion->m_search.forget();
    return result;
}

} // namespace ovoui::lists
