#include <ovoui/lists/RowData.h>

#include <ovoui/frame/Exceptions.h>
#include <ovoui/frame/Lifeline.h>
#include <ovoui/frame/RedrawHold.h>

#include <functional>
#include <unordered_map>

using ovoui::frame::RedrawHold;

namespace ovoui::lists
{

LRESULT DirectList::send(const COVOListCtrlEx& list, UINT message, int row, LPARAM answer)
{
    return const_cast<COVOListCtrlEx&>(list).DefWindowProc(message, static_cast<WPARAM>(row), answer);
}

namespace
{

LPARAM dataOf(const COVOListCtrlEx& list, int row)
{
    LVITEM item{};
    item.mask = LVIF_PARAM;
    item.iItem = row;
    DirectList::ask(list, LVM_GETITEMW, 0, item);
    return item.lParam;
}

/// What the platform sorts by.
struct SortRow
{
    LPARAM data; ///< the host's
    int place;   ///< where the row goes
};

/// By row.
std::vector<SortRow> sortRowsOf(const COVOListCtrlEx& list, const std::vector<int>& order)
{
    std::vector<SortRow> rows(order.size());
    for (std::size_t place = 0; place < order.size(); ++place)
        rows[static_cast<std::size_t>(order[place])].place = static_cast<int>(place);
    for (std::size_t row = 0; row < rows.size(); ++row)
        rows[row].data = dataOf(list, static_cast<int>(row));
    return rows;
}

using Places = std::unordered_map<LPARAM, int>;

/// The places by item data; empty when rows have the same data.
Places placesByData(const std::vector<SortRow>& rows)
{
    Places places;
    places.reserve(rows.size());
    for (const SortRow& row : rows)
        if (!places.emplace(row.data, row.place).second)
            return {};
    return places;
}

/// The places at the item data, when these are the numbers from 0 on, each once, as AddItem makes them; else
/// empty.
std::vector<int> placesByNumber(const std::vector<SortRow>& rows)
{
    constexpr int kNone = -1;
    std::vector<int> places(rows.size(), kNone);
    for (const SortRow& row : rows) {
        const auto at = static_cast<std::size_t>(row.data); // behind all rows when the data is negative
        if (at >= places.size() || places[at] != kNone)
            return {};
        places[at] = row.place;
    }
    return places;
}

int CALLBACK compareByNumber(LPARAM one, LPARAM other, LPARAM context)
{
    const auto* const places = reinterpret_cast<const int*>(context);
    return places[one] - places[other];
}

int CALLBACK compareByData(LPARAM one, LPARAM other, LPARAM context)
{
    const auto& places = *reinterpret_cast<const Places*>(context);
    return places.at(one) - places.at(other);
}

/// While it lives, the data of each row is the address of its SortRow. The host hears of these changes, and
/// may do anything: each row that is still there gets its own data back.
class StandIns
{
public:
    StandIns(CListCtrl& list, const std::vector<SortRow>& rows)
        : m_list(list)
        , m_watch(list)
        , m_rows(rows)
    {
    }
    ~StandIns()
    {
        frame::dropping([this] { giveBack(); }); // an exception may be on its way already
    }
    StandIns(const StandIns&) = delete;
    StandIns& operator=(const StandIns&) = delete;

    /// False when rows came or went, or the list was destroyed.
    bool set()
    {
        for (std::size_t row = 0; row < m_rows.size(); ++row) {
            m_list.SetItemData(static_cast<int>(row), reinterpret_cast<DWORD_PTR>(&m_rows[row]));
            if (!m_watch.alive() || m_list.GetItemCount() != static_cast<int>(m_rows.size()))
                return false;
        }
        return true;
    }

    static int CALLBACK compare(LPARAM one, LPARAM other, LPARAM)
    {
        return reinterpret_cast<const SortRow*>(one)->place - reinterpret_cast<const SortRow*>(other)->place;
    }

private:
    void giveBack() const
    {
        for (int item = 0; m_watch.alive() && item < m_list.GetItemCount(); ++item) {
            const auto* const row = reinterpret_cast<const SortRow*>(m_list.GetItemData(item));
            if (!std::less<>()(row, m_rows.data()) && std::less<>()(row, m_rows.data() + m_rows.size()))
                m_list.SetItemData(item, static_cast<DWORD_PTR>(row->data));
        }
    }

    CListCtrl& m_list;
    const Lifeline::Watch m_watch;
    const std::vector<SortRow>& m_rows;
};

} // namespace

// The platform sorts by item data only. Where rows have the same, others stand in for them meanwhile.
bool reorderRows(COVOListCtrlEx& list, const std::vector<int>& order)
{
    if (order.size() < 2)
        return true;
    const RedrawHold hold(list, RedrawHold::By::ControlThenAll);
    const std::vector<SortRow> rows = sortRowsOf(list, order);
    if (const std::vector<int> numbers = placesByNumber(rows); !numbers.empty())
        return list.SortItems(&compareByNumber, reinterpret_cast<DWORD_PTR>(numbers.data())) != FALSE;
    if (const Places places = placesByData(rows); !places.empty())
        return list.SortItems(&compareByData, reinterpret_cast<DWORD_PTR>(&places)) != FALSE;
    StandIns standIns(list, rows);
    return standIns.set() && list.SortItems(&StandIns::compare, 0);
}

LPCWSTR CellText::operator()(const COVOListCtrlEx& list, int row, int column)
{
    LVITEM item{};
    item.iSubItem = column;
    item.pszText = m_room;
    item.cchTextMax = static_cast<int>(std::size(m_room));
    m_room[0] = 0;
    DirectList::ask(list, LVM_GETITEMTEXTW, row, item);
    return item.pszText && item.pszText != LPSTR_TEXTCALLBACKW ? item.pszText : L"";
}

} // namespace ovoui::lists
