// What only the newer file dialog has: its interfaces, its events, results of any length.
#include "FakeShellDialog.h"
#include "FileDialogScene.h"

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

constexpr DWORD kCheck = 501;
constexpr DWORD kPush = 502;
constexpr DWORD kCombo = 503;

std::vector<std::wstring> pathsOf(const CFileDialog& dialog)
{
    std::vector<std::wstring> paths;
    for (POSITION position = dialog.GetStartPosition(); position;)
        paths.emplace_back(dialog.GetNextPathName(position).GetString());
    return paths;
}

} // namespace

TEST(ShellFileDialog, GivesItsInterfacesWithAReference)
{
    FakeShellDialog fake;
    {
        RecordingFileDialog dialog(Kind::Newer);
        const int before = fake.references();
        IFileOpenDialog* opening = dialog.GetIFileOpenDialog();
        EXPECT_EQ(fake.references(), before + 1);
        ASSERT_NE(opening, nullptr);
        opening->Release();
        EXPECT_EQ(dialog.GetIFileSaveDialog(), nullptr);
        EXPECT_EQ(dialog.DoModal(), IDCANCEL); // no results
        EXPECT_EQ(fake.references(), before);
    }
    EXPECT_EQ(fake.references(), 1);
}

TEST(ShellFileDialog, OfTheSystemGivesTheInterfaceOfItsKind)
{
    CFileDialog opening(TRUE);
    CFileDialog saving(FALSE);
    const auto release = [](auto* object) {
        if (object)
            object->Release();
        return object != nullptr;
    };
    EXPECT_TRUE(release(opening.GetIFileOpenDialog()));
    EXPECT_FALSE(release(opening.GetIFileSaveDialog()));
    EXPECT_TRUE(release(saving.GetIFileSaveDialog()));
    EXPECT_FALSE(release(saving.GetIFileOpenDialog()));
    EXPECT_TRUE(release(opening.GetIFileDialogCustomize()));
}

TEST(ShellFileDialog, IsTheClassicOneWhereThereIsNone)
{
    FakeShellDialog fake;
    fake.creation = REGDB_E_CLASSNOTREG;
    RecordingFileDialog dialog(Kind::Classic); // expects to be one
    class Asking : public CFileDialog
    {
    public:
        Asking()
            : CFileDialog(TRUE)
        {
        }
        using CFileDialog::m_bVistaStyle;
        using CFileDialog::m_pIFileDialog;
    } asking;
    EXPECT_FALSE(asking.m_bVistaStyle);
    EXPECT_EQ(asking.m_pIFileDialog, nullptr);
}

TEST(ShellFileDialog, GivesPathsOfAnyLength)
{
    FakeShellDialog fake;
    const std::wstring path = L"C:\\" + std::wstring(20000, L'x') + L"\\name.txt";
    fake.results = {path};
    RecordingFileDialog dialog(Kind::Newer);
    ASSERT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.GetPathName().GetString(), path);
    EXPECT_EQ(dialog.GetFileName().GetString(), std::wstring(L"name.txt"));
    EXPECT_EQ(dialog.m_ofn.nMaxFile, path.size() + 1);
}

TEST(ShellFileDialog, TellsTheHostThatItsBufferIsTooSmall)
{
    FakeShellDialog fake;
    fake.results = {L"C:\\" + std::wstring(100, L'x')};
    for (const DWORD size : {1u, 2u, 50u, 103u}) {
        RecordingFileDialog dialog(Kind::Newer);
        std::vector<wchar_t> buffer(size + 1, L'\0');
        buffer[size] = L'!';
        dialog.m_ofn.lpstrFile = buffer.data();
        dialog.m_ofn.nMaxFile = size;
        EXPECT_EQ(dialog.DoModal(), IDCANCEL);
        EXPECT_EQ(buffer[0], 104);
        EXPECT_EQ(buffer[size], L'!');
    }
    RecordingFileDialog dialog(Kind::Newer);
    std::vector<wchar_t> buffer(104);
    dialog.m_ofn.lpstrFile = buffer.data();
    dialog.m_ofn.nMaxFile = 104;
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(buffer.data(), fake.results[0]);
}

TEST(ShellFileDialog, CountsTheEndOfTheListForOneOfSeveralFiles)
{
    FakeShellDialog fake;
    fake.results = {L"C:\\" + std::wstring(100, L'x')};
    for (const DWORD size : {104u, 105u}) {
        RecordingFileDialog dialog(Kind::Newer, TRUE, OFN_ALLOWMULTISELECT);
        std::vector<wchar_t> buffer(size + 1, L'#');
        buffer[0] = L'\0';
        dialog.m_ofn.lpstrFile = buffer.data();
        dialog.m_ofn.nMaxFile = size;
        EXPECT_EQ(dialog.DoModal(), size < 105 ? IDCANCEL : IDOK);
        EXPECT_EQ(buffer[0], size < 105 ? 105 : L'C');
        EXPECT_EQ(buffer[size], L'#');
        if (size == 105) {
            EXPECT_EQ(pathsOf(dialog), fake.results);
        }
    }
}

TEST(ShellFileDialog, GivesManyFiles)
{
    FakeShellDialog fake;
    for (int i = 0; i < 3000; ++i)
        fake.results.push_back(L"C:\\folder\\file number " + std::to_wstring(i) + L".txt");
    fake.results.push_back(L"D:\\elsewhere\\of a library.txt");
    RecordingFileDialog dialog(Kind::Newer, TRUE, OFN_ALLOWMULTISELECT);
    ASSERT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(pathsOf(dialog), fake.results);
    EXPECT_EQ(dialog.GetFileName().GetString(), std::wstring(L"file number 0.txt"));
}

TEST(ShellFileDialog, PassesOnOnlyTheFlagsThatItKnows)
{
    FakeShellDialog fake;
    fake.options = FOS_PICKFOLDERS | FOS_NOCHANGEDIR;
    fake.results = {L"C:\\a"};
    RecordingFileDialog dialog(Kind::Newer, TRUE,
                               OFN_HIDEREADONLY | OFN_FILEMUSTEXIST | OFN_SHAREAWARE | OFN_ENABLESIZING);
    dialog.DoModal();
    EXPECT_EQ(fake.options,
              static_cast<DWORD>(FOS_PICKFOLDERS | FOS_FILEMUSTEXIST | FOS_SHAREAWARE | FOS_FORCEFILESYSTEM));
}

TEST(ShellFileDialog, AsksAboutAFileInUse)
{
    struct Case
    {
        UINT answer;
        FDE_SHAREVIOLATION_RESPONSE response;
    };
    for (const Case& c : {Case{OFN_SHAREWARN, FDESVR_DEFAULT}, Case{OFN_SHARENOWARN, FDESVR_REFUSE},
                          Case{OFN_SHAREFALLTHROUGH, FDESVR_ACCEPT}}) {
        FakeShellDialog fake;
        fake.results = {L"C:\\used.txt"};
        RecordingFileDialog dialog(Kind::Newer);
        std::wstring asked;
        dialog.onShareViolation = [&](const std::wstring& path) {
            asked = path;
            return c.answer;
        };
        auto response = static_cast<FDE_SHAREVIOLATION_RESPONSE>(-1);
        fake.onShow = [&](IFileDialogEvents& events) {
            IShellItem* item = nullptr;
            fake.dialog()->GetResult(&item);
            EXPECT_EQ(events.OnShareViolation(fake.dialog(), item, &response), S_OK);
            item->Release();
            return fake.accept(events);
        };
        EXPECT_EQ(dialog.DoModal(), IDOK);
        EXPECT_EQ(asked, L"C:\\used.txt");
        EXPECT_EQ(response, c.response);
    }
}

TEST(ShellFileDialog, WhoseWindowWasDestroyedIsCancelled)
{
    FakeShellDialog fake;
    fake.results = {L"C:\\a"};
    fake.onShow = [](IFileDialogEvents&) { return S_OK; }; // without any file accepted
    RecordingFileDialog dialog(Kind::Newer);
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
}

TEST(ShellFileDialog, AnswersBothInterfacesOfItsEvents)
{
    FakeShellDialog fake;
    RecordingFileDialog dialog(Kind::Newer);
    fake.onShow = [&](IFileDialogEvents& events) {
        IFileDialogControlEvents* controls = nullptr;
        EXPECT_EQ(events.QueryInterface(IID_IFileDialogControlEvents, reinterpret_cast<void**>(&controls)),
                  S_OK);
        if (controls) {
            controls->OnButtonClicked(nullptr, 7);
            controls->OnItemSelected(nullptr, 8, 9);
            controls->OnCheckButtonToggled(nullptr, 10, TRUE);
            controls->OnControlActivating(nullptr, 11);
            controls->Release();
        }
        return HRESULT_FROM_WIN32(ERROR_CANCELLED);
    };
    dialog.DoModal();
    EXPECT_EQ(dialog.events, (std::vector<std::string>{"ButtonClicked 7", "ItemSelected 8 9",
                                                       "CheckButtonToggled 10 1", "ControlActivating 11"}));
    EXPECT_EQ(dialog.m_dwRef, 1);
}

TEST(ShellFileDialog, TellsOfTheControlsThatWereAdded)
{
    RecordingFileDialog dialog(Kind::Newer);
    IFileDialogCustomize* customize = dialog.GetIFileDialogCustomize();
    customize->AddCheckButton(kCheck, L"Backup", FALSE);
    customize->AddPushButton(kPush, L"Details");
    customize->AddComboBox(kCombo);
    customize->AddControlItem(kCombo, 30, L"Small");
    customize->AddControlItem(kCombo, 40, L"Large");
    customize->SetSelectedControlItem(kCombo, 30);
    customize->Release();
    auto answering = whenAsked()
                         .click([] { return controlWithText(L"Backup"); })
                         .waitFor("the check", [&] { return dialog.count("CheckButtonToggled 501 1") == 1; })
                         .click([] { return controlWithText(L"Details"); })
                         .waitFor("the push", [&] { return dialog.count("ButtonClicked 502") == 1; })
                         .click([] { return controlWithText(L"Small"); })
                         .key(VK_DOWN)
                         .key(VK_RETURN)
                         .waitFor("the choice", [&] { return dialog.count("ItemSelected 503 40") == 1; })
                         .key(VK_ESCAPE)
                         .start();
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
}

TEST(ShellFileDialog, DoesNotKnowWhatTheClassicOneHas)
{
    RecordingFileDialog dialog(Kind::Newer);
    const auto unsupported = [](auto call) {
        try {
            call();
        } catch (CNotSupportedException* exception) {
            exception->Delete();
            return true;
        }
        return false;
    };
    EXPECT_TRUE(unsupported([&] { dialog.SetTemplate(1u, 2u); }));
    EXPECT_TRUE(unsupported([&] { dialog.GetReadOnlyPref(); }));
    EXPECT_TRUE(unsupported([&] { dialog.HideControl(IDOK); }));
    EXPECT_TRUE(unsupported([&] { dialog.SetControlText(cmb1, L"x"); }));
}

TEST(ShellFileDialog, SetsTheTextsThatItCan)
{
    RecordingFileDialog dialog(Kind::Newer);
    dialog.SetControlText(IDOK, L"&Take");
    dialog.SetControlText(stc3, L"Name, please:");
    dialog.SetDefExt("txt");
    bool seen = false;
    auto answering = whenAsked()
                         .then([&] { seen = controlWithText(L"&Take") && controlWithText(L"Name, please:"); })
                         .key(VK_ESCAPE)
                         .start();
    dialog.DoModal();
    EXPECT_TRUE(seen);
}

TEST(ShellFileDialog, SetsTheExtensionOfANameThatHasNone)
{
    const TemporaryFiles files;
    RecordingFileDialog dialog(Kind::Newer, FALSE, OFN_HIDEREADONLY | OFN_NOCHANGEDIR);
    dialog.startIn(files.folder());
    dialog.SetDefExt("dat");
    auto answering = whenAsked().type(L"fresh").key(VK_RETURN).start();
    ASSERT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(std::wstring(dialog.GetPathName().GetString()), files.path(L"fresh.dat"));
}

TEST(ShellFileDialog, TakesAndGivesItsRecordOnRequest)
{
    TemporaryFiles files{L"a.txt", L"b.txt"};
    RecordingFileDialog dialog(Kind::Newer, TRUE, OFN_NOCHANGEDIR, L"Text|*.txt|All|*.*||", nullptr,
                               L"a.txt");
    dialog.startIn(files.folder());
    std::wstring path;
    DWORD type = 0;
    auto answering = whenAsked()
                         .then([&] {
                             dialog.UpdateOFNFromShellDialog();
                             path = dialog.m_ofn.lpstrFile;
                             type = dialog.m_ofn.nFilterIndex;
                             wcscpy(dialog.m_ofn.lpstrFile, L"b.txt");
                             dialog.ApplyOFNToShellDialog();
                         })
                         .key(VK_RETURN)
                         .start();
    ASSERT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(path, files.path(L"a.txt"));
    EXPECT_EQ(type, 1u);
    EXPECT_EQ(dialog.GetPathName().GetString(), files.path(L"b.txt"));
}

TEST(ShellFileDialog, StandsForItsWindowWhileItIsShown)
{
    RecordingFileDialog dialog(Kind::Newer);
    bool same = false;
    auto answering = whenAsked().then([&] { same = dialog.m_hWnd == asked(); }).key(VK_ESCAPE).start();
    dialog.DoModal();
    EXPECT_TRUE(same);
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}
