// The dialog with the list of modules: filter, order, marks, copying.
#include <testkit/Desktop.h>
#include <testkit/ImportPatch.h>
#include <testkit/Robot.h>
#include <testkit/TestApp.h>

#include <ovoui/sysinfo/LoadedModules.h>
#include <ovoui/sysinfo/ModuleListDlg.h>

#include <ovouires/resource.h>

#include <ovocor/Text.h>

#include <gtest/gtest.h>

#include <afxole.h>

#include <algorithm>

using namespace ovo::testkit;

namespace
{

/// The dialog as a host shows it, modeless so that a test can look at it.
class ModuleList : public ::testing::Test
{
protected:
    ModuleList()
    {
        dialog.create();
        present(dialog);
        list = static_cast<CListCtrl*>(dialog.GetDlgItem(IDC_MODULES_LIST));
    }

    std::vector<std::wstring> column(int index) const
    {
        std::vector<std::wstring> texts;
        for (int row = 0; row < list->GetItemCount(); ++row)
            texts.emplace_back(list->GetItemText(row, index));
        return texts;
    }
    /// All texts of each row, in lower case.
    std::vector<std::wstring> rows() const
    {
        std::vector<std::wstring> joined(static_cast<std::size_t>(list->GetItemCount()));
        for (int i = 0; i < list->GetHeaderCtrl()->GetItemCount(); ++i)
            std::ranges::transform(joined, column(i), joined.begin(),
                                   [](const std::wstring& row, const std::wstring& text) {
                                       return row + L'\n' + lowercase(text);
                                   });
        return joined;
    }
    void filter(const std::wstring& text)
    {
        Robot().click(Spot{dialog.GetDlgItem(IDC_MODULES_FILTER)->m_hWnd}).type(text);
    }
    void clickHeading(int index)
    {
        CHeaderCtrl* const header = list->GetHeaderCtrl();
        CRect rect;
        header->GetItemRect(index, &rect);
        Robot().click(Spot{*header, CPoint(rect.left + 12, rect.CenterPoint().y)});
    }
    std::wstring copied(UINT command)
    {
        dialog.SendMessage(WM_COMMAND, command, 0);
        EXPECT_TRUE(::OpenClipboard(dialog));
        const HANDLE data = ::GetClipboardData(CF_UNICODETEXT);
        const std::wstring text = static_cast<const wchar_t*>(::GlobalLock(data));
        ::GlobalUnlock(data);
        ::CloseClipboard();
        ::OleFlushClipboard();
        return text;
    }

    struct Dialog : CModuleListDlg
    {
        void create() { Create(IDD_MODULE_LIST); }
    } dialog;
    CListCtrl* list = nullptr;
};

} // namespace

TEST_F(ModuleList, ShowsEveryModuleByName)
{
    dialog.SendMessage(WM_COMMAND, IDC_MODULES_REFRESH, 0); // to show the first dialog loads one more
    const std::vector<std::wstring> names = column(0);
    EXPECT_EQ(names.size(), loadedModules().size());
    EXPECT_TRUE(std::ranges::is_sorted(
        names, [](const std::wstring& a, const std::wstring& b) { return lowercase(a) < lowercase(b); }));
}

TEST_F(ModuleList, TypingLeavesTheModulesThatFit)
{
    const int all = list->GetItemCount();
    const auto fits = [](const std::wstring& row) { // the program's own may lie in a folder that fits
        return row.find(L"ovo") != std::wstring::npos && row.find(L"dll") != std::wstring::npos;
    };
    const auto fitting = std::ranges::count_if(rows(), fits);
    filter(L"OVO dll");
    EXPECT_LT(list->GetItemCount(), all);
    EXPECT_GE(list->GetItemCount(), 3);
    EXPECT_EQ(list->GetItemCount(), fitting);
    EXPECT_TRUE(std::ranges::all_of(rows(), fits));
    CString count;
    dialog.GetDlgItemText(IDC_MODULES_COUNT, count);
    EXPECT_EQ(count, stringPrintf(L"%d of %d modules", list->GetItemCount(), all).c_str());
    filter(L"no such module");
    EXPECT_EQ(list->GetItemCount(), 0);
}

TEST_F(ModuleList, AHeadingSortsAndTurnsTheOrderRound)
{
    const std::vector<std::wstring> up = column(0);
    clickHeading(0);
    EXPECT_TRUE(std::ranges::equal(column(0), std::vector(up.rbegin(), up.rend())));
    HDITEM item{};
    item.mask = HDI_FORMAT;
    list->GetHeaderCtrl()->GetItem(0, &item);
    EXPECT_TRUE(item.fmt & HDF_SORTDOWN);
    clickHeading(1);
    const std::vector<std::wstring> remarks = column(1);
    EXPECT_TRUE(std::ranges::is_sorted(remarks));
    list->GetHeaderCtrl()->GetItem(1, &item);
    EXPECT_TRUE(item.fmt & HDF_SORTUP);
    list->GetHeaderCtrl()->GetItem(0, &item);
    EXPECT_FALSE(item.fmt & (HDF_SORTUP | HDF_SORTDOWN));
}

TEST_F(ModuleList, UnusualModulesAreMarked)
{
    const HMODULE plain = ::LoadLibraryW(L"sysinfo_plain.dll");
    Robot().click(Spot{dialog.GetDlgItem(IDC_MODULES_REFRESH)->m_hWnd});
    filter(L"sysinfo_plain");
    ASSERT_EQ(list->GetItemCount(), 1);
    EXPECT_EQ(list->GetItemText(0, 1), L"no version record");
    NMLVCUSTOMDRAW draw{};
    draw.nmcd.hdr = {list->m_hWnd, IDC_MODULES_LIST, static_cast<UINT>(NM_CUSTOMDRAW)};
    draw.nmcd.dwDrawStage = CDDS_ITEMPREPAINT;
    draw.clrText = RGB(1, 2, 3);
    dialog.SendMessage(WM_NOTIFY, IDC_MODULES_LIST, reinterpret_cast<LPARAM>(&draw));
    EXPECT_NE(draw.clrText, RGB(1, 2, 3));
    ::FreeLibrary(plain);
}

TEST_F(ModuleList, CopiesWhatIsShownOrSelected)
{
    filter(L"ovoui.dll");
    ASSERT_EQ(list->GetItemCount(), 1);
    std::vector<LoadedModule> one = loadedModules();
    std::erase_if(one, [](const LoadedModule& module) { return lowercase(module.name) != L"ovoui.dll"; });
    EXPECT_EQ(copied(ID_MODULES_COPY_TEXT), modulesAsText(one));
    EXPECT_EQ(copied(ID_MODULES_COPY_MARKDOWN), modulesAsMarkdown(one));
    EXPECT_EQ(copied(ID_MODULES_COPY_JSON), modulesAsJson(one));
    dialog.SetDlgItemText(IDC_MODULES_FILTER, L"");
    list->SetItemState(2, LVIS_SELECTED, LVIS_SELECTED);
    const std::wstring text = copied(ID_MODULES_COPY_TEXT);
    EXPECT_EQ(std::ranges::count(text, L'\n'), 2);
    EXPECT_NE(text.find(column(0)[2] + L"\t"), std::wstring::npos);
}

TEST_F(ModuleList, TheButtonOpensTheMenuOfForms)
{
    int items = 0;
    CRect button;
    CRect menu;
    dialog.GetDlgItem(IDC_MODULES_COPY)->GetWindowRect(&button);
    Robot()
        .click(Spot{dialog.GetDlgItem(IDC_MODULES_COPY)->m_hWnd})
        .waitFor("the menu", [] { return shownMenu() != nullptr; })
        .then([&] {
            items =
                ::GetMenuItemCount(reinterpret_cast<HMENU>(::SendMessageW(shownMenu(), MN_GETHMENU, 0, 0)));
            ::GetWindowRect(shownMenu(), &menu);
        })
        .key(VK_ESCAPE)
        .waitFor("no menu", [] { return shownMenu() == nullptr; });
    EXPECT_EQ(items, 3);
    EXPECT_NEAR(menu.left, button.left, 4);
    EXPECT_NEAR(menu.top, button.bottom, 4);
}

TEST_F(ModuleList, TheMenuOfFormsReadsFromTheRightWhereTheDialogDoes)
{
    dialog.ModifyStyleEx(0, WS_EX_LAYOUTRTL, SWP_FRAMECHANGED);
    CRect button;
    CRect menu;
    DWORD style = 0;
    const HWND copy = dialog.GetDlgItem(IDC_MODULES_COPY)->m_hWnd;
    Robot()
        .click(Spot{copy})
        .waitFor("the menu", [] { return shownMenu() != nullptr; })
        .then([&] {
            ::GetWindowRect(copy, &button);
            ::GetWindowRect(shownMenu(), &menu);
            style = static_cast<DWORD>(::GetWindowLongPtrW(shownMenu(), GWL_EXSTYLE));
        })
        .key(VK_ESCAPE)
        .waitFor("no menu", [] { return shownMenu() == nullptr; });
    EXPECT_NEAR(menu.right, button.right, 4);
    EXPECT_NEAR(menu.top, button.bottom, 4);
    EXPECT_TRUE(style & WS_EX_LAYOUTRTL);
}

TEST_F(ModuleList, ALetterInTheListLeadsToTheNextNameWithIt)
{
    const std::vector<std::wstring> names = column(0);
    const auto begins = [](const std::wstring& name) { return lowercase(name).starts_with(L"t"); };
    const auto next = std::find_if(names.begin() + 1, names.end(), begins);
    ASSERT_NE(next, names.end()) << "this program's own name begins so";
    const int row = static_cast<int>(next - names.begin());
    list->SetFocus();
    Robot().type(L"t");
    EXPECT_EQ(list->GetNextItem(-1, LVNI_FOCUSED), row);
    EXPECT_EQ(list->GetNextItem(-1, LVNI_SELECTED), row);
    Robot().type(L"~"); // no name has it, wherever it stands
    EXPECT_EQ(list->GetNextItem(-1, LVNI_FOCUSED), row);
}

TEST_F(ModuleList, ASearchForSomethingElseThanATextFindsNothing)
{
    NMLVFINDITEM search{};
    search.hdr = {list->m_hWnd, IDC_MODULES_LIST, static_cast<UINT>(LVN_ODFINDITEM)};
    const auto found = [&] {
        return dialog.SendMessage(WM_NOTIFY, IDC_MODULES_LIST, reinterpret_cast<LPARAM>(&search));
    };
    search.lvfi.flags = LVFI_NEARESTXY;
    EXPECT_EQ(found(), -1);
    search.lvfi.flags = LVFI_STRING | LVFI_PARTIAL;
    EXPECT_EQ(found(), -1) << "no text";
    search.lvfi.psz = L"";
    search.iStart = -1;
    EXPECT_EQ(found(), 0) << "every name begins so";
}

TEST_F(ModuleList, AFailureIsShownAndTheListStays)
{
    const ImportPatch patch(
        L"ovoui.dll", "CreateToolhelp32Snapshot",
        reinterpret_cast<void*>(+[](DWORD, DWORD) -> HANDLE { return INVALID_HANDLE_VALUE; }));
    const int rows = list->GetItemCount();
    dialog.SendMessage(WM_COMMAND, IDC_MODULES_REFRESH, 0);
    ASSERT_EQ(TestApp::instance().boxes().size(), 1u);
    EXPECT_EQ(list->GetItemCount(), rows);
}

TEST_F(ModuleList, TheListGrowsWithTheDialog)
{
    CRect before;
    list->GetWindowRect(&before);
    CRect window;
    dialog.GetWindowRect(&window);
    dialog.SetWindowPos(nullptr, 0, 0, window.Width() + 80, window.Height() + 60, SWP_NOMOVE | SWP_NOZORDER);
    CRect after;
    list->GetWindowRect(&after);
    EXPECT_EQ(after.Size(), before.Size() + CSize(80, 60));
}

TEST(ModuleListDialog, ShownAgainItGrowsAsTheFirstTime)
{
    CModuleListDlg dialog;
    for (int time = 1; time <= 2; ++time) {
        CRect before;
        CRect after;
        auto story = Robot()
                         .waitFor("the dialog", [] { return shownDialog() != nullptr; })
                         .then([&] {
                             CWnd* const list = dialog.GetDlgItem(IDC_MODULES_LIST);
                             list->GetWindowRect(&before);
                             CRect window;
                             dialog.GetWindowRect(&window);
                             dialog.SetWindowPos(nullptr, 0, 0, window.Width() + 40, window.Height() + 30,
                                                 SWP_NOMOVE | SWP_NOZORDER);
                             list->GetWindowRect(&after);
                         })
                         .key(VK_ESCAPE)
                         .start();
        EXPECT_EQ(dialog.DoModal(), IDCANCEL);
        EXPECT_EQ(after.Size(), before.Size() + CSize(40, 30)) << "time " << time;
    }
}
