// The colour button: its looks, its palette with mouse and keyboard, and its dialog.
#include "ColourButtonScene.h"

#include <support/EmptyDialog.h>
#include <testkit/GdiPlusSession.h>
#include <testkit/Picture.h>
#include <testkit/TemporaryProfile.h>

#include <ovoui/frame/Geometry.h>
#include <ovoui/frame/Language.h>
#include <ovoui/frame/ThemeData.h>

#include <uxtheme.h>

using namespace ovo::testkit;

namespace
{

constexpr int kLine = 6; // below the palette

} // namespace

TEST_F(ColourButton, ShowsItsColour)
{
    show();
    EXPECT_EQ(Picture::ofClient(*button).at(20, 12), kSky);
    button->SetColour(Colour::colorref(kLeaf));
    EXPECT_EQ(Picture::ofClient(*button).at(20, 12), kLeaf);
    EXPECT_TRUE(parent.codes().empty()) << "code tells no one";
    button->SetColour(Colour::rgba(1, 0, 0, 0.5));
    const Picture half = Picture::ofClient(*button);
    EXPECT_EQ(half.at(10, 12), RGB(255, 0, 0));
    EXPECT_GT(half.count(RGB(255, 128, 128)), 10) << "over white";
    EXPECT_GT(half.count(RGB(128, 0, 0)), 10) << "over black";
}

TEST_F(ColourButton, DisabledItIsPaleAndDeaf)
{
    show();
    button->EnableWindow(FALSE);
    EXPECT_NE(Picture::ofClient(*button).at(20, 12), kSky);
    user.click(Spot{*button});
    button->DropDown();
    EXPECT_FALSE(button->IsDropped());
    EXPECT_TRUE(parent.codes().empty());
}

TEST_F(ColourButton, AloneWithoutVisualStylesItHasTheClassicFrame)
{
    show();
    const Picture before = Picture::ofClient(*button);
    const auto expectFrame = [&](UINT state) {
        const Picture shown = Picture::ofClient(*button);
        const Picture classic(shown.width(), shown.height());
        CRect rect(0, 0, shown.width(), shown.height());
        ::DrawFrameControl(classic.dc(), &rect, DFC_BUTTON, DFCS_BUTTONPUSH | state);
        for (int x = 0; x < shown.width(); ++x) {
            EXPECT_EQ(shown.at(x, 0), classic.at(x, 0)) << x;
            EXPECT_EQ(shown.at(x, shown.height() - 1), classic.at(x, shown.height() - 1)) << x;
        }
        for (int y = 0; y < shown.height(); ++y)
            EXPECT_EQ(shown.at(0, y), classic.at(0, y)) << y;
    };
    ::SetWindowTheme(*button, L" ", L" "); // of no class that there is
    expectFrame(0);
    button->DropDown();
    expectFrame(DFCS_PUSHED);
    button->CloseUp();
    ::SetWindowTheme(*button, nullptr, nullptr);
    EXPECT_EQ(Picture::ofClient(*button).differences(before), 0) << "with them again";
}

/// A theme may have light buttons where the system's colours are dark.
TEST_F(ColourButton, WithVisualStylesItsArrowHasTheThemesColourOfTexts)
{
    show();
    constexpr COLORREF kSystems = RGB(1, 254, 2);
    const int element = COLOR_BTNTEXT;
    const COLORREF before = ::GetSysColor(element);
    ::SetSysColors(1, &element, &kSystems);
    const Picture themed = Picture::ofClient(*button);
    ::SetWindowTheme(*button, L" ", L" ");
    const Picture classic = Picture::ofClient(*button);
    ::SetSysColors(1, &element, &before);
    EXPECT_GT(classic.count(kSystems), 10);
    EXPECT_EQ(themed.count(kSystems), CThemeData::getThemeData().IsAppThemed() ? 0 : classic.count(kSystems));
}

TEST_F(ColourButton, TheFocusIsShown)
{
    show();
    parent.SetFocus();
    const Picture without = Picture::ofClient(*button);
    button->SetFocus();
    EXPECT_GT(without.differences(Picture::ofClient(*button)), 20);
}

TEST_F(ColourButton, AClickDropsThePaletteAndAnotherClosesIt)
{
    show();
    open();
    ASSERT_NE(shownPopup(), nullptr);
    EXPECT_EQ(placeOf(shownPopup()).top, placeOf(*button).bottom);
    EXPECT_EQ(placeOf(shownPopup()).left, placeOf(*button).left);
    EXPECT_EQ(::GetFocus(), button->m_hWnd);
    EXPECT_EQ(::GetActiveWindow(), parent.m_hWnd) << "the palette does not take the activation";
    user.click(Spot{*button});
    EXPECT_FALSE(button->IsDropped());
    EXPECT_EQ(shownPopup(), nullptr);
    EXPECT_EQ(parent.codes(), (std::vector<UINT>{kDropped, kClosed}));
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(ColourButton, AClickInThePaletteChooses)
{
    show();
    open();
    user.click(cell(1));
    EXPECT_EQ(now(), kRust);
    EXPECT_EQ(parent.codes(), (std::vector<UINT>{kDropped, kGridPointed, kClosed, kGridChosen}));
    EXPECT_EQ(Picture::ofClient(*button).at(20, 12), kRust);
}

TEST_F(ColourButton, ADragFromTheButtonIntoThePaletteChooses)
{
    show();
    user.press(Spot{*button})
        .waitFor("the palette", [this] { return button->IsDropped(); })
        .moveTo(Spot{[this] { return cell(4).find(); }})
        .release();
    EXPECT_EQ(now(), RGB(0, 0, 255));
}

TEST_F(ColourButton, AlphaIsKept)
{
    show();
    button->SetColour(Colour::rgba(1, 1, 0, 0.25));
    open();
    user.click(cell(0));
    EXPECT_EQ(now(), kLeaf);
    EXPECT_EQ(button->GetColour().a(), 0.25);
}

TEST_F(ColourButton, APressElsewhereCloses)
{
    show();
    open();
    user.click(Spot{parent, CPoint(400, 300)});
    EXPECT_FALSE(button->IsDropped());
    EXPECT_EQ(now(), kSky);
    EXPECT_EQ(parent.log().count(kClosed), 1);
    EXPECT_EQ(parent.log().count(kGridChosen), 0);
}

TEST_F(ColourButton, KeysOpenMoveAndChoose)
{
    show();
    for (const WORD key : {VK_SPACE, VK_DOWN, VK_F4}) {
        button->SetColour(Colour::colorref(kSky));
        button->SetFocus();
        parent.log().clear();
        user.key(key);
        ASSERT_TRUE(button->IsDropped()) << key;
        EXPECT_EQ(button->PointedColour()->colorref(), kSky) << "the present one is marked";
        user.key(VK_DOWN);
        EXPECT_EQ(button->PointedColour()->colorref(), RGB(0, 0, 0));
        user.key(VK_LEFT);
        EXPECT_EQ(now(), kSky) << "not before it is chosen";
        user.key(VK_RETURN);
        EXPECT_FALSE(button->IsDropped());
        EXPECT_EQ(now(), RGB(0, 0, 255));
        EXPECT_EQ(parent.codes(),
                  (std::vector<UINT>{kDropped, kGridPointed, kGridPointed, kClosed, kGridChosen}));
    }
    user.holding(VK_MENU).key(VK_DOWN);
    EXPECT_TRUE(button->IsDropped());
    user.key(VK_HOME).key(VK_SPACE);
    EXPECT_EQ(now(), kLeaf);
}

TEST_F(ColourButton, AltAndAnArrowOpensAndCloses)
{
    show();
    button->SetFocus();
    for (const WORD opens : {VK_DOWN, VK_UP})
        for (const WORD closes : {VK_DOWN, VK_UP}) {
            button->SetColour(Colour::colorref(kSky));
            user.holding(VK_MENU).key(opens);
            EXPECT_TRUE(button->IsDropped()) << opens;
            user.key(VK_HOME).holding(VK_MENU).key(closes);
            EXPECT_FALSE(button->IsDropped()) << closes;
            EXPECT_EQ(now(), kSky) << "nothing is chosen";
        }
}

TEST_F(ColourButton, AKeyThatIsHeldOpensOnceAndChoosesNothing)
{
    constexpr LPARAM kFirst = 1;
    constexpr LPARAM kAgain = 0x40000001;
    show();
    button->SetFocus();
    for (const WPARAM key : {VK_SPACE, VK_F4}) {
        parent.log().clear();
        button->SendMessage(WM_KEYDOWN, key, kFirst);
        ASSERT_TRUE(button->IsDropped()) << key;
        button->SendMessage(WM_KEYDOWN, key, kAgain);
        button->SendMessage(WM_KEYDOWN, key, kAgain);
        EXPECT_TRUE(button->IsDropped()) << key;
        EXPECT_EQ(parent.codes(), (std::vector<UINT>{kDropped})) << key;
        button->SendMessage(WM_KEYDOWN, VK_LEFT, kAgain);
        EXPECT_EQ(button->PointedColour()->colorref(), kRust) << "held, an arrow goes on";
        button->CloseUp();
    }
    button->SendMessage(WM_SYSKEYDOWN, VK_DOWN, kFirst);
    button->SendMessage(WM_SYSKEYDOWN, VK_DOWN, kAgain);
    EXPECT_TRUE(button->IsDropped()) << "Alt+Down";
}

TEST_F(ColourButton, EscapeAndTheLossOfTheFocusClose)
{
    show();
    button->SetFocus();
    user.key(VK_DOWN).key(VK_LEFT).key(VK_ESCAPE);
    EXPECT_FALSE(button->IsDropped());
    EXPECT_EQ(now(), kSky);
    user.key(VK_DOWN);
    EXPECT_TRUE(button->IsDropped());
    parent.SetFocus();
    EXPECT_FALSE(button->IsDropped());
    EXPECT_EQ(shownPopup(), nullptr);
    EXPECT_EQ(now(), kSky);
    EXPECT_EQ(parent.log().count(kGridChosen), 0);
}

TEST_F(ColourButton, AtTheLowerEdgeOfTheScreenItOpensUpwards)
{
    const RECT work = GetWorkArea(RECT{0, 0, 10, 10});
    show({100, 80});
    CRect rect = placeOf(parent);
    rect.MoveToY(work.bottom - 60);
    parent.SetWindowPos(nullptr, rect.left, rect.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    CRect face = placeOf(*button);
    parent.SetWindowPos(nullptr, rect.left, rect.top - (face.bottom - (work.bottom - 4)), 0, 0,
                        SWP_NOSIZE | SWP_NOZORDER);
    open();
    EXPECT_EQ(placeOf(shownPopup()).bottom, placeOf(*button).top);
    EXPECT_LE(placeOf(shownPopup()).bottom, work.bottom);
}

TEST_F(ColourButton, TheLineOpensTheDialog)
{
    show();
    button->onAsk = [this](const Colour& colour) -> std::optional<Colour> {
        EXPECT_EQ(colour.colorref(), kSky);
        EXPECT_FALSE(button->IsDropped());
        return Colour::rgb(0, 1, 0);
    };
    open();
    user.click(cell(kLine));
    EXPECT_EQ(button->asked, 1);
    EXPECT_EQ(now(), RGB(0, 255, 0));
    EXPECT_EQ(parent.codes().back(), kGridChosen);
    button->onAsk = [](const Colour&) { return std::nullopt; };
    parent.log().clear();
    button->SetFocus();
    user.key(VK_DOWN).key(VK_END).key(VK_RETURN);
    EXPECT_EQ(button->asked, 2);
    EXPECT_EQ(now(), RGB(0, 255, 0));
    EXPECT_EQ(parent.log().count(kGridChosen), 0) << "given up";
}

TEST_F(ColourButton, ItsOwnDialogGivesTheColour)
{
    const GdiPlusSession gdiPlus;
    const TemporaryProfile profile;
    show();
    button->SetFocus();
    user.key(VK_DOWN)
        .key(VK_END)
        .key(VK_RETURN)
        .waitFor("the dialog", [] { return shownDialog() != nullptr; })
        .then([] {
            ::SetFocus(::GetDlgItem(shownDialog(), 20561));
            ::SetDlgItemTextW(shownDialog(), 20561, L"teal");
        })
        .key(VK_RETURN)
        .waitFor("its end", [this] { return parent.log().count(kGridChosen) == 1; });
    EXPECT_EQ(now(), RGB(0, 128, 128));
}

TEST_F(ColourButton, TheLineHasRoomForItsTextInEveryLanguage)
{
    show();
    for (const int columns : {1, 3, 8}) {
        button->SetPalette({kLeaf, kRust, kSky}, columns);
        for (const LANGID language : textLanguages()) {
            ASSERT_TRUE(setTextLanguage(language));
            button->DropDown();
            const AccessibleView list(shownPopup());
            const std::wstring text = list.name(4);
            CClientDC dc(button.get());
            CFont* const own = button->GetFont();
            CFont* const before = dc.SelectObject(
                own ? own : CFont::FromHandle(static_cast<HFONT>(::GetStockObject(DEFAULT_GUI_FONT))));
            EXPECT_GE(list.place(4).Width(), dc.GetTextExtent(text.c_str(), static_cast<int>(text.size())).cx)
                << columns << " columns, language " << language;
            EXPECT_FALSE(text.empty());
            dc.SelectObject(before);
            button->CloseUp();
        }
    }
    setTextLanguage(0);
}

TEST_F(ColourButton, WithoutADialogThereAreOnlyColours)
{
    show();
    button->UseDialog(false);
    button->SetFocus();
    user.key(VK_DOWN).key(VK_END).key(VK_RETURN);
    EXPECT_EQ(button->asked, 0);
    EXPECT_EQ(now(), RGB(0, 0, 0));
}

TEST_F(ColourButton, AColourBesideThePaletteIsNotMarked)
{
    show();
    button->SetColour(Colour::rgb(0.1, 0.2, 0.3));
    button->SetFocus();
    user.key(VK_DOWN);
    EXPECT_FALSE(button->PointedColour());
    user.key(VK_DOWN);
    EXPECT_EQ(button->PointedColour()->colorref(), kLeaf);
    user.key(VK_END);
    EXPECT_FALSE(button->PointedColour()) << "the line is no colour";
}

TEST_F(ColourButton, APointerAtRestDoesNotMoveTheMark)
{
    show();
    open();
    const CPoint under = cell(4).find();
    user.key(VK_ESCAPE).moveTo(Spot{under});
    button->SetFocus();
    user.key(VK_DOWN);
    ASSERT_TRUE(button->IsDropped());
    EXPECT_EQ(button->PointedColour()->colorref(), kSky);
    user.moveBy(2, 0);
    EXPECT_EQ(button->PointedColour()->colorref(), RGB(0, 0, 255));
}

TEST_F(ColourButton, UnderThePointerItIsHotAndAfterwardsNot)
{
    if (!CThemeData::getThemeData().IsAppThemed())
        GTEST_SKIP() << "visual styles are off";
    const CPoint corner(5, 5);          // of the screen
    ::SetCursorPos(corner.x, corner.y); // the button does not come up under it
    show();
    const Spot elsewhere{corner};
    const Picture usual = Picture::ofClient(*button);
    const auto differs = [&] { return Picture::ofClient(*button).differences(usual) > 0; };
    user.moveTo(Spot{*button}).waitFor("the hot look", differs);
    user.moveTo(elsewhere).waitFor("the usual look", [&] { return !differs(); });
    user.moveTo(Spot{*button}).waitFor("the hot look again", differs);
}

TEST_F(ColourButton, AQuickSecondPressIsOneLikeTheFirst)
{
    show();
    parent.onCode = [this](UINT code) { // so that the button gets the second press, and not the palette
        if (code == kDropped)
            button->CloseUp();
    };
    user.doubleClick(Spot{*button});
    EXPECT_EQ(parent.codes(), (std::vector<UINT>{kDropped, kClosed, kDropped, kClosed}));
    EXPECT_EQ(parent.log().count(BN_CLICKED), 0);
    EXPECT_EQ(parent.log().count(BN_DOUBLECLICKED), 0);
}

TEST_F(ColourButton, EnterWithoutAMarkClosesThePalette)
{
    show();
    button->SetColour(Colour::rgb(0.1, 0.2, 0.3));
    const COLORREF before = now();
    button->SetFocus();
    user.key(VK_DOWN).key(VK_RETURN);
    EXPECT_FALSE(button->IsDropped());
    EXPECT_EQ(now(), before);
    EXPECT_EQ(parent.codes(), (std::vector<UINT>{kDropped, kClosed}));
}

TEST_F(ColourButton, APaletteWithoutColoursOpensAndCloses)
{
    show();
    button->SetPalette({}, 0);
    button->UseDialog(false);
    button->SetFocus();
    user.key(VK_DOWN).key(VK_HOME).key(VK_END).key(VK_RIGHT);
    EXPECT_TRUE(button->IsDropped());
    EXPECT_FALSE(button->PointedColour());
    user.key(VK_RETURN);
    EXPECT_FALSE(button->IsDropped());
    EXPECT_EQ(parent.codes(), (std::vector<UINT>{kDropped, kClosed}));
}

TEST_F(ColourButton, AMarkThatStaysTellsNoOne)
{
    show();
    button->SetFocus();
    user.key(VK_DOWN).key(VK_HOME, 2).key(VK_LEFT);
    EXPECT_EQ(parent.codes(), (std::vector<UINT>{kDropped, kGridPointed}));
}

TEST_F(ColourButton, ThePaletteShowsItsColoursItsMarkAndItsLine)
{
    show();
    user.moveTo(Spot{parent, CPoint(400, 300)});
    button->SetFocus();
    user.key(VK_DOWN);
    const HWND palette = shownPopup();
    ASSERT_NE(palette, nullptr);
    const AccessibleView list(palette);
    const auto place = [&](int index) {
        CRect rect = list.place(index + 1);
        rect.OffsetRect(-placeOf(palette).left, -placeOf(palette).top);
        return rect;
    };
    const auto expectCells = [&](const Picture& shown, int marked) {
        constexpr COLORREF kColours[] = {kLeaf, kRust, kSky, RGB(255, 0, 0), RGB(0, 0, 255), RGB(0, 0, 0)};
        for (int i = 0; i < kLine; ++i) {
            const CRect cell = place(i);
            EXPECT_EQ(shown.at(cell.CenterPoint()), kColours[i]) << i;
            const bool mark = shown.at(cell.left, cell.top) == RGB(0, 0, 0) &&
                              shown.at(cell.left + 1, cell.top + 1) == RGB(255, 255, 255);
            EXPECT_EQ(mark, i == marked) << i;
        }
        EXPECT_EQ(shown.at(0, 0), ::GetSysColor(COLOR_BTNSHADOW)) << "its edge";
    };
    const CRect line = place(kLine);
    constexpr int kSmooth = 60; // of the edges of letters
    const Picture first = Picture::ofWindow(palette);
    expectCells(first, 2);
    EXPECT_EQ(first.at(line.TopLeft()), ::GetSysColor(COLOR_MENU));
    EXPECT_GT(first.count(::GetSysColor(COLOR_MENUTEXT), kSmooth, line), 5);

    user.key(VK_LEFT);
    expectCells(Picture::ofWindow(palette), 1);

    user.key(VK_END);
    const Picture last = Picture::ofWindow(palette);
    expectCells(last, -1);
    EXPECT_EQ(last.at(line.TopLeft()), ::GetSysColor(COLOR_HIGHLIGHT)) << "without a mark as colours have it";
    EXPECT_GT(last.count(::GetSysColor(COLOR_HIGHLIGHT), 0, line), line.Width() * line.Height() / 2);
    EXPECT_GT(last.count(::GetSysColor(COLOR_HIGHLIGHTTEXT), kSmooth, line), 5);
}

TEST_F(ColourButton, InADialogTheKeysAreThePalettesWhileItIsOpen)
{
    EmptyDialog form;
    ASSERT_TRUE(form.create({60, 60}, {160, 90}));
    constexpr DWORD kStop = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
    CEdit before;
    before.Create(kStop | WS_BORDER, CRect(10, 10, 100, 30), &form, 1001);
    button = std::make_unique<PenButton>();
    button->Create(L"&Pen", kStop, CRect(10, 40, 70, 64), &form, 7);
    button->SetPalette({kLeaf, kRust, kSky}, 3);
    button->SetColour(Colour::colorref(kSky));
    CEdit after;
    after.Create(kStop | WS_BORDER, CRect(10, 70, 100, 90), &form, 1002);
    present(form);

    button->SetFocus();
    user.key(VK_DOWN);
    ASSERT_TRUE(button->IsDropped()) << "the dialog does not take the arrow";
    user.key(VK_ESCAPE);
    EXPECT_FALSE(button->IsDropped());
    EXPECT_TRUE(form.IsWindowVisible()) << "Escape closes the palette alone";
    user.key(VK_DOWN).key(VK_LEFT).key(VK_RETURN);
    EXPECT_EQ(now(), kRust);
    EXPECT_TRUE(form.IsWindowVisible()) << "Enter chooses";
    EXPECT_EQ(::GetFocus(), button->m_hWnd);

    user.key(VK_DOWN).key(VK_HOME).key(VK_TAB).waitFor("the next control",
                                                       [&] { return ::GetFocus() == after.m_hWnd; });
    EXPECT_FALSE(button->IsDropped());
    EXPECT_EQ(now(), kRust) << "Tab chooses nothing";
    button->SetFocus();
    user.key(VK_DOWN).holding(VK_SHIFT).key(VK_TAB).letGo(VK_SHIFT).waitFor(
        "the control before", [&] { return ::GetFocus() == before.m_hWnd; });
    EXPECT_FALSE(button->IsDropped());
    button.reset();
    form.DestroyWindow();
}
