// The pages of the list and of the combo box, used as a person would.
#include "GalleryScene.h"

#include "model/ColourTable.h"
#include "resource.h"
#include <testkit/GuiThread.h>
#include <testkit/Picture.h>
#include <testkit/TemporaryProfile.h>

#include <gtest/gtest.h>

#include <afxcmn.h>

#include <set>

using namespace ovo::testkit;

namespace
{

class GalleryPages : public ::testing::Test
{
protected:
    void setChecked(int id, bool checked)
    {
        const bool isChecked = scene.page().IsDlgButtonChecked(id) == BST_CHECKED;
        if (isChecked != checked)
            robot.click(Spot{scene.control(id)});
    }

    TemporaryProfile profile;
    GalleryScene scene;
    Robot robot;
};

class GalleryLists : public GalleryPages
{
protected:
    GalleryLists() { scene.open(L"lists"); }

    CListCtrl& list(int id) { return static_cast<CListCtrl&>(*CWnd::FromHandle(scene.control(id))); }

    std::vector<std::wstring> texts(int id, int column)
    {
        std::vector<std::wstring> all;
        for (int row = 0; row < list(id).GetItemCount(); ++row)
            all.emplace_back(list(id).GetItemText(row, column).GetString());
        return all;
    }

    /// Of a row that is in view.
    CRect swatch(int row)
    {
        CRect cell;
        list(IDC_LISTS_COLOURS).GetSubItemRect(row, 1, LVIR_BOUNDS, cell);
        return cell;
    }
};

bool isInLocaleOrder(const std::wstring& one, const std::wstring& other)
{
    return ::CompareStringW(LOCALE_USER_DEFAULT, NORM_IGNORECASE, one.c_str(), -1, other.c_str(), -1) ==
           CSTR_LESS_THAN;
}

class GalleryCombos : public GalleryPages
{
protected:
    GalleryCombos()
    {
        scene.open(L"combo");
        setChecked(IDC_COMBO_COMPLETE, false);
    }

    CString text(int id)
    {
        CString found;
        scene.page().GetDlgItemText(id, found);
        return found;
    }

    bool isLogged(const CString& line)
    {
        auto& log = static_cast<CListBox&>(*scene.frame().GetDlgItem(IDC_LOG));
        return log.FindString(-1, line) != LB_ERR;
    }

    /// In place of what is in the field of the plants.
    void typePlant(const wchar_t* plant)
    {
        ::SetFocus(scene.control(IDC_COMBO_PLANT));
        scene.page().SetDlgItemText(IDC_COMBO_PLANT, L"");
        robot.type(plant);
    }
};

} // namespace

TEST_F(GalleryLists, TwoHundredColoursShowTheirSwatches)
{
    CListCtrl& colours = list(IDC_LISTS_COLOURS);
    const std::vector<NamedColour> all = namedColours();
    ASSERT_EQ(all.size(), 200u);
    ASSERT_EQ(colours.GetItemCount(), 200);
    std::set<std::wstring> names;
    for (int row = 0; row < 200; ++row)
        names.insert(colours.GetItemText(row, 0).GetString());
    EXPECT_EQ(names.size(), 200u);
    for (int row = 0; row < 200; row += 9) { // some of each shade
        colours.EnsureVisible(row, FALSE);
        colours.UpdateWindow();
        const CRect cell = swatch(row);
        const NamedColour& expected = all[static_cast<std::size_t>(row)];
        const Picture shown = Picture::ofClient(colours);
        EXPECT_THAT(shown.at(cell.left + 1, cell.top + 1), IsColour(expected.entry & 0xFFFFFF)) << row;
        const bool isOpaque = shown.at(cell.right - 2, cell.top + 1) == (expected.entry & 0xFFFFFF);
        EXPECT_EQ(isOpaque, expected.entry >> 24 == 255) << row;
    }
}

TEST_F(GalleryLists, HeadingsSortAndTheFilterNarrows)
{
    const auto clickHeading = [this] {
        robot.click(Spot{*list(IDC_LISTS_COLOURS).GetHeaderCtrl(), CPoint(20, 5)});
    };
    clickHeading();
    EXPECT_TRUE(std::ranges::is_sorted(texts(IDC_LISTS_COLOURS, 0), isInLocaleOrder));
    clickHeading();
    std::vector<std::wstring> descending = texts(IDC_LISTS_COLOURS, 0);
    std::ranges::reverse(descending);
    EXPECT_TRUE(std::ranges::is_sorted(descending, isInLocaleOrder));

    scene.page().SetDlgItemText(IDC_LISTS_FILTER, L"aZure");
    const std::vector<std::wstring> found = texts(IDC_LISTS_COLOURS, 0);
    EXPECT_EQ(found.size(), 10u);
    for (const std::wstring& name : found)
        EXPECT_TRUE(name.ends_with(L" azure"));
    scene.page().SetDlgItemText(IDC_LISTS_FILTER, L"");
    EXPECT_EQ(list(IDC_LISTS_COLOURS).GetItemCount(), 200);
}

TEST_F(GalleryLists, ProcessesHaveNumbersAtTheRightAndStateImages)
{
    CListCtrl& processes = list(IDC_LISTS_PROCESSES);
    LVCOLUMN column{};
    column.mask = LVCF_FMT;
    ASSERT_TRUE(processes.GetColumn(1, &column));
    EXPECT_EQ(column.fmt & LVCFMT_JUSTIFYMASK, LVCFMT_RIGHT);
    EXPECT_TRUE(processes.GetImageList(LVSIL_STATE));
    std::set<UINT> states;
    for (int row = 0; row < processes.GetItemCount(); ++row)
        states.insert(processes.GetItemState(row, LVIS_STATEIMAGEMASK));
    EXPECT_EQ(states.size(), 3u);
    EXPECT_FALSE(states.contains(0));
}

TEST_F(GalleryLists, AMillionRowsScrollToTheLast)
{
    CListCtrl& million = list(IDC_LISTS_MILLION);
    EXPECT_EQ(million.GetItemCount(), 1000000);
    const CString first = million.GetItemText(0, 0);
    robot.click(Spot{million, CPoint(30, 40)}).key(VK_END);
    EXPECT_EQ(million.GetNextItem(-1, LVNI_FOCUSED), 999999);
    CRect last;
    ASSERT_TRUE(million.GetItemRect(999999, &last, LVIR_BOUNDS));
    CRect client;
    million.GetClientRect(&client);
    EXPECT_EQ(CRect(last & client).Height(), last.Height());
    EXPECT_NE(million.GetItemText(999999, 0), first);
}

TEST_F(GalleryCombos, CompletionCanBeChosen)
{
    for (const bool completes : {true, false}) {
        setChecked(IDC_COMBO_COMPLETE, completes);
        typePlant(L"La");
        EXPECT_EQ(text(IDC_COMBO_PLANT), completes ? L"Lavender" : L"La");
    }
}

TEST_F(GalleryCombos, AnyTextCanBeConfirmed)
{
    for (const bool any : {false, true}) {
        setChecked(IDC_COMBO_ANY_TEXT, any);
        scene.page().SetDlgItemText(IDC_COMBO_RESULT, L"-");
        typePlant(L"weed");
        robot.key(VK_RETURN);
        EXPECT_EQ(text(IDC_COMBO_RESULT), any ? L"accepted: weed" : L"-");
    }
}

TEST_F(GalleryCombos, ReturnAndArrowsCanBeToldAndAreLoggedByName)
{
    for (const bool told : {false, true}) {
        setChecked(IDC_COMBO_NOTIFY, told);
        typePlant(L"Rose");
        robot.key(VK_UP).key(VK_DOWN).key(VK_RETURN);
        for (const wchar_t* name : {L"OVOCBN_RETURN", L"OVOCBN_UP", L"OVOCBN_DOWN"})
            EXPECT_EQ(isLogged(name), told);
        for (const wchar_t* name : {L"CBN_SELCHANGE", L"CBN_SELENDOK"})
            EXPECT_TRUE(isLogged(name));
    }
}

TEST_F(GalleryCombos, SearchInsideCanBeChosen)
{
    const auto hits = [] {
        struct Looked
        {
            bool found = false;
        } looked;
        ::EnumThreadWindows(
            ::GetCurrentThreadId(),
            [](HWND window, LPARAM parameter) -> BOOL {
                const HWND inside = ::FindWindowExW(window, nullptr, L"ListBox", nullptr);
                if (inside && ::IsWindowVisible(inside) && (::GetWindowLongW(window, GWL_STYLE) & WS_POPUP))
                    reinterpret_cast<Looked*>(parameter)->found = true;
                return TRUE;
            },
            reinterpret_cast<LPARAM>(&looked));
        return looked.found;
    };
    for (const bool inside : {true, false}) {
        setChecked(IDC_COMBO_INSIDE, inside);
        typePlant(L"ar"); // Carnation, Daffodil has none
        EXPECT_EQ(hits(), inside);
    }
}
