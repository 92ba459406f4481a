// What a completing combo box does when the host asks for it: search inside, history, cue, looks of items.
#include <ovoui/lists/ComboBox.h>
#include <ovoui/frame/DcScopes.h>
#include <ovoui/frame/Lifeline.h>
#include <ovoui/lists/ComboCommands.h>
#include <ovoui/lists/ComboHistory.h>
#include <ovoui/lists/ComboItems.h>
#include <ovoui/lists/ComboSearch.h>
#include <ovoui/lists/OwnChange.h>
#include <ovoui/lists/core/ComboRules.h>

#include <utility>

using namespace ovoui::lists;

namespace
{

constexpr UINT kWithFocusToo = TRUE;
constexpr auto kField = static_cast<UINT>(-1); ///< in place of an item's number

/// What an item is known by: its text and the host's data.
using KnownItem = std::pair<std::wstring, DWORD_PTR>;

std::vector<KnownItem> knownItems(const CComboBox& combo)
{
    std::vector<KnownItem> items;
    CString text;
    const int count = combo.GetCount();
    for (int item = 0; item < count; ++item) {
        combo.GetLBText(item, text);
        items.emplace_back(text.GetString(), combo.GetItemData(item));
    }
    return items;
}

/// All items of an open list; null for one that is closed.
void repaint(CWnd* list)
{
    if (list)
        list->Invalidate(FALSE);
}

} // namespace

// Keys

/// True when a key is done with before the control sees it.
bool COVOComboBox::helperTakes(WPARAM virtualKey)
{
    if (m_search && m_search->takesKey(virtualKey))
        return true;
    if (stepsThroughItems(static_cast<unsigned>(virtualKey)))
        m_editedInList = false;
    return forgetsItem(virtualKey);
}

BOOL COVOComboBox::OnDropdown()
{
    m_editedInList = false;
    if (m_search)
        m_search->end();
    return FALSE;
}

// Search inside

void COVOComboBox::SearchInside(bool search)
{
    m_search = search ? std::make_unique<ComboSearch>(*this) : nullptr;
}

/// The list of the hits is in the middle of a click, and the host is to be told.
void COVOComboBox::takeHit(int item)
{
    m_clickedHit = item;
    PostMessage(WM_COMMAND, kHit, 0);
}

void COVOComboBox::onHit()
{
    const int item = std::exchange(m_clickedHit, -1);
    if (m_search)
        m_search->end();
    if (item < 0 || item >= GetCount())
        return;
    SetCurSel(item);
    carryOut(afterChoice());
}

void COVOComboBox::onFindHits()
{
    if (m_search)
        m_search->findAgain();
}

/// Hits are items by their indices, which mean others now. They are looked for again when the host has done
/// all that it wanted.
void COVOComboBox::itemsChange()
{
    m_clickedHit = -1;
    if (m_search && m_search->doubts())
        PostMessage(WM_COMMAND, kFindHits, 0);
}

void COVOComboBox::showTyped(const std::wstring& text)
{
    const OwnChange change(*this, m_completing);
    SetCurSel(-1);
    SetWindowText(text.c_str());
    SetEditSel(static_cast<int>(text.size()), static_cast<int>(text.size()));
}

// History

void COVOComboBox::KeepHistory(LPCWSTR section, LPCWSTR entry, int limit)
{
    m_history = std::make_unique<ComboHistory>(*this, section, entry, limit);
    m_history->bringBack();
}

/// The list is about to close, and the host is to be told first.
void COVOComboBox::rememberAccepted()
{
    if (!m_history)
        return;
    m_accepted.push_back(editText());
    PostMessage(WM_COMMAND, kRemember, 0);
}

void COVOComboBox::onRemember()
{
    const Lifeline::Watch watch(*this);
    for (const std::wstring& text : std::exchange(m_accepted, {}))
        if (watch.alive() && m_history)
            m_history->use(text);
}

/// Whether the key has removed the selected text of the history.
bool COVOComboBox::forgetsItem(WPARAM virtualKey)
{
    const auto key = static_cast<unsigned>(virtualKey);
    if (!forgetsText(key, m_history != nullptr, m_editedInList, GetDroppedState() != FALSE))
        return false;
    const int item = GetCurSel();
    const Lifeline::Watch watch(*this);
    if (item == -1 || !m_history->forget(item))
        return false;
    if (watch.alive())
        SetCurSel(std::min(item, GetCount() - 1));
    return true;
}

int COVOComboBox::itemWith(const std::wstring& text) const
{
    int item = -1;
    for (int next; (next = FindStringExact(item, text.c_str())) > item; item = next)
        if (itemText(next) == text)
            return next;
    return -1;
}

/// Changes the list under a text and selections that stay. The parent of an owner-drawn list is called, and
/// may destroy the combo box.
template <class Change, class IndexAfter>
void COVOComboBox::changeItems(const Change& change, const IndexAfter& indexAfter)
{
    const OwnChange own(*this, m_completing);
    const Lifeline::Watch watch(*this);
    const int selection = GetCurSel();
    const std::wstring text = editText();
    const DWORD marked = GetEditSel();
    const std::wstring saved = m_savedSelection == -1 ? m_savedText : itemText(m_savedSelection);
    change();
    if (!watch.alive())
        return;
    m_savedSelection = indexAfter(m_savedSelection);
    m_savedText = m_savedSelection == -1 ? saved : std::wstring();
    SetCurSel(indexAfter(selection));
    SetWindowText(text.c_str());
    SetEditSel(LOWORD(marked), HIWORD(marked));
}

void COVOComboBox::insertItem(int place, const std::wstring& text)
{
    changeItems([&] { InsertString(place, text.c_str()); },
                [place](int index) { return indexAfterInsertion(index, place); });
}

void COVOComboBox::moveItem(int from, int to)
{
    if (from == to)
        return;
    const std::wstring text = itemText(from);
    const DWORD_PTR data = GetItemData(from);
    const ItemLook look = m_items->looks.at(from);
    const Lifeline::Watch watch(*this);
    changeItems(
        [&] {
            SetItemData(from, 0); // or the owner of the item would be told to free it
            DeleteString(static_cast<UINT>(from));
            if (!watch.alive())
                return;
            InsertString(to, text.c_str());
            SetItemData(to, data);
            m_items->looks.set(to, look);
        },
        [=](int index) { return indexAfterMove(index, from, to); });
}

void COVOComboBox::removeItem(int item)
{
    changeItems([&] { DeleteString(static_cast<UINT>(item)); },
                [item](int index) { return indexAfterRemoval(index, item); });
}

// Cue

bool COVOComboBox::CueText(const std::wstring& text)
{
    CWnd* const edit = GetWindow(GW_CHILD);
    return edit && edit->SendMessage(EM_SETCUEBANNER, kWithFocusToo, reinterpret_cast<LPARAM>(text.c_str()));
}

// Looks of items

void COVOComboBox::SetItemColour(int item, DWORD colour)
{
    ItemLook look = m_items->looks.at(item);
    look.colour = colour;
    setLook(item, look);
}

void COVOComboBox::SetItemImage(int item, int image)
{
    ItemLook look = m_items->looks.at(item);
    look.image = image;
    setLook(item, look);
}

/// In an open list the item is painted anew; all are when the host has drawn them so far, and when the first
/// colour moves all texts.
void COVOComboBox::setLook(int item, const ItemLook& look)
{
    if (!m_hWnd || item < 0 || item >= GetCount())
        return;
    CWnd* const list = openList();
    const bool othersStay = list && m_items->asked && (!look.colour || m_items->looks.haveColours());
    m_items->looks.set(item, look);
    drawItems();
    if (m_search)
        m_search->repaint();
    RECT place{};
    if (!othersStay)
        repaint(list);
    else if (list->SendMessage(LB_GETITEMRECT, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(&place)) !=
             LB_ERR)
        list->InvalidateRect(&place, FALSE);
}

/// Null while the list is closed.
CWnd* COVOComboBox::openList() const
{
    COMBOBOXINFO info{};
    info.cbSize = sizeof info;
    const bool isOpen = m_hWnd && GetComboBoxInfo(&info) && ::IsWindowVisible(info.hwndList);
    return isOpen ? CWnd::FromHandle(info.hwndList) : nullptr;
}

void COVOComboBox::SetImageList(CImageList* images)
{
    m_items->images = images;
    m_items->asked = true;
    setListItemHeight();
    repaint(openList());
    if (m_search)
        m_search->repaint();
}

/// From now on the control draws the items, and not the host.
void COVOComboBox::drawItems()
{
    if (!std::exchange(m_items->asked, true))
        setListItemHeight();
}

void COVOComboBox::setListItemHeight()
{
    if (m_hWnd && (GetStyle() & CBS_OWNERDRAWFIXED))
        SetItemHeight(0, static_cast<UINT>(listItemHeight()));
}

/// The platform leaves the height of items that it does not draw alone.
LRESULT COVOComboBox::OnFont(WPARAM, LPARAM)
{
    const Lifeline::Watch watch(*this);
    const LRESULT result = Default();
    if (watch.alive() && m_items->asked)
        setListItemHeight();
    return result;
}

LRESULT COVOComboBox::OnAddItem(WPARAM, LPARAM)
{
    const Lifeline::Watch watch(*this);
    itemsChange();
    const LRESULT item = Default();
    if (watch.alive())
        m_items->looks.inserted(static_cast<int>(item));
    return item;
}

/// The list tells where the last name has gone only. Items with the same text and the same data are not told
/// apart: nobody could.
LRESULT COVOComboBox::OnAddFiles(WPARAM, LPARAM)
{
    const Lifeline::Watch watch(*this);
    itemsChange();
    if (m_items->looks.empty() || !itemsHaveTexts())
        return Default();
    const ItemLooks looks = m_items->looks;
    const std::vector<KnownItem> before = knownItems(*this);
    const LRESULT last = Default();
    if (watch.alive())
        m_items->looks = looks.amongMore(before, knownItems(*this));
    return last;
}

/// When the last colour goes, the texts of the others move back to where it was.
LRESULT COVOComboBox::OnDeleteItem(WPARAM wParam, LPARAM)
{
    const Lifeline::Watch watch(*this);
    itemsChange();
    const LRESULT left = Default();
    if (left == CB_ERR || !watch.alive())
        return left;
    ItemLooks& looks = m_items->looks;
    const bool hadColour = looks.at(static_cast<int>(wParam)).colour.has_value();
    looks.deleted(static_cast<int>(wParam));
    if (hadColour && !looks.haveColours())
        repaint(openList());
    return left;
}

LRESULT COVOComboBox::OnResetItems(WPARAM, LPARAM)
{
    itemsChange();
    m_items->looks.clear();
    return Default();
}

int COVOComboBox::listItemHeight()
{
    CClientDC dc(this);
    const ovoui::frame::SelectedTool font(dc, GetFont());
    return m_items->heightFor(dc);
}

/// The platform measures the field, too, which shows texts only.
void COVOComboBox::MeasureItem(LPMEASUREITEMSTRUCT item)
{
    if (m_items->asked && item->itemID != kField)
        item->itemHeight = static_cast<UINT>(listItemHeight());
}

void COVOComboBox::DrawItem(LPDRAWITEMSTRUCT item)
{
    if (m_items->asked && (GetStyle() & CBS_HASSTRINGS))
        drawListItem(*item, static_cast<int>(item->itemID), {});
}

void COVOComboBox::drawListItem(const DRAWITEMSTRUCT& draw, int item, const std::wstring& foldedFound)
{
    if (item >= 0 && item < GetCount())
        m_items->draw(*CDC::FromHandle(draw.hDC),
                      {draw.rcItem, itemText(item), m_items->looks.at(item), draw.itemState, foldedFound});
}
