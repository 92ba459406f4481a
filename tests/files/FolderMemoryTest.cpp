// Where a dialog begins: default folders, remembered ones, places.
#include "HostDialog.h"

#include "mfc/cdlg/FakeClassicDialog.h"
#include "mfc/cdlg/FakeShellDialog.h"
#include <testkit/TemporaryProfile.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

constexpr GUID kPictures{0x6f4f9a11, 0x1c2d, 0x4e3f, {0x90, 0xa1, 0xb2, 0xc3, 0xd4, 0xe5, 0xf6, 0x07}};
constexpr wchar_t kEntry[] = L"{6F4F9A11-1C2D-4E3F-90A1-B2C3D4E5F607}";

/// Shows the dialog and gives the folder that it begins in.
std::wstring beginningOf(HostDialog& dialog)
{
    std::wstring folder;
    auto answering =
        whenAsked().then([&] { folder = dialog.GetFolderPath().GetString(); }).key(VK_ESCAPE).start();
    dialog.DoModal();
    return folder;
}

} // namespace

class FolderMemory : public testing::Test
{
protected:
    TemporaryFiles files{L"a.txt", L"below\\deep.txt"};
    TemporaryProfile profile;
};

TEST_F(FolderMemory, BothBeginInTheDefaultFolder)
{
    for (const Kind kind : {Kind::Classic, Kind::NewStyle}) {
        HostDialog dialog(kind);
        dialog.SetDefaultFolder(files.path(L"below"));
        EXPECT_EQ(beginningOf(dialog), files.path(L"below")) << nameOf(kind);
    }
}

TEST_F(FolderMemory, TheFolderOfTheHostGoesFirst)
{
    for (const Kind kind : {Kind::Classic, Kind::NewStyle}) {
        HostDialog dialog(kind);
        dialog.RememberFolder(kPictures);
        AfxGetApp()->WriteProfileString(L"settings", kEntry, files.path(L"below").c_str());
        dialog.SetDefaultFolder(files.path(L"below"));
        dialog.startIn(files.folder());
        EXPECT_EQ(beginningOf(dialog), files.folder()) << nameOf(kind);
    }
}

TEST_F(FolderMemory, TheClassicDialogRemembersByItsPurpose)
{
    {
        HostDialog dialog(Kind::Classic);
        dialog.RememberFolder(kPictures);
        dialog.startIn(files.folder());
        auto answering = whenAsked().type(files.path(L"below\\deep.txt")).key(VK_RETURN).start();
        ASSERT_EQ(dialog.DoModal(), IDOK);
    }
    EXPECT_EQ(AfxGetApp()->GetProfileString(L"settings", kEntry).GetString(), files.path(L"below"));
    HostDialog dialog(Kind::Classic);
    dialog.RememberFolder(kPictures);
    dialog.SetDefaultFolder(files.folder());
    EXPECT_EQ(beginningOf(dialog), files.path(L"below"));
}

TEST_F(FolderMemory, ACancelledDialogRemembersNothing)
{
    HostDialog dialog(Kind::Classic);
    dialog.RememberFolder(kPictures);
    dialog.SetDefaultFolder(files.folder());
    beginningOf(dialog);
    EXPECT_EQ(AfxGetApp()->GetProfileString(L"settings", kEntry).GetString(), std::wstring());
}

TEST_F(FolderMemory, ARememberedFolderThatIsGoneGivesTheNearest)
{
    AfxGetApp()->WriteProfileString(L"settings", kEntry, files.path(L"gone\\deeper").c_str());
    HostDialog dialog(Kind::Classic);
    dialog.RememberFolder(kPictures);
    EXPECT_EQ(beginningOf(dialog), files.folder());
}

TEST_F(FolderMemory, ADialogThatIsShownAgainBeginsWhereItWasLeft)
{
    FakeClassicDialog fake;
    HostDialog dialog(Kind::Classic);
    dialog.RememberFolder(kPictures);
    std::vector<std::wstring> beginnings;
    fake.onShow = [&](HWND child) {
        const OPENFILENAME& record = *dialog.ofn;
        beginnings.emplace_back(record.lpstrInitialDir ? record.lpstrInitialDir : L"(the system's)");
        ::lstrcpynW(record.lpstrFile, files.path(L"below\\deep.txt").c_str(),
                    static_cast<int>(record.nMaxFile));
        ::SendMessageW(::GetParent(child), WM_COMMAND, IDOK, 0);
    };
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.DoModal(), IDOK);
    AfxGetApp()->WriteProfileString(L"settings", kEntry, nullptr);
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(beginnings,
              (std::vector<std::wstring>{L"(the system's)", files.path(L"below"), L"(the system's)"}));
}

TEST_F(FolderMemory, PlacesAreTakenSilently)
{
    for (const Kind kind : {Kind::Classic, Kind::NewStyle}) {
        HostDialog dialog(kind);
        dialog.AddPlace(files.path(L"below"), true);
        dialog.AddPlace(files.path(L"gone"));
        dialog.AddPlace(L"");
        auto answering = whenAsked().key(VK_ESCAPE).start();
        EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    }
}

TEST_F(FolderMemory, TheNewStyleDialogIsToldPurposeAndPlaces)
{
    FakeShellDialog fake;
    COVOFileDialog dialog(TRUE, nullptr, nullptr, 0, nullptr, nullptr, TRUE);
    dialog.RememberFolder(kPictures);
    dialog.AddPlace(files.folder(), true);
    dialog.AddPlace(files.path(L"below"));
    dialog.AddPlace(files.path(L"gone"));
    dialog.SetDefaultFolder(files.folder());
    for (const wchar_t* noFolder : {L"/", L"/3,.", L"no/folder", L"\\\\"}) {
        dialog.AddPlace(noFolder);
        dialog.SetDefaultFolder(noFolder);
    }
    EXPECT_EQ(fake.client, kPictures);
    EXPECT_EQ(fake.topPlaces, 1);
    EXPECT_EQ(fake.bottomPlaces, 1);
    EXPECT_EQ(fake.defaultFolders, 1);
}
