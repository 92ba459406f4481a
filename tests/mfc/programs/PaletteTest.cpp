// A list and a menu that draw their items themselves.
#include <testkit/RunningProgram.h>
#include "palette/Resource.h"

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

constexpr COLORREF kCrimson = RGB(220, 20, 60);
constexpr COLORREF kForest = RGB(34, 139, 34);
constexpr COLORREF kOcean = RGB(0, 105, 148);
constexpr auto kMenuClass = L"#32768";

class PaletteProgram : public ::testing::Test
{
protected:
    HWND list() const { return ::GetDlgItem(m_program.main(), IDC_COLOURS); }
    std::wstring chosen() const { return textOf(m_program.main(), IDC_CHOSEN); }

    /// Opens the menu, and again when it is not seen: the display may have raised the main window above it.
    HWND openMenu()
    {
        const auto isSeen = [this] {
            const HWND menu = m_program.shown(kMenuClass);
            return menu && colourAt(menu, inMenu(menu, 0)) == kCrimson &&
                   colourAt(menu, inMenu(menu, 1)) == kForest && colourAt(menu, inMenu(menu, 2)) == kOcean;
        };
        m_program.tryUntil(
            "the menu in its colours", [this] { clickForTheMenu(); }, isSeen);
        return m_program.shown(kMenuClass);
    }

    void clickForTheMenu()
    {
        if (m_program.shown(kMenuClass))
            m_program.key(VK_ESCAPE);
        m_program.waitFor("the menu to go", [this] { return !m_program.shown(kMenuClass); });
        m_program.click(list(), CPoint(120, 50), ovo::testkit::Button::Right);
        // Another click, before this one has been taken, would close what this one opens.
        m_program.waitFor("the menu", [this] { return m_program.shown(kMenuClass) != nullptr; });
    }

    /// The middle of an item, in the menu's own pixels: items of 24 pixels within the same borders.
    static CPoint inMenu(HWND menu, int index)
    {
        const CRect rect = rectOf(menu);
        const int border = (rect.Height() - 3 * 24) / 2;
        CPoint point(rect.left + rect.Width() / 2, rect.top + border + index * 24 + 12);
        ::ScreenToClient(menu, &point);
        return point;
    }

    /// The screen shows a list row by row where drawing it takes long.
    void waitForColour(const std::string& what, CPoint inList, COLORREF colour)
    {
        m_program.waitFor(what, [=, this] { return colourAt(list(), inList) == colour; });
    }

    void close()
    {
        m_program.closeByKeys();
        EXPECT_TRUE(m_program.endsByItself());
    }

    RunningProgram m_program{L"mfc_program_palette"};
};

} // namespace

TEST_F(PaletteProgram, TheListShowsItsColoursInRowsOfTheirOwnHeights)
{
    waitForColour("the first colour", CPoint(20, 20), kCrimson);
    waitForColour("the first row to be 40 pixels high", CPoint(20, 35), kCrimson);
    waitForColour("the second colour", CPoint(20, 50), kForest);
    waitForColour("the third colour", CPoint(20, 70), kOcean);
    waitForColour("none below the last one", CPoint(20, 90), ::GetSysColor(COLOR_WINDOW));
    close();
}

TEST_F(PaletteProgram, AClickChoosesAndMarksARow)
{
    m_program.click(list(), CPoint(90, 70));
    m_program.waitFor("the name", [this] { return chosen() == L"Ocean"; });
    const CPoint besideTheText(150, 62);
    waitForColour("the mark", besideTheText, ::GetSysColor(COLOR_HIGHLIGHT));
    waitForColour("the colour on it", CPoint(20, 70), kOcean);
    m_program.key(VK_UP);
    m_program.waitFor("the other name", [this] { return chosen() == L"Forest"; });
    waitForColour("the mark to go", besideTheText, ::GetSysColor(COLOR_WINDOW));
    close();
}

TEST_F(PaletteProgram, TheMenuShowsItsColoursAndTakesAClick)
{
    const HWND menu = openMenu();
    EXPECT_GE(rectOf(menu).Width(), 90);
    EXPECT_GE(rectOf(menu).Height(), 3 * 24) << "as high as the program says";
    m_program.click(menu, inMenu(menu, 0));
    m_program.waitFor("the name", [this] { return chosen() == L"Crimson"; });
    close();
}

TEST_F(PaletteProgram, TheMenuMarksTheItemOfTheKeyboard)
{
    const HWND menu = openMenu();
    CPoint edge = inMenu(menu, 1);
    edge.y -= 10;
    const auto goToTheSecond = [this] {
        m_program.key(VK_END);
        m_program.key(VK_UP);
    };
    EXPECT_NE(colourAt(menu, edge), ::GetSysColor(COLOR_HIGHLIGHT)) << "nothing is marked before";
    m_program.tryUntil("the mark", goToTheSecond,
                       [&] { return colourAt(menu, edge) == ::GetSysColor(COLOR_HIGHLIGHT); });
    const auto choose = [&] {
        if (!::IsWindow(menu))
            return;
        goToTheSecond();
        m_program.key(VK_RETURN);
    };
    m_program.tryUntil("the name", choose, [this] { return chosen() == L"Forest"; });
    close();
}
