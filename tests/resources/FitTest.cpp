// Every text fits its control, in every language. The program runs once for each resolution.
#include "DialogFit.h"

#include "../frame/MessageBoxScene.h"

#include <ovoui/colour/ColPickerPaletteDlg.h>
#include <ovoui/frame/Language.h>
#include <ovoui/frame/MessageBoxIds.h>
#include <ovoui/frame/MessageDialog.h>
#include <ovoui/sysinfo/ModuleListDlg.h>
#include <ovouires/resource.h>

#include <ovocor/Text.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

namespace
{

HMODULE module()
{
    textLanguages(); // a call that makes this program need the library
    return ::GetModuleHandleW(L"ovouires.dll");
}

/// What code puts into a control.
struct Placed
{
    UINT dialog;
    int control;
    UINT string;
};

constexpr Placed kPlaced[] = {{IDD_COLOUR_PICKER, IDC_COLOUR_CAPTION_1, IDS_COLOUR_RED},
                              {IDD_COLOUR_PICKER, IDC_COLOUR_CAPTION_1, IDS_COLOUR_HUE},
                              {IDD_COLOUR_PICKER, IDC_COLOUR_CAPTION_2, IDS_COLOUR_GREEN},
                              {IDD_COLOUR_PICKER, IDC_COLOUR_CAPTION_2, IDS_COLOUR_LIGHTNESS},
                              {IDD_COLOUR_PICKER, IDC_COLOUR_CAPTION_2, IDS_COLOUR_SATURATION},
                              {IDD_COLOUR_PICKER, IDC_COLOUR_CAPTION_3, IDS_COLOUR_BLUE},
                              {IDD_COLOUR_PICKER, IDC_COLOUR_CAPTION_3, IDS_COLOUR_SATURATION},
                              {IDD_COLOUR_PICKER, IDC_COLOUR_CAPTION_3, IDS_COLOUR_VALUE},
                              {IDD_COLOUR_PALETTE, IDC_COLOUR_CAPTION_2, IDS_COLOUR_LIGHTNESS},
                              {IDD_COLOUR_PALETTE, IDC_COLOUR_CAPTION_3, IDS_COLOUR_SATURATION}};

class Fit : public testing::TestWithParam<LANGID>
{
protected:
    void SetUp() override { ASSERT_TRUE(setTextLanguage(GetParam())); }
    void TearDown() override { setTextLanguage(0); }

    std::wstring string(UINT id) { return stringOf(module(), id, GetParam()); }
};

} // namespace

TEST_P(Fit, EveryTextOfADialogTemplate)
{
    const std::vector<UINT> dialogs = dialogsOf(module());
    ASSERT_GE(dialogs.size(), 7u);
    for (const UINT id : dialogs) {
        const HiddenDialog dialog(module(), id, GetParam());
        ASSERT_NE(dialog.handle(), nullptr) << id;
        EXPECT_EQ(linesOf(fitProblems(dialog.handle())), "") << "dialog " << id;
    }
}

TEST_P(Fit, WhatCodePutsIntoADialog)
{
    for (const Placed& placed : kPlaced) {
        const HiddenDialog dialog(module(), placed.dialog, GetParam());
        EXPECT_EQ(linesOf(fitProblems(::GetDlgItem(dialog.handle(), placed.control), string(placed.string))),
                  "");
    }
    const std::wstring grade = string(IDS_COLOUR_GRADE_LARGE);
    const HiddenDialog palette(module(), IDD_COLOUR_PALETTE, GetParam());
    EXPECT_EQ(linesOf(fitProblems(::GetDlgItem(palette.handle(), IDC_COLOUR_CONTRAST),
                                  stringPrintf(string(IDS_COLOUR_CONTRAST).c_str(), L"21.0", grade.c_str(),
                                               L"21.0", grade.c_str()))),
              "");
    const HiddenDialog modules(module(), IDD_MODULE_LIST, GetParam());
    EXPECT_EQ(linesOf(fitProblems(
                  ::GetDlgItem(modules.handle(), IDC_MODULES_COUNT),
                  stringPrintf(string(IDS_MODULES_COUNT).c_str(), std::size_t{9999}, std::size_t{9999}))),
              "");
}

TEST_P(Fit, TheHeadingsOfTheModuleList)
{
    CModuleListDlg dialog;
    ASSERT_TRUE(dialog.Create(IDD_MODULE_LIST));
    EXPECT_EQ(linesOf(headingProblems(dialog.GetDlgItem(IDC_MODULES_LIST)->m_hWnd)), "");
    dialog.DestroyWindow();
}

TEST_P(Fit, TheButtonsOfAMessageBox)
{
    for (const UINT type : {OVOMB_EXTBUTTONS | 3u | MB_HELP, 2u | MB_HELP}) {
        Problems problems{L"not looked at"};
        inspect({.type = type, .text = L"x", .caption = L""}, [&](HWND box) { problems = fitProblems(box); });
        EXPECT_EQ(linesOf(problems), "");
    }
}

TEST_P(Fit, WhatAMessageDialogAdds)
{
    Problems problems{L"not looked at"};
    ovo::testkit::Robot robot;
    auto looking = robot
                       .waitFor("the box",
                                [&] {
                                    const HWND box = ovo::testkit::shownDialog();
                                    if (!box)
                                        return false;
                                    problems = fitProblems(box);
                                    const HWND details = ::GetDlgItem(box, ovoui::frame::kDetailsButtonId);
                                    std::ranges::copy(fitProblems(details, string(IDS_MESSAGE_HIDE_DETAILS)),
                                                      std::back_inserter(problems));
                                    return true;
                                })
                       .key(VK_ESCAPE)
                       .start();
    COVOMessageDialog box(nullptr, L"x", L"", MB_YESNOCANCEL);
    box.SetDetails(L"More.");
    box.OfferNotToAsk(L"Fit");
    box.DoModal();
    EXPECT_EQ(linesOf(problems), "");
}

INSTANTIATE_TEST_SUITE_P(Each, Fit, testing::Values(0x0009, 0x0007, 0x000C, 0x000A, 0x0015, 0x0011));
