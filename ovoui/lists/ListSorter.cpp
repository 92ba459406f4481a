#include <ovoui/lists/ListSorter.h>

#include <ovoui/lists/LocaleOrder.h>
#include <ovoui/lists/RowData.h>
#include <ovoui/lists/core/HeadingRule.h>
#include <ovoui/lists/core/NumberText.h>
#include <ovoui/lists/core/RowOrder.h>

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

std::vector<int> orderByLocale(const COVOListCtrlEx& list, int column, bool ascending)
{
    LocaleOrder texts;
    texts.reserve(static_cast<std::size_t>(list.GetItemCount()));
    eachText(list, column, [&](LPCWSTR text) { texts.add(text); });
    return texts.order(ascending);
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
    hear(list);
    m_list = &list;
}

void COVOListSorter::Detach()
{
    stopHearing();
}

void COVOListSorter::left()
{
    m_list = nullptr;
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

/// When the parent has been told of the click.
void COVOListSorter::heard(UINT message, WPARAM, LPARAM lParam)
{
    if (message != WM_NOTIFY)
        return;
    const auto& header = *reinterpret_cast<const NMHDR*>(lParam);
    if (header.code == static_cast<UINT>(HDN_ITEMCLICKW))
        headingClicked(reinterpret_cast<const NMHEADERW&>(header).iItem);
}

void COVOListSorter::headingClicked(int column)
{
    Sort(column, sortsAscending(column, m_column, m_ascending));
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
