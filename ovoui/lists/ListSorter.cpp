#include <ovoui/lists/ListSorter.h>

#include <ovoui/lists/RowData.h>
#include <ovoui/lists/core/NumberText.h>
#include <ovoui/lists/core/RowOrder.h>
#include <ovoui/lists/core/SortKeys.h>

#include <commctrl.h>
#include <oleauto.h>

#include <limits>

using namespace ovoui::lists;

namespace
{

constexpr double kNoValue = -std::numeric_limits<double>::infinity();

wchar_t localeSign(LCTYPE what, wchar_t otherwise)
{
    wchar_t text[8] = {};
    return ::GetLocaleInfoW(LOCALE_USER_DEFAULT, what, text, static_cast<int>(std::size(text))) ? text[0]
                                                                                                : otherwise;
}

/// Calls `take(text)` with the text of each row, until the host, who may be asked for it, destroys the list.
template <class Take>
void eachText(const COVOListCtrlEx& list, int column, const Take& take)
{
    CellText reader;
    const Lifeline::Watch watch(list);
    const int count = list.GetItemCount();
    for (int row = 0; row < count; ++row) {
        const LPCWSTR text = reader(list, row, column);
        if (!watch.alive())
            return;
        take(text);
    }
}

/// What rows are compared by, made once for each row.
template <class Key, class Make>
std::vector<Key> keysOf(const COVOListCtrlEx& list, int column, Make make)
{
    std::vector<Key> keys;
    keys.reserve(static_cast<std::size_t>(list.GetItemCount()));
    eachText(list, column, [&](LPCWSTR text) { keys.push_back(make(text)); });
    return keys;
}

/// Bytes that sort as texts do in the user's locale.
class LocaleKeys
{
public:
    /// Until the next call.
    std::string_view operator()(LPCWSTR text)
    {
        int size = map(text);
        if (size == 0) {
            m_room.resize(static_cast<std::size_t>(
                std::max(1, ::LCMapStringW(LOCALE_USER_DEFAULT, LCMAP_SORTKEY | NORM_IGNORECASE, text, -1,
                                           nullptr, 0))));
            size = map(text);
        }
        return {m_room.data(), static_cast<std::size_t>(size)};
    }

private:
    /// 0 when there is not room enough.
    int map(LPCWSTR text)
    {
        return ::LCMapStringW(LOCALE_USER_DEFAULT, LCMAP_SORTKEY | NORM_IGNORECASE, text, -1,
                              reinterpret_cast<LPWSTR>(m_room.data()), static_cast<int>(m_room.size()));
    }

    std::vector<char> m_room = std::vector<char>(512);
};

std::vector<int> orderByLocale(const COVOListCtrlEx& list, int column, bool ascending)
{
    constexpr std::size_t kUsualKey = 32; // bytes
    LocaleKeys keyOf;
    SortKeys keys;
    const auto count = static_cast<std::size_t>(list.GetItemCount());
    keys.reserve(count, count * kUsualKey);
    eachText(list, column, [&](LPCWSTR text) { keys.add(keyOf(text)); });
    return keys.order(ascending);
}

double dateIn(LPCWSTR text)
{
    DATE date = 0;
    return SUCCEEDED(::VarDateFromStr(const_cast<LPOLESTR>(text), LOCALE_USER_DEFAULT, 0, &date)) ? date
                                                                                                  : kNoValue;
}

template <class Key>
std::vector<int> orderBy(const std::vector<Key>& keys, bool ascending)
{
    const auto key = [&keys](int row) -> const Key& { return keys[static_cast<std::size_t>(row)]; };
    return orderOfRows(static_cast<int>(keys.size()), [&](int row, int other) {
        return ascending ? key(row) < key(other) : key(other) < key(row);
    });
}

} // namespace

COVOListSorter::COVOListSorter() = default;

COVOListSorter::~COVOListSorter()
{
    Detach();
}

void COVOListSorter::Attach(COVOListCtrlEx& list)
{
    Detach();
    m_list = &list;
    m_window = list.m_hWnd;
    ::SetWindowSubclass(m_window, &listProcedure, reinterpret_cast<UINT_PTR>(this),
                        reinterpret_cast<DWORD_PTR>(this));
}

void COVOListSorter::Detach()
{
    if (m_window)
        ::RemoveWindowSubclass(m_window, &listProcedure, reinterpret_cast<UINT_PTR>(this));
    m_list = nullptr;
    m_window = nullptr;
    m_column = -1;
}

void COVOListSorter::SetKind(int column, Kind kind)
{
    m_kinds[column] = kind;
}

void COVOListSorter::SetCompare(int column, Compare compare)
{
    m_compares[column] = std::move(compare);
    SetKind(column, Kind::Custom);
}

COVOListSorter::Kind COVOListSorter::kindOf(int column) const
{
    const auto found = m_kinds.find(column);
    return found == m_kinds.end() ? Kind::Text : found->second;
}

/// The sorter may be destroyed or attached elsewhere while the list and its parent handle the click.
LRESULT CALLBACK COVOListSorter::listProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                               UINT_PTR, DWORD_PTR sorter)
{
    auto* const self = reinterpret_cast<COVOListSorter*>(sorter);
    if (message == WM_NCDESTROY) {
        self->Detach();
        return ::DefSubclassProc(window, message, wParam, lParam);
    }
    int clicked = -1;
    if (message == WM_NOTIFY) {
        const auto& header = *reinterpret_cast<const NMHDR*>(lParam);
        if (header.code == static_cast<UINT>(HDN_ITEMCLICKW))
            clicked = reinterpret_cast<const NMHEADERW&>(header).iItem;
    }
    const Lifeline::Watch watch(self->m_lifeline);
    const LRESULT result = ::DefSubclassProc(window, message, wParam, lParam);
    if (clicked >= 0 && watch.alive() && self->m_window == window)
        self->headingClicked(clicked);
    return result;
}

void COVOListSorter::headingClicked(int column)
{
    Sort(column, column != m_column || !m_ascending);
}

bool COVOListSorter::Sort(int column, bool ascending)
{
    LVCOLUMN known{};
    known.mask = LVCF_WIDTH;
    if (!m_list || !m_list->GetColumn(column, &known) || (m_list->GetStyle() & LVS_OWNERDATA))
        return false;
    COVOListCtrlEx& list = *m_list;
    const Lifeline::Watch listWatch(list);
    const int count = list.GetItemCount();
    const Lifeline::Watch watch(m_lifeline);
    const std::vector<int> order = orderOf(column, ascending);
    if (!watch.alive() || !listWatch.alive() || list.GetItemCount() != count || m_list != &list)
        return false;
    if (!reorderRows(list, order) || !watch.alive() || m_list != &list)
        return false;
    m_column = column;
    m_ascending = ascending;
    showArrow();
    return true;
}

std::vector<int> COVOListSorter::orderOf(int column, bool ascending) const
{
    switch (kindOf(column)) {
    case Kind::Number: {
        const wchar_t decimal = localeSign(LOCALE_SDECIMAL, L'.');
        const wchar_t group = localeSign(LOCALE_STHOUSAND, L',');
        return orderBy(
            keysOf<double>(*m_list, column,
                           [=](LPCWSTR text) { return numberIn(text, decimal, group).value_or(kNoValue); }),
            ascending);
    }
    case Kind::Date:
        return orderBy(keysOf<double>(*m_list, column, &dateIn), ascending);
    case Kind::Custom:
        return orderByHost(column, ascending);
    case Kind::Text:
        break;
    }
    return orderByLocale(*m_list, column, ascending);
}

/// The host's comparison may empty or destroy the list: from then on all rows are equal.
std::vector<int> COVOListSorter::orderByHost(int column, bool ascending) const
{
    const auto found = m_compares.find(column);
    const Compare compare = found == m_compares.end() ? Compare() : found->second;
    COVOListCtrlEx& list = *m_list;
    const Lifeline::Watch watch(list);
    const int count = list.GetItemCount();
    return orderOfRows(count, [&, ascending](int row, int other) {
        if (!compare || !watch.alive() || list.GetItemCount() != count)
            return false;
        const int result = compare(list, row, other);
        return ascending ? result < 0 : result > 0;
    });
}

/// The parent hears of each change, and may destroy list and sorter.
void COVOListSorter::showArrow()
{
    const HWND header = ListView_GetHeader(m_window);
    const int sorted = m_column;
    const int arrow = m_ascending ? HDF_SORTUP : HDF_SORTDOWN;
    for (int i = 0; i < Header_GetItemCount(header); ++i) {
        HDITEM item{};
        item.mask = HDI_FORMAT;
        if (!Header_GetItem(header, i, &item))
            continue;
        const int before = item.fmt;
        item.fmt = (before & ~(HDF_SORTUP | HDF_SORTDOWN)) | (i == sorted ? arrow : 0);
        if (item.fmt != before)
            Header_SetItem(header, i, &item);
    }
}
