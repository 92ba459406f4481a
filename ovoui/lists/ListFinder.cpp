#include <ovoui/lists/ListFinder.h>

#include <ovoui/frame/AskedKey.h>
#include <ovoui/frame/TellParent.h>
#include <ovoui/lists/EmphasisedText.h>
#include <ovoui/lists/RangeInput.h>
#include <ovoui/lists/RowData.h>
#include <ovoui/lists/core/FindRules.h>

#include <commctrl.h>

using namespace ovoui::lists;

namespace
{

std::optional<FindMessage> findMessage(UINT message)
{
    switch (message) {
    case WM_KEYDOWN:
        return FindMessage::KeyDown;
    case WM_CHAR:
        return FindMessage::Character;
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
        return FindMessage::Pressed;
    case WM_KILLFOCUS:
        return FindMessage::FocusGone;
    default:
        return std::nullopt;
    }
}

bool isHeld(int key)
{
    return ::GetKeyState(key) < 0;
}

/// The host may be asked for each text, and may destroy the list then: the rest is not looked at.
bool hasText(const COVOListCtrlEx& list, const Lifeline::Watch& watch, int row, int columns,
             const std::wstring& foldedText)
{
    CellText reader;
    for (int column = 0; column < columns && watch.alive(); ++column)
        if (folded(reader(list, row, column)).find(foldedText) != std::wstring::npos)
            return true;
    return false;
}

/// Asks the parent, since the list knows none of its rows.
int askedRow(const COVOListCtrlEx& list, const std::wstring& text, int focused, Search how)
{
    const int count = list.GetItemCount();
    const std::optional<int> start = startForParent(count, focused, how);
    if (!start)
        return -1;
    NMLVFINDITEM wanted{};
    wanted.hdr = {list.m_hWnd, static_cast<UINT_PTR>(list.GetDlgCtrlID()), static_cast<UINT>(LVN_ODFINDITEM)};
    wanted.iStart = *start;
    wanted.lvfi.flags = LVFI_STRING | LVFI_PARTIAL | LVFI_WRAP;
    wanted.lvfi.psz = text.c_str();
    const HWND parent = ::GetParent(list);
    if (!parent)
        return -1;
    // What the parent raises comes out here instead of counting as the first row.
    const auto row = static_cast<int>(
        ovoui::frame::sendToHost(parent, WM_NOTIFY, wanted.hdr.idFrom, reinterpret_cast<LPARAM>(&wanted)));
    return row < count ? row : -1;
}

/// Deselects the rows but one, and asks after each change whether to go on. A list that knows none of its
/// rows takes a message for all of them, since a million may be selected.
template <class GoOn>
bool deselectAllBut(COVOListCtrlEx& list, int row, const GoOn& goOn)
{
    constexpr UINT kFew = 16; // each looks at the rows up to the next one; all at once looks at all rows
    if ((list.GetStyle() & LVS_OWNERDATA) && list.GetSelectedCount() > kFew) {
        const RangeInput range(list);
        list.SetItemState(-1, 0, LVIS_SELECTED);
        return goOn();
    }
    for (int item = -1; (item = list.GetNextItem(item, LVNI_SELECTED)) != -1;) {
        if (item != row)
            list.SetItemState(item, 0, LVIS_SELECTED);
        if (!goOn())
            return false;
    }
    return true;
}

} // namespace

bool containsText(const std::wstring& text, const std::wstring& part)
{
    return folded(text).find(folded(part)) != std::wstring::npos;
}

COVOListFinder::COVOListFinder()
    : m_state(std::make_unique<FindState>())
{
}

COVOListFinder::~COVOListFinder()
{
    Detach();
}

void COVOListFinder::Attach(COVOListCtrlEx& list)
{
    hear(list);
    m_list = &list;
}

void COVOListFinder::Detach()
{
    stopHearing();
}

/// A list whose window is another's now may be gone, and of one that is being deleted nothing but the window
/// is left.
void COVOListFinder::left()
{
    if (dynamic_cast<COVOListCtrlEx*>(CWnd::FromHandlePermanent(m_window)) == m_list)
        keep({});
    *m_state = {};
    m_list = nullptr;
}

const std::wstring& COVOListFinder::Text() const
{
    return m_state->text;
}

// Keys

bool COVOListFinder::takes(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result)
{
    if (message == WM_GETDLGCODE && !Text().empty() && ovoui::frame::asksForKey(lParam, VK_ESCAPE)) {
        result = DLGC_WANTALLKEYS;
        return true;
    }
    return takesKey(message, wParam);
}

bool COVOListFinder::takesKey(UINT message, WPARAM wParam)
{
    const std::optional<FindMessage> known = findMessage(message);
    const auto input =
        known ? findInputOf(*known, static_cast<unsigned>(wParam), isHeld(VK_SHIFT), isHeld(VK_CONTROL))
              : std::nullopt;
    if (!input)
        return false;
    if (input->onlyAsked)
        return afterFindKey(*m_state, input->key, input->character).taken;
    return key(input->key, input->character);
}

/// Whether the key is taken.
bool COVOListFinder::key(FindKey key, wchar_t character)
{
    const FindEffect effect = afterFindKey(*m_state, key, character);
    if (effect.search == Search::None) {
        keep(effect.state);
        return effect.taken;
    }
    const Lifeline::Watch watch(m_lifeline);
    const HWND window = m_window;
    if (!search(effect.state, effect.search) && watch.alive() && m_window == window)
        ::MessageBeep(MB_OK);
    return effect.taken;
}

// Searching

bool COVOListFinder::Find(const std::wstring& text)
{
    if (!text.empty())
        return m_list && search({text, false}, Search::FromHere);
    if (m_list)
        keep({});
    return m_list != nullptr;
}

bool COVOListFinder::FindNext(bool forward)
{
    return m_list && !m_state->text.empty() &&
           search(FindState(*m_state), forward ? Search::Next : Search::Previous);
}

/// The host may be asked for texts and for the row, and hears of the selection: list and finder may be gone
/// after each of these. A search that the host begins meanwhile is the one that counts.
bool COVOListFinder::search(const FindState& state, Search how)
{
    const Lifeline::Watch watch(m_lifeline);
    COVOListCtrlEx& list = *m_list;
    const HWND window = m_window;
    const Lifeline::Watch listWatch(list);
    const FindState before = *m_state;
    const int row = rowWith(state.text, how);
    if (row < 0 || !watch.alive() || m_window != window || *m_state != before || !listWatch.alive())
        return false;
    keep(state);
    return goTo(row);
}

int COVOListFinder::rowWith(const std::wstring& text, Search how) const
{
    COVOListCtrlEx& list = *m_list;
    const int focused = list.GetNextItem(-1, LVNI_FOCUSED);
    if (list.GetStyle() & LVS_OWNERDATA)
        return askedRow(list, text, focused, how);
    const Lifeline::Watch watch(list);
    const std::wstring part = folded(text);
    const CHeaderCtrl* const header = list.GetHeaderCtrl();
    const int columns = header ? header->GetItemCount() : 1;
    const int count = list.GetItemCount();
    return findRow(count, focused, how, [&](int row) {
        const bool found = hasText(list, watch, row, columns, part);
        if (!watch.alive() || list.GetItemCount() != count)
            return Look::Stop;
        return found ? Look::Yes : Look::No;
    });
}

void COVOListFinder::keep(const FindState& state)
{
    const bool otherText = state.text != m_state->text;
    *m_state = state;
    if (otherText)
        m_list->EmphasiseText(state.text);
}

/// Makes the row the only selected one, unless rows come or go meanwhile.
bool COVOListFinder::goTo(int row)
{
    COVOListCtrlEx& list = *m_list;
    const HWND window = m_window;
    const Lifeline::Watch listWatch(list);
    const int count = list.GetItemCount();
    const Lifeline::Watch watch(m_lifeline);
    const FindState state = *m_state;
    const auto isAsBefore = [&] {
        return watch.alive() && m_window == window && *m_state == state && listWatch.alive() &&
               list.GetItemCount() == count;
    };
    if (!deselectAllBut(list, row, isAsBefore))
        return false;
    list.SetItemState(row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    if (!isAsBefore())
        return false;
    list.SetSelectionMark(row);
    return list.EnsureVisible(row, FALSE) != FALSE;
}
