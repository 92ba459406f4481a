// What the library's modules ask the system for when they are loaded.
#include "Imports.h"

#include <gtest/gtest.h>

#include <set>

namespace
{

/// Version 5 of the common controls does not have these, or not by name in each of its builds. A program
/// without a manifest gets that version.
const std::set<std::string> kOfVersion6{
    "DefSubclassProc",           "DrawShadowText",    "GetWindowSubclass",
    "HIMAGELIST_QueryInterface", "ImageList_ReadEx",  "ImageList_CoCreateInstance",
    "ImageList_WriteEx",         "LoadIconMetric",    "LoadIconWithScaleDown",
    "RemoveWindowSubclass",      "SetWindowSubclass", "TaskDialog",
    "TaskDialogIndirect"};

} // namespace

TEST(Imports, OfTheCommonControlsEveryVersionHas)
{
    for (const wchar_t* const module : {L"ovoui.dll", L"ovomfc.dll"}) {
        int fromCommonControls = 0;
        for (const Import& import : importsOf(::GetModuleHandleW(module))) {
            if (import.library != "comctl32.dll")
                continue;
            ++fromCommonControls;
            EXPECT_FALSE(kOfVersion6.contains(import.function)) << import.function;
        }
        EXPECT_GT(fromCommonControls, 0);
    }
}

/// The folder of Windows is the one that its modules lie in. GetWindowsDirectory gives a user of a server
/// with several users another one.
TEST(Imports, TheFolderOfWindowsIsNotAskedForAsTheUsersOwn)
{
    for (const wchar_t* const module : {L"ovoui.dll", L"ovomfc.dll"}) {
        bool asksForTheSystems = false;
        for (const Import& import : importsOf(::GetModuleHandleW(module))) {
            asksForTheSystems = asksForTheSystems || import.function == "GetSystemWindowsDirectoryW";
            EXPECT_NE(import.function, "GetWindowsDirectoryW");
        }
        EXPECT_TRUE(asksForTheSystems);
    }
}
