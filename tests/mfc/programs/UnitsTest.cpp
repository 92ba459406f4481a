// A tool that borrows a dialog, its template and its strings from an extension DLL.
#include <testkit/RunningProgram.h>
#include "units/Resource.h"
#include "unitsext/Resource.h"

#include <shlwapi.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

constexpr wchar_t kKey[] = L"Software\\ovoui test programs";

class Units : public ::testing::Test
{
protected:
    Units() { ::SHDeleteKeyW(HKEY_CURRENT_USER, kKey); }
    ~Units() override { ::SHDeleteKeyW(HKEY_CURRENT_USER, kKey); }

    static HWND openDialog(RunningProgram& program)
    {
        program.click(::GetDlgItem(program.main(), IDC_OPEN));
        return program.window(L"Convert");
    }

    static void close(RunningProgram& program)
    {
        program.key(VK_ESCAPE);
        EXPECT_TRUE(program.endsByItself());
    }
};

} // namespace

TEST_F(Units, ShowTheDialogOfTheExtension)
{
    RunningProgram program(L"mfc_program_units");
    const HWND dialog = openDialog(program);
    EXPECT_EQ(textOf(dialog, IDC_METRES), L"5");
    const CRect place = rectOf(dialog);
    const CRect tool = rectOf(program.main());
    EXPECT_EQ(place.left, (tool.left + tool.right - place.Width()) / 2)
        << "the template leaves the place open";
    program.type(L"10"); // the number is selected
    program.key(VK_RETURN);
    program.waitFor("the result", [&] { return textOf(dialog, IDC_FEET) == L"32.81 feet"; });
    program.key(VK_ESCAPE);
    program.waitFor("the dialog to go", [&] { return !::IsWindow(dialog); });
    program.waitFor("the tool to be told",
                    [&] { return textOf(program.main(), IDC_LAST) == L"CConvertDlg: 10.0 m are 32.8 ft"; });
    close(program);
}

TEST_F(Units, RememberTheNumberInTheProfile)
{
    {
        RunningProgram program(L"mfc_program_units");
        const HWND dialog = openDialog(program);
        program.type(L"42");
        program.key(VK_RETURN);
        program.waitFor("the result", [&] { return textOf(dialog, IDC_FEET) == L"137.80 feet"; });
        program.key(VK_ESCAPE);
        program.waitFor("the dialog to go", [&] { return !::IsWindow(dialog); });
        close(program);
    }
    RunningProgram program(L"mfc_program_units");
    EXPECT_EQ(textOf(openDialog(program), IDC_METRES), L"42");
}

TEST_F(Units, RefuseWhatIsNoNumber)
{
    RunningProgram program(L"mfc_program_units");
    const HWND dialog = openDialog(program);
    program.type(L"ten");
    program.key(VK_RETURN);
    const HWND box = program.window(L"mfc_program_units");
    bool told = false;
    for (HWND child = ::GetWindow(box, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT))
        told = told || textOf(child) == L"Enter a number.";
    EXPECT_TRUE(told);
    program.key(VK_RETURN);
    program.waitFor("the box to go", [&] { return !::IsWindow(box); });
    EXPECT_EQ(textOf(dialog, IDC_FEET), L"");
    program.type(L"1");
    program.key(VK_RETURN);
    program.waitFor("the result", [&] { return textOf(dialog, IDC_FEET) == L"3.28 feet"; });
}
