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

/// Whether a message to a list box asks for the first item that begins with a text.
bool searchesAll(UINT message, WPARAM after, LPARAM text)
{
    return message == LB_FINDSTRING && static_cast<int>(after) == -1 && text != 0;
}

/// A list's window procedure of before, and who hears of its items.
struct WatchedList
{
    WNDPROC procedure = nullptr;
    ComboCompletion* completion = nullptr; ///< null when its combo box has gone first
};

std::map<HWND, WatchedList> s_lists; ///< until the window goes

} // namespace

/// A change of the items: nothing that was found counts while it goes on, and afterwards.
class ComboCompletion::Change
{
public:
    explicit Change(ComboCompletion& completion)
        : m_completion(completion)
        , m_watch(completion.m_lifeline)
    {
        m_completion.m_search.forget();
        ++m_completion.m_changes;
    }
    ~Change()
    {
        if (!m_watch.alive())
            return;
        --m_completion.m_changes;
        m_completion.m_search.forget();
    }
    Change(const Change&) = delete;
    Change& operator=(const Change&) = delete;

private:
    ComboCompletion& m_completion;
    const Lifeline::Watch m_watch;
};

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
    if (!watchesList() || m_changes > 0)
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

/// The list's own search of all items for a text.
LRESULT ComboCompletion::search(WNDPROC procedure, const wchar_t* text)
{
    const bool counts = m_changes == 0;
    const int from = counts ? m_search.firstFor(text) : 0;
    if (from == -1)
        return LB_ERR;
    const Lifeline::Watch watch(m_lifeline);
    const LRESULT found = ::CallWindowProcW(procedure, m_list, LB_FINDSTRING, static_cast<WPARAM>(from - 1),
                                            reinterpret_cast<LPARAM>(text));
    if (watch.alive() && counts)
        m_search.take(text, static_cast<int>(found));
    return found;
}

/// The parent of an owner-drawn list hears of changes while they are made: it may search then, or destroy the
/// combo box.
LRESULT CALLBACK ComboCompletion::listProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const auto found = s_lists.find(window);
    if (found == s_lists.end())
        return ::DefWindowProcW(window, message, wParam, lParam);
    const auto [procedure, completion] = found->second;
    if (message == WM_NCDESTROY) {
        if (completion)
            completion->leaveList();
        s_lists.erase(window);
    }
    if (completion && changesItems(message)) {
        const Change change(*completion);
        return ::CallWindowProcW(procedure, window, message, wParam, lParam);
    }
    if (completion && searchesAll(message, wParam, lParam))
        return completion->search(procedure, reinterpret_cast<const wchar_t*>(lParam));
    return ::CallWindowProcW(procedure, window, message, wParam, lParam);
}

} // namespace ovoui::lists
