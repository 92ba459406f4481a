/// What the list's tests share: a list in a recording parent, and a drawing of its rows made step by step
/// with the system's own functions, for comparison.
#pragma once

#include <testkit/Desktop.h>
#include <testkit/Picture.h>
#include <testkit/RecordingParent.h>
#include <testkit/Robot.h>

#include <ovoui/lists/ListCtrlEx.h>

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

/// A list that opens what hosts cannot see and counts what it draws.
class List : public COVOListCtrlEx
{
public:
    using COVOListCtrlEx::RepaintSelectedItems;

    void DrawItem(LPDRAWITEMSTRUCT draw) override;

    std::vector<int> drawn;     ///< rows, in the order in which they were drawn
    std::map<int, CRect> given; ///< the rectangle that the platform gave with a row last
};

/// The definition of shortening, one measuring call a step, in a buffer without limits.
std::wstring shortByDefinition(HDC dc, const std::wstring& text, int width, int offset);

/// Draws a swatch square by square. Areas without squares get their left half only.
void drawSwatchByDefinition(HDC dc, DWORD colour, DWORD checkA, DWORD checkB, const CRect& area);

/// What a test knows about its list, for the drawing to compare with.
struct Knowledge
{
    int clientWidth = 0;
    int stateImageWidth = 0;
    std::set<int> colourColumns;
    std::optional<DWORD> entry; ///< of the row; none without row colours
};

/// Draws a row step by step into a context that has the list's font.
void drawRowByDefinition(HDC dc, List& list, int item, const CRect& itemRect, const Knowledge& known);

/// Squares of one colour each, as images.
void fillImages(CImageList& images, int side, std::initializer_list<COLORREF> colours);

/// A list of 400 by 200 pixels with a header, in a parent that is shown on demand.
class ListScene
{
public:
    static constexpr int kWidth = 400;
    static constexpr int kHeight = 200;

    explicit ListScene(DWORD style = 0, DWORD exStyle = 0);
    ~ListScene();

    /// Columns of these widths, and rows of texts "row.column".
    void fill(std::initializer_list<int> widths, int rows);
    void addColumn(const std::wstring& heading, int width, bool isColour = false, int format = LVCFMT_LEFT);

    void show();

    /// The row as the list draws it into memory, and as it should be.
    void expectRowInMemory(int item, const Knowledge& known);
    /// The row as the window shows it.
    void expectRowOnScreen(int item, const Knowledge& known);
    /// Both.
    void expectRow(int item, const Knowledge& known);

    CRect rect(int item, int part);
    CRect itemRect(int item) { return rect(item, LVIR_BOUNDS); }
    /// Where a cell lies: behind the label and the cells before it.
    CRect cell(int item, int column);

    ovo::testkit::RecordingParent parent;
    List list;
    CButton button; ///< something else to give the focus to

private:
    ovo::testkit::Picture drawnByDefinition(int item, const CRect& itemRect, const Knowledge& known);
    DWORD m_exStyle;
};
