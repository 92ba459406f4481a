/// Not exported: brings a list's rows into a new order.
#pragma once

#include <ovoui/lists/ListCtrlEx.h>

#include <vector>

namespace ovoui::lists
{

/// Asks the platform's list without the window procedures that stand in front of it: each of these costs some
/// platforms more than the answer, which counts when all rows are asked.
class DirectList
{
public:
    /// `answer` is the structure that the message fills.
    template <class Answer>
    static LRESULT ask(const COVOListCtrlEx& list, UINT message, int row, Answer& answer)
    {
        return send(list, message, row, reinterpret_cast<LPARAM>(&answer));
    }

private:
    static LRESULT send(const COVOListCtrlEx& list, UINT message, int row, LPARAM answer);
};

/// `order` holds every present index once, in the order wanted. Selection, focus and item data go with the
/// rows. The host may hear of changes to item data: false when rows came or went then, which leaves the order
/// as it was, or when the list was destroyed.
bool reorderRows(COVOListCtrlEx& list, const std::vector<int>& order);

/// A row's text in a column, of at most 259 characters, into a buffer that the caller keeps for the next one.
class CellText
{
public:
    LPCWSTR operator()(const COVOListCtrlEx& list, int row, int column);

private:
    wchar_t m_room[260];
};

} // namespace ovoui::lists
