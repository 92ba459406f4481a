// Painting a page of 50 rows by 8 columns, and scrolling a list without storage.
#include "BenchLists.h"

#include "support/InTurns.h"

#include <ovoui/lists/core/Checkerboard.h>
#include <ovoui/lists/core/EntryColours.h>

#include <catch2/catch.hpp>

#include <vector>

namespace
{

constexpr int kRows = 50;
constexpr int kColumns = 8;
constexpr int kPaintings = 101;
constexpr int kWidth = 104;
constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | LVS_REPORT;
constexpr DWORD kEntry = 0x80000000 | RGB(90, 160, 220);
const CRect kPlace(0, 0, kColumns* kWidth + 20, 760);

bool isColour(int column)
{
    return column == 3 || column == 5;
}

void repaint(HWND window)
{
    ::RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_NOCHILDREN);
}

/// The fewest calls that draw the same rows: everything is known beforehand.
class HandMade : public CListCtrl
{
public:
    HandMade()
    {
        for (int i = 0; i < kRows * kColumns; ++i)
            m_texts.push_back(cellText(i / kColumns, i % kColumns));
    }

protected:
    void DrawItem(LPDRAWITEMSTRUCT draw) override
    {
        const HDC dc = draw->hDC;
        RECT row = draw->rcItem;
        row.right = kPlace.right;
        ::SetBkColor(dc, ::GetSysColor(COLOR_WINDOW));
        ::ExtTextOutW(dc, 0, 0, ETO_OPAQUE, &row, nullptr, 0, nullptr);
        for (int column = 0; column < kColumns; ++column) {
            RECT cell{column * kWidth, row.top, (column + 1) * kWidth, row.bottom};
            if (isColour(column))
                drawSwatch(dc, cell);
            cell.left += column ? 6 : 2;
            cell.right -= column ? 6 : 2;
            const std::wstring& text = m_texts[draw->itemID * kColumns + static_cast<std::size_t>(column)];
            ::DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &cell, 0x0924);
            ::SetBkMode(dc, OPAQUE);
            ::SetTextColor(dc, ::GetSysColor(COLOR_WINDOWTEXT));
        }
    }

private:
    static void drawSwatch(HDC dc, const RECT& cell)
    {
        const auto colours = ovoui::lists::coloursOf(kEntry);
        const ovoui::lists::Checkerboard squares({cell.left, cell.top, cell.right, cell.bottom});
        const HGDIOBJ old = ::SelectObject(dc, ::GetStockObject(DC_BRUSH));
        const auto fill = [dc](const ovoui::frame::Box& box) {
            ::PatBlt(dc, box.left, box.top, box.width(), box.height(), PATCOPY);
        };
        ::SetDCBrushColor(dc, colours.solid);
        fill(squares.plain());
        ::SetDCBrushColor(dc, colours.overBlack);
        fill(squares.board());
        ::SetDCBrushColor(dc, colours.overWhite);
        squares.eachSecond(fill);
        ::SelectObject(dc, old);
        ::SetBkMode(dc, TRANSPARENT);
        ::SetTextColor(dc, colours.text);
    }

    std::vector<std::wstring> m_texts;
};

void fill(COVOListCtrlEx& list, bool swatches)
{
    list.UseRowColours(swatches);
    for (int column = 0; column < kColumns; ++column) {
        list.AddColumn(L"c", column, -1, swatches && isColour(column), kBenchColumn, LVCFMT_LEFT);
        list.SetColumnWidth(column, kWidth);
    }
    for (int row = 0; row < kRows; ++row)
        for (int column = 0; column < kColumns; ++column)
            list.AddItem(row, column, cellText(row, column), kEntry, -1);
}

void fillPlain(CListCtrl& list)
{
    for (int column = 0; column < kColumns; ++column)
        list.InsertColumn(column, L"c", LVCFMT_LEFT, kWidth);
    for (int row = 0; row < kRows; ++row) {
        list.InsertItem(row, cellText(row, 0).c_str());
        for (int column = 1; column < kColumns; ++column)
            list.SetItemText(row, column, cellText(row, column).c_str());
    }
}

/// A list of any length, none of which is stored.
class Unstored : public COVOListCtrlEx
{
public:
    Unstored(CWnd& parent, int rows)
    {
        Create(kStyle | LVS_OWNERDATA, kPlace, &parent, 1);
        for (int column = 0; column < kColumns; ++column) {
            AddColumn(L"c", column, -1, false, kBenchColumn, LVCFMT_LEFT);
            SetColumnWidth(column, kWidth);
        }
        SetItemCountEx(rows);
    }

    void pageThrough()
    {
        for (const WPARAM direction : {SB_PAGEDOWN, SB_PAGEUP}) {
            SendMessage(WM_VSCROLL, direction, 0);
            UpdateWindow();
        }
    }

protected:
    afx_msg void OnGetDispInfo(NMHDR* header, LRESULT* result)
    {
        LVITEM& item = reinterpret_cast<NMLVDISPINFO*>(header)->item;
        if (item.mask & LVIF_TEXT)
            ::lstrcpynW(item.pszText, cellText(item.iItem, item.iSubItem).c_str(), item.cchTextMax);
        *result = 0;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Unstored, COVOListCtrlEx)
    ON_NOTIFY_REFLECT(LVN_GETDISPINFO, &Unstored::OnGetDispInfo)
END_MESSAGE_MAP()

} // namespace

// Each list is in a window of its own, which is in front while it is measured.

TEST_CASE("painting a page of 50 rows by 8 columns, two of them swatches")
{
    ListParent handParent;
    HandMade byHand;
    byHand.Create(kStyle | LVS_OWNERDRAWFIXED, kPlace, &handParent, 1);
    fillPlain(byHand);
    ListParent parent;
    COVOListCtrlEx list;
    list.Create(kStyle, kPlace, &parent, 2);
    fill(list, true);
    InTurns turns;
    turns.add(
        "the fewest calls, by hand [baseline]", [&] { repaint(byHand); }, [&] { handParent.bringForward(); });
    turns.add(
        "COVOListCtrlEx [at most 1.3]", [&] { repaint(list); }, [&] { parent.bringForward(); });
    turns.run("painting a page of 50 rows by 8 columns, two of them swatches", kPaintings);
}

TEST_CASE("painting a page of 50 rows by 8 columns of plain text")
{
    ListParent plainParent;
    CListCtrl plain;
    plain.Create(kStyle, kPlace, &plainParent, 1);
    fillPlain(plain);
    ListParent parent;
    COVOListCtrlEx list;
    list.Create(kStyle, kPlace, &parent, 2);
    fill(list, false);
    InTurns turns;
    turns.add(
        "the list view's own drawing [baseline]", [&] { repaint(plain); },
        [&] { plainParent.bringForward(); });
    turns.add(
        "COVOListCtrlEx [at most 1.3]", [&] { repaint(list); }, [&] { parent.bringForward(); });
    turns.run("painting a page of 50 rows by 8 columns of plain text", kPaintings);
}

TEST_CASE("scrolling by a page in a list without storage")
{
    ListParent fewParent;
    Unstored few(fewParent, 1000);
    few.EnsureVisible(500, FALSE);
    ListParent manyParent;
    Unstored many(manyParent, 1000000);
    many.EnsureVisible(500000, FALSE);
    InTurns turns;
    turns.add(
        "1000 rows [baseline]", [&] { few.pageThrough(); }, [&] { fewParent.bringForward(); });
    turns.add(
        "1000000 rows [at most 1.2]", [&] { many.pageThrough(); }, [&] { manyParent.bringForward(); });
    turns.run("scrolling by a page in a list without storage", kPaintings);
}
