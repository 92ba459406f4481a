// A dialog application with every common control.
#include <testkit/RunningProgram.h>
#include "controls/Resource.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>

using namespace ovo::testkit;

namespace
{

class Controls : public ::testing::Test
{
protected:
    HWND item(int id) const { return ::GetDlgItem(m_program.main(), id); }
    std::wstring text(int id) const { return textOf(item(id)); }

    /// What the program has gathered from its controls, by the name before the colon.
    std::wstring shown(const std::wstring& name)
    {
        std::wistringstream lines(text(IDC_SUMMARY));
        for (std::wstring line; std::getline(lines, line);)
            if (line.starts_with(name + L": "))
                return line.substr(name.size() + 2, line.find(L'\r') - name.size() - 2);
        return L"?";
    }

    void show()
    {
        ::SendMessageW(item(IDC_SUMMARY), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L""));
        m_program.tryUntil(
            "the summary", [this] { m_program.click(item(IDC_SHOW)); },
            [this] { return !text(IDC_SUMMARY).empty(); });
    }

    void close()
    {
        m_program.click(item(IDCANCEL));
        EXPECT_TRUE(m_program.endsByItself());
    }

    RunningProgram m_program{L"mfc_program_controls"};
};

} // namespace

TEST_F(Controls, ShowsWhatItStartsWith)
{
    EXPECT_EQ(textOf(m_program.main()), L"Controls");
    show();
    EXPECT_EQ(shown(L"Person"), L", 30, female");
    EXPECT_EQ(shown(L"Member"), L"no");
    EXPECT_EQ(shown(L"Country"), L"Austria");
    EXPECT_EQ(shown(L"Volume"), L"3 of 3");
    EXPECT_EQ(shown(L"Page"), L"0");
    EXPECT_EQ(shown(L"Born"), L"1979-05-17");
    EXPECT_EQ(shown(L"Day"), L"2009-03-19");
    EXPECT_EQ(shown(L"Key"), L"K with 2");
    EXPECT_EQ(shown(L"Address"), L"10.0.0.1");
    close();
}

TEST_F(Controls, TakesTextNumbersAndMarks)
{
    m_program.click(item(IDC_PERSON));
    m_program.type(L"Ada");
    m_program.waitFor("the name", [this] { return text(IDC_PERSON) == L"Ada"; });
    const CRect arrows = rectOf(item(IDC_AGE_SPIN));
    m_program.click(item(IDC_AGE_SPIN), CPoint(arrows.Width() / 2, arrows.Height() / 4));
    m_program.waitFor("the age", [this] { return text(IDC_AGE) == L"31"; });
    m_program.click(item(IDC_MEMBER));
    m_program.click(item(IDC_MALE));
    m_program.waitFor("the mark",
                      [this] { return ::SendMessageW(item(IDC_MALE), BM_GETCHECK, 0, 0) == BST_CHECKED; });
    show();
    EXPECT_EQ(shown(L"Person"), L"Ada, 31, male");
    EXPECT_EQ(shown(L"Member"), L"yes");
    close();
}

TEST_F(Controls, TakesChoicesFromLists)
{
    m_program.click(item(IDC_COUNTRY));
    m_program.waitFor("the list of countries",
                      [this] { return ::SendMessageW(item(IDC_COUNTRY), CB_GETDROPPEDSTATE, 0, 0) != 0; });
    m_program.key(VK_DOWN);
    m_program.key(VK_RETURN);
    m_program.waitFor("the title", [this] { return textOf(m_program.main()) == L"Controls - Belgium"; });
    m_program.click(item(IDC_SPORTS), CPoint(20, 22));
    m_program.click(item(IDC_TREES), CPoint(60, 8));
    m_program.key(VK_DOWN);
    m_program.click(item(IDC_BOOKS), CPoint(20, 25));
    show();
    EXPECT_EQ(shown(L"Country"), L"Belgium");
    EXPECT_EQ(shown(L"Sport"), L"Rowing");
    EXPECT_EQ(shown(L"Tree"), L"Oak");
    EXPECT_EQ(shown(L"Book"), L"Emma of 1815");
    close();
}

TEST_F(Controls, TakesPositionsDatesKeysAndAddresses)
{
    m_program.click(item(IDC_VOLUME), CPoint(20, 10));
    m_program.key(VK_HOME);
    m_program.key(VK_RIGHT, 7);
    m_program.waitFor("the level", [this] { return ::SendMessageW(item(IDC_LEVEL), PBM_GETPOS, 0, 0) == 7; });
    m_program.click(item(IDC_MONTH), CPoint(76, 84));
    m_program.click(item(IDC_BORN), CPoint(10, 10));
    m_program.key(VK_UP);
    m_program.click(item(IDC_SHORTCUT));
    m_program.chord(VK_CONTROL, 'J');
    m_program.click(item(IDC_ADDRESS), CPoint(8, 10));
    m_program.key(VK_HOME);
    m_program.key(VK_DELETE, 2);
    m_program.type(L"92.68.1.7");
    show();
    EXPECT_EQ(shown(L"Volume"), L"7 of 7");
    EXPECT_EQ(shown(L"Day"), L"2009-03-10");
    const std::set<std::wstring> oneUp{L"1980-05-17", L"1979-06-17", L"1979-05-18"};
    EXPECT_TRUE(oneUp.contains(shown(L"Born"))) << "the order of the parts is the user's";
    EXPECT_EQ(shown(L"Key"), L"J with 2");
    EXPECT_EQ(shown(L"Address"), L"92.68.1.7");
    close();
}

TEST_F(Controls, ATabDecidesWhatCanBeUsed)
{
    m_program.click(item(IDC_PAGES), CPoint(62, 12));
    m_program.waitFor("the tree to be disabled", [this] { return !::IsWindowEnabled(item(IDC_TREES)); });
    show();
    EXPECT_EQ(shown(L"Page"), L"1");
    m_program.click(item(IDC_PAGES), CPoint(12, 12));
    m_program.waitFor("the tree to be enabled",
                      [this] { return ::IsWindowEnabled(item(IDC_TREES)) != FALSE; });
    close();
}

TEST_F(Controls, RefusesAWrongNumberAndGoesBackToIt)
{
    m_program.click(item(IDC_AGE), CPoint(8, 8));
    m_program.key(VK_END);
    m_program.type(L"0");
    m_program.waitFor("the age", [this] { return text(IDC_AGE) == L"300"; });
    m_program.key(VK_RETURN);
    const HWND box = m_program.window(L"mfc_program_controls");
    bool told = false;
    for (HWND child = ::GetWindow(box, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT))
        told = told || textOf(child) == L"Enter a whole number between 0 and 120.";
    EXPECT_TRUE(told);
    m_program.key(VK_RETURN);
    m_program.waitFor("the box to go", [&] { return !::IsWindow(box); });
    EXPECT_EQ(text(IDC_SUMMARY), L"");
    m_program.type(L"45"); // over the wrong number, which is selected
    m_program.waitFor("the other age", [this] { return text(IDC_AGE) == L"45"; });
    show();
    EXPECT_EQ(shown(L"Person"), L", 45, female");
    close();
}
