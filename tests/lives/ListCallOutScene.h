/// A list whose host gives texts when it is asked for them, and raises what is armed.
#pragma once

#include "CallOutScene.h"
#include "RaisingParent.h"

#include <ovoui/lists/ListCtrlEx.h>

/// Two columns, "Name" and "Text".
void addColumns(COVOListCtrlEx& list);

/// Gives the texts that the list does not have. Those of the second column fall from row to row, and stay
/// with their rows.
class ListHost : public RaisingParent
{
public:
    ListHost();

    int asked = 0; ///< so many texts

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    void giveText(NMLVDISPINFOW& info);
    /// The row that has the text; -1 when none has.
    LRESULT rowWith(const NMLVFINDITEMW& wanted) const;
};

/// Three rows "row 0" to "row 2"; a virtual list, with `style` LVS_OWNERDATA, has none of its own. The first
/// one is selected.
class ListCallOutScene : public CallOutScene
{
protected:
    static constexpr int kRows = 3;
    static constexpr int kWidth = 50; ///< of the columns, which is less than the texts have

    explicit ListCallOutScene(DWORD style = 0);

    /// As the header does.
    void notifyOfHeading(UINT code, int column);
    /// The first of the rows as they stand.
    std::wstring firstRow() const { return list.GetItemText(0, 0).GetString(); }

    ListHost host;
    COVOListCtrlEx list;
};
