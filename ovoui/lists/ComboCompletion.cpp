#include <ovoui/lists/ComboCompletion.h>

#include <ovoui/lists/ComboBox.h>

#include <commctrl.h>

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

bool ComboCompletion::watchesList()
{
    if (m_list)
        return true;
    COMBOBOXINFO info{};
    info.cbSize = sizeof info;
    if (m_combo.GetComboBoxInfo(&info) &&
        ::SetWindowSubclass(info.hwndList, &listProcedure, reinterpret_cast<UINT_PTR>(this),
                            reinterpret_cast<DWORD_PTR>(this)))
        m_list = info.hwndList;
    return m_list != nullptr;
}

void ComboCompletion::leaveList()
{
    if (m_list)
        ::RemoveWindowSubclass(m_list, &listProcedure, reinterpret_cast<UINT_PTR>(this));
    m_list = nullptr;
    m_search.forget();
}

/// The parent of an owner-drawn list hears of changes while they are made: it may search then, or destroy the
/// combo box.
LRESULT CALLBACK ComboCompletion::listProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                                UINT_PTR, DWORD_PTR completion)
{
    auto* const self = reinterpret_cast<ComboCompletion*>(completion);
    const bool changes = changesItems(message);
    if (changes)
        self->m_search.forget();
    if (message == WM_NCDESTROY)
        self->leaveList();
    const Lifeline::Watch watch(self->m_lifeline);
    const LRESULT result = ::DefSubclassProc(window, message, wParam, lParam);
    if (changes && watch.alive())
        self->m_search.forget();
    return result;
}

} // namespace ovoui::lists
