#include <ovoui/lists/RowData.h>

namespace ovoui::lists
{

namespace
{

/// Holds back the list's drawing, and has it painted anew.
class Hold
{
public:
    explicit Hold(CListCtrl& list)
        : m_list(list)
    {
        m_list.SetRedraw(FALSE);
    }
    ~Hold()
    {
        m_list.SetRedraw(TRUE);
        m_list.Invalidate();
    }
    Hold(const Hold&) = delete;
    Hold& operator=(const Hold&) = delete;

private:
    CListCtrl& m_list;
};

std::vector<LPARAM> dataOf(const CListCtrl& list, std::size_t count)
{
    std::vector<LPARAM> data(count);
    for (std::size_t row = 0; row < count; ++row)
        data[row] = static_cast<LPARAM>(list.GetItemData(static_cast<int>(row)));
    return data;
}

/// Where each row goes.
std::vector<LPARAM> placesOf(const std::vector<int>& order)
{
    std::vector<LPARAM> places(order.size());
    for (std::size_t place = 0; place < order.size(); ++place)
        places[static_cast<std::size_t>(order[place])] = static_cast<LPARAM>(place);
    return places;
}

int CALLBACK comparePlaces(LPARAM one, LPARAM other, LPARAM)
{
    return one < other ? -1 : one > other;
}

struct ByData
{
    std::vector<LPARAM> places; ///< at the item data
};

int CALLBACK compareData(LPARAM one, LPARAM other, LPARAM context)
{
    const auto& places = reinterpret_cast<const ByData*>(context)->places;
    return comparePlaces(places[static_cast<std::size_t>(one)], places[static_cast<std::size_t>(other)], 0);
}

/// The places by item data, when the data are the numbers from 0 on, each once, as AddItem makes them; else
/// empty.
std::vector<LPARAM> placesByData(const std::vector<LPARAM>& data, const std::vector<LPARAM>& places)
{
    constexpr LPARAM kNone = -1;
    std::vector<LPARAM> result(data.size(), kNone);
    for (std::size_t row = 0; row < data.size(); ++row) {
        const auto at = static_cast<std::size_t>(data[row]);
        if (data[row] < 0 || at >= result.size() || result[at] != kNone)
            return {};
        result[at] = places[row];
    }
    return result;
}

} // namespace

// The platform sorts by item data only. Where these are not unique, the places stand in for them meanwhile.
void reorderRows(CListCtrl& list, const std::vector<int>& order)
{
    const Hold hold(list);
    const std::vector<LPARAM> data = dataOf(list, order.size());
    const std::vector<LPARAM> places = placesOf(order);
    const ByData byData{placesByData(data, places)};
    if (!byData.places.empty()) {
        list.SortItems(&compareData, reinterpret_cast<DWORD_PTR>(&byData));
        return;
    }
    for (std::size_t row = 0; row < order.size(); ++row)
        list.SetItemData(static_cast<int>(row), static_cast<DWORD_PTR>(places[row]));
    list.SortItems(&comparePlaces, 0);
    for (std::size_t place = 0; place < order.size(); ++place)
        list.SetItemData(static_cast<int>(place),
                         static_cast<DWORD_PTR>(data[static_cast<std::size_t>(order[place])]));
}

LPCWSTR CellText::operator()(const CListCtrl& list, int row, int column)
{
    LVITEM item{};
    item.iSubItem = column;
    item.pszText = m_room;
    item.cchTextMax = static_cast<int>(std::size(m_room));
    m_room[0] = 0;
    list.SendMessage(LVM_GETITEMTEXT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    return item.pszText && item.pszText != LPSTR_TEXTCALLBACKW ? item.pszText : L"";
}

} // namespace ovoui::lists
