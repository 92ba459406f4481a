// The picker with a palette of the user's own.
#include <testkit/Desktop.h>
#include <testkit/GdiPlusSession.h>
#include <testkit/ImportPatch.h>
#include <testkit/Picture.h>
#include <testkit/Robot.h>
#include <testkit/TemporaryProfile.h>
#include <testkit/TestApp.h>

#include <ovoui/colour/ColPickerPaletteDlg.h>
#include <ovoui/colour/ColourText.h>

#include <gtest/gtest.h>

using namespace ovo::testkit;

namespace
{

constexpr int kText = 20561;
constexpr int kBefore = 20562;
constexpr int kContrast = 20563;
constexpr int kRecent = 20568;
constexpr int kDropper = 20569;
constexpr int kValue1 = 3437;

class Palette : public ColPickerPaletteDlg
{
public:
    using ColPickerPaletteDlg::ColPickerPaletteDlg;
    using ColPickerPaletteDlg::m_mode;
    using ColPickerPaletteDlg::m_patchRect;
    using ColPickerPaletteDlg::m_swatches;
    using ColPickerPaletteDlg::m_wheelRect;
    using ColPickerPaletteDlg::SetSliderMode;
};

int WINAPI commaForPoint(LCID locale, LCTYPE type, LPWSTR text, int room)
{
    if (type != LOCALE_SDECIMAL)
        return ::GetLocaleInfoW(locale, type, text, room);
    ::lstrcpynW(text, L",", room);
    return 2;
}

class PickerPalette : public ::testing::Test
{
protected:
    ~PickerPalette() override { dialog.reset(); }

    void open(const Colour& colour = Colour::rgb(1, 0, 0))
    {
        dialog = std::make_unique<Palette>(TestApp::instance(), ColPickerModeRGB, colour, nullptr, nullptr);
        dialog->Create(1545, nullptr);
        ASSERT_TRUE(dialog->m_hWnd);
        dialog->SetWindowPos(&CWnd::wndTop, 120, 90, 0, 0, SWP_NOSIZE);
        present(*dialog);
    }

    std::wstring text(int id) const
    {
        CString text;
        dialog->GetDlgItemText(id, text);
        return std::wstring(text);
    }
    COLORREF now() { return dialog->GetColour().colorref(); }

    /// Types into the field and leaves it.
    void enter(const wchar_t* colour)
    {
        dialog->GetDlgItem(kText)->SetFocus();
        dialog->SetDlgItemText(kText, colour);
        dialog->GetDlgItem(IDOK)->SetFocus();
    }

    const GdiPlusSession gdiPlus;
    const TemporaryProfile profile;
    std::unique_ptr<Palette> dialog;
    Robot user;
};

} // namespace

TEST_F(PickerPalette, TheFieldTakesCodesAndNames)
{
    open();
    EXPECT_EQ(text(kText), L"red");
    enter(L"#336699");
    EXPECT_EQ(now(), RGB(0x33, 0x66, 0x99));
    EXPECT_EQ(text(kText), L"#336699");
    EXPECT_EQ(text(kValue1), L"51") << "at once";
    enter(L" Teal ");
    EXPECT_EQ(now(), RGB(0, 128, 128));
    EXPECT_EQ(text(kText), L"teal");
    enter(L"no colour");
    EXPECT_EQ(now(), RGB(0, 128, 128));
    EXPECT_EQ(text(kText), L"teal") << "what is no colour goes";
    EXPECT_EQ(dialog->GetColour().a(), -1);
}

TEST_F(PickerPalette, TheFieldTakesAlphaWhereTheDialogHasIt)
{
    open(Colour::rgba(1, 0, 0, 0.2));
    EXPECT_EQ(text(kText), L"#FF000033");
    enter(L"#00FF00");
    EXPECT_NEAR(dialog->GetColour().a(), 0.2, 1e-9);
    enter(L"0000FF80");
    EXPECT_EQ(now(), RGB(0, 0, 255));
    EXPECT_NEAR(dialog->GetColour().a(), 128 / 255.0, 1e-9);
}

TEST_F(PickerPalette, CodesAreCopiedAndPastedWithOrWithoutTheMark)
{
    open();
    CEdit& field = static_cast<CEdit&>(*dialog->GetDlgItem(kText));
    for (const wchar_t* const pasted : {L"#336699", L"336699", L"  #336699 "}) {
        enter(L"red");
        field.SetFocus();
        field.SetWindowText(pasted);
        field.SetSel(0, -1);
        user.holding(VK_CONTROL).key('C');
        field.SetWindowText(L"yellow");
        field.SetSel(0, -1);
        user.holding(VK_CONTROL).key('V').letGo(VK_CONTROL).key(VK_TAB);
        EXPECT_EQ(now(), RGB(0x33, 0x66, 0x99)) << pasted;
        EXPECT_EQ(text(kText), L"#336699");
    }
}

TEST_F(PickerPalette, EnterTakesOverWhatIsInTheField)
{
    dialog = std::make_unique<Palette>(TestApp::instance(), ColPickerModeHLS, Colour::rgb(1, 0, 0), nullptr,
                                       nullptr);
    auto acting = user.waitFor("the dialog", [this] { return dialog->m_hWnd && dialog->IsWindowVisible(); })
                      .then([this] {
                          dialog->GetDlgItem(kText)->SetFocus();
                          dialog->SetDlgItemText(kText, L"navy");
                      })
                      .key(VK_RETURN)
                      .start();
    EXPECT_EQ(dialog->DoModal(), IDOK);
    EXPECT_EQ(now(), RGB(0, 0, 128));
}

TEST_F(PickerPalette, ATypedCodeIsKeptToTheLastDigit)
{
    for (const wchar_t* const code : {L"#5A96DC", L"#010203", L"#FEFDFC"}) {
        dialog = std::make_unique<Palette>(TestApp::instance(), ColPickerModeHLS, Colour::rgb(0.3, 0.2, 0.7),
                                           nullptr, nullptr);
        auto acting =
            user.waitFor("the dialog", [this] { return dialog->m_hWnd && dialog->IsWindowVisible(); })
                .then([&] {
                    dialog->GetDlgItem(kText)->SetFocus();
                    dialog->SetDlgItemText(kText, code);
                })
                .key(VK_RETURN)
                .start();
        EXPECT_EQ(dialog->DoModal(), IDOK);
        EXPECT_EQ(ovoui::colour::textOfColour(dialog->GetColour()), code)
            << "not rounded to what the numbers show";
    }
}

TEST_F(PickerPalette, TypedNumbersCount)
{
    open(Colour::rgb(0.3, 0.2, 0.7));
    dialog->GetDlgItem(kValue1)->SetFocus();
    user.type(L"7").key(VK_TAB);
    EXPECT_EQ(now(), RGB(7, 51, 179));
}

TEST_F(PickerPalette, AClickOnTheColourAsItWasBringsItBack)
{
    open(Colour::rgb(0.2, 0.4, 0.6));
    CWnd* const before = dialog->GetDlgItem(kBefore);
    enter(L"yellow");
    dialog->UpdateWindow();
    EXPECT_EQ(Picture::ofClient(before->m_hWnd).at(3, 3), RGB(51, 102, 153));
    user.click(Spot{*before});
    EXPECT_EQ(now(), RGB(51, 102, 153));
    EXPECT_EQ(text(kText), L"#336699");
}

TEST_F(PickerPalette, TheColourAsItWasIsReachedByTheKeyboard)
{
    open(Colour::rgb(0.2, 0.4, 0.6));
    enter(L"yellow");
    const HWND before = ::GetDlgItem(*dialog, kBefore);
    const Picture without = Picture::ofClient(before);
    dialog->GetDlgItem(20506)->SetFocus(); // the models, which come first
    user.key(VK_TAB);
    EXPECT_EQ(::GetFocus(), before);
    const Picture with = Picture::ofClient(before);
    EXPECT_GT(without.differences(with), 50) << "the focus mark";
    user.key(VK_SPACE);
    EXPECT_EQ(now(), RGB(51, 102, 153));
    user.holding(VK_CONTROL).key('Z');
    EXPECT_EQ(now(), RGB(255, 255, 0));
}

TEST_F(PickerPalette, AllOfItIsReachedByTab)
{
    open();
    std::vector<int> order;
    const HWND first = ::GetDlgItem(*dialog, IDCANCEL);
    ::SetFocus(first);
    do {
        user.key(VK_TAB);
        order.push_back(::GetDlgCtrlID(::GetFocus()));
    } while (::GetFocus() != first && order.size() < 30);
    EXPECT_EQ(order, (std::vector<int>{20565, 20566, 20506, kBefore, 3432, kValue1, 3433, 3438, 3434, 3439,
                                       kDropper, kText, 20567, IDOK, IDCANCEL}))
        << "no recent colours yet";
}

TEST_F(PickerPalette, ColoursClosedWithOkAreRecentOnes)
{
    open();
    EXPECT_FALSE(dialog->GetDlgItem(kRecent)->IsWindowEnabled()) << "there are none yet";
    for (const wchar_t* const colour : {L"teal", L"yellow", L"teal"}) {
        dialog->DestroyWindow();
        dialog = std::make_unique<Palette>(TestApp::instance(), ColPickerModeRGB, Colour::rgb(1, 0, 0),
                                           nullptr, nullptr);
        auto acting =
            user.waitFor("the dialog", [this] { return dialog->m_hWnd && dialog->IsWindowVisible(); })
                .then([&] { enter(colour); })
                .key(VK_RETURN)
                .start();
        EXPECT_EQ(dialog->DoModal(), IDOK);
    }
    open();
    enter(L"lime");
    dialog->SendMessage(WM_COMMAND, IDCANCEL);
    open();
    auto& recent = static_cast<CColourGrid&>(*dialog->GetDlgItem(kRecent));
    EXPECT_EQ(recent.Colours(), (std::vector<COLORREF>{RGB(0, 128, 128), RGB(255, 255, 0)}));
    EXPECT_TRUE(recent.IsWindowEnabled());
    user.click(Spot{recent, recent.CellRect(1).CenterPoint()});
    EXPECT_EQ(now(), RGB(255, 255, 0));
    user.key(VK_LEFT).key(VK_SPACE);
    EXPECT_EQ(now(), RGB(0, 128, 128));
    user.holding(VK_CONTROL).key('Z');
    EXPECT_EQ(now(), RGB(255, 255, 0));
}

TEST_F(PickerPalette, AColourIsTakenFromTheScreen)
{
    open(Colour::rgba(1, 0, 0, 0.2));
    const CPoint swatch = dialog->m_swatches[6].CenterPoint();
    dialog->UpdateWindow();
    user.drag(Spot{*dialog->GetDlgItem(kDropper)}, Spot{*dialog, swatch});
    EXPECT_EQ(now(), RGB(34, 177, 76));
    EXPECT_NEAR(dialog->GetColour().a(), 0.2, 1e-9);
    user.holding(VK_CONTROL).key('Z');
    EXPECT_EQ(now(), RGB(255, 0, 0));
}

TEST_F(PickerPalette, EscapeWhilePickingFromTheScreenLeavesTheDialogOpen)
{
    open();
    user.press(Spot{*dialog->GetDlgItem(kDropper)}).moveBy(0, -60).key(VK_ESCAPE).release();
    EXPECT_TRUE(dialog->m_hWnd);
    EXPECT_EQ(now(), RGB(255, 0, 0));
}

TEST_F(PickerPalette, AlphaSurvivesSwatchesRecentColoursAndTheRing)
{
    TestApp::instance().WriteProfileString(L"settings", L"RecentColours", L"#102030");
    open(Colour::rgba(1, 0, 0, 0.2));
    user.click(Spot{*dialog, dialog->m_swatches[6].CenterPoint()});
    EXPECT_EQ(now(), RGB(34, 177, 76));
    EXPECT_NEAR(dialog->GetColour().a(), 0.2, 1e-9);
    EXPECT_EQ(text(3444), L"51");
    user.click(Spot{*dialog->GetDlgItem(kRecent), CPoint(3, 3)});
    EXPECT_EQ(now(), RGB(0x10, 0x20, 0x30));
    EXPECT_NEAR(dialog->GetColour().a(), 0.2, 1e-9);
}

TEST_F(PickerPalette, ChangesAreUndoneAndRedone)
{
    open();
    enter(L"lime");
    enter(L"blue");
    user.holding(VK_CONTROL).key('Z');
    EXPECT_EQ(now(), RGB(0, 255, 0));
    user.holding(VK_CONTROL).key('Z', 2); // once more than there is
    EXPECT_EQ(now(), RGB(255, 0, 0));
    user.holding(VK_CONTROL).key('Y', 2);
    EXPECT_EQ(now(), RGB(0, 0, 255));
    user.holding(VK_CONTROL).key('Z');
    user.click(Spot{*dialog, dialog->m_swatches[0].CenterPoint()});
    const COLORREF swatch = now();
    user.holding(VK_CONTROL).key('Y');
    EXPECT_EQ(now(), swatch) << "what was undone is forgotten";
    user.holding(VK_CONTROL).key('Z');
    EXPECT_EQ(now(), RGB(0, 255, 0));
}

TEST_F(PickerPalette, ADragIsUndoneAsOne)
{
    open();
    const CPoint centre = dialog->m_wheelRect.CenterPoint();
    user.drag(Spot{*dialog, centre}, Spot{*dialog, centre + CPoint(12, 10)});
    EXPECT_NE(now(), RGB(255, 0, 0));
    user.holding(VK_CONTROL).key('Z');
    EXPECT_EQ(now(), RGB(255, 0, 0));
}

TEST_F(PickerPalette, CustomColoursAndTheModeAreKept)
{
    open(Colour::rgb(0.2, 0.4, 0.6));
    user.drag(Spot{*dialog, dialog->m_patchRect.CenterPoint()},
              Spot{*dialog, dialog->m_swatches[7].CenterPoint()});
    dialog->SetSliderMode(dialog.get(), ColPickerModeHSV);
    dialog->DestroyWindow();
    open();
    EXPECT_EQ(dialog->m_mode, ColPickerModeHSV);
    user.click(Spot{*dialog, dialog->m_swatches[7].CenterPoint()});
    EXPECT_EQ(now(), RGB(51, 102, 153));
}

TEST_F(PickerPalette, SpoiltSettingsLeaveTheFirstColours)
{
    TestApp::instance().WriteProfileString(L"settings", L"CustomColours", L"#102030 rubbish");
    TestApp::instance().WriteProfileInt(L"settings", L"ColourModel", 99);
    open();
    EXPECT_EQ(dialog->m_mode, ColPickerModeRGB);
    user.click(Spot{*dialog, dialog->m_swatches[0].CenterPoint()});
    EXPECT_EQ(now(), RGB(0x10, 0x20, 0x30));
    user.click(Spot{*dialog, dialog->m_swatches[1].CenterPoint()});
    EXPECT_EQ(now(), RGB(127, 127, 127));
}

TEST_F(PickerPalette, TheContrastHasTheUsersDecimalSign)
{
    const ImportPatch patch(L"ovoui.dll", "GetLocaleInfoW", reinterpret_cast<void*>(&commaForPoint));
    open(Colour::rgb(1, 0, 0));
    EXPECT_EQ(text(kContrast), L"Contrast as text: on white 4,0 (AA large), on black 5,3 (AA)");
}

TEST_F(PickerPalette, TheContrastIsTold)
{
    open(Colour::rgb(0, 0, 0));
    EXPECT_EQ(text(kContrast), L"Contrast as text: on white 21.0 (AAA), on black 1.0 (-)");
    enter(L"red");
    EXPECT_EQ(text(kContrast), L"Contrast as text: on white 4.0 (AA large), on black 5.3 (AA)");
}

TEST_F(PickerPalette, EnterTakesARecentColourAndLeavesTheDialogOpen)
{
    TestApp::instance().WriteProfileString(L"settings", L"RecentColours", L"#102030");
    open();
    dialog->GetDlgItem(kRecent)->SetFocus();
    user.key(VK_RETURN);
    EXPECT_TRUE(dialog->IsWindowVisible());
    EXPECT_EQ(now(), RGB(0x10, 0x20, 0x30));
}

TEST_F(PickerPalette, TheKeyboardPicksFromTheScreenAndLeavesTheDialogOpen)
{
    open();
    auto& dropper = static_cast<CColourDropper&>(*dialog->GetDlgItem(kDropper));
    dropper.SetFocus();
    user.key(VK_RETURN);
    EXPECT_TRUE(dropper.IsPicking()) << "Enter does not close the dialog";
    user.key(VK_RIGHT);
    EXPECT_EQ(::GetFocus(), dropper.m_hWnd) << "the arrow moves the pointer";
    user.key(VK_ESCAPE);
    EXPECT_FALSE(dropper.IsPicking());
    EXPECT_TRUE(dialog->IsWindowVisible());
    EXPECT_EQ(now(), RGB(255, 0, 0));
}

TEST_F(PickerPalette, WhileSomethingIsTypedCtrlZIsTheFieldsOwn)
{
    open();
    enter(L"lime");
    dialog->GetDlgItem(kText)->SetFocus();
    user.type(L"x").holding(VK_CONTROL).key('Z');
    EXPECT_EQ(now(), RGB(0, 255, 0)) << "typing is undone first";
}

TEST_F(PickerPalette, AWalkThroughItByTabChangesNothing)
{
    open(Colour::rgb(0.3, 0.2, 0.7));
    dialog->SetSliderMode(dialog.get(), ColPickerModeHLS); // whose whole numbers would round the colour
    dialog->UpdateWindow();
    dialog->GetDlgItem(IDCANCEL)->SetFocus();
    user.key(VK_TAB, 16);
    EXPECT_EQ(dialog->GetColour().r(), 0.3);
    EXPECT_EQ(dialog->GetColour().g(), 0.2);
    EXPECT_EQ(dialog->GetColour().b(), 0.7);
}
