// What a button of a bar is: every state with every style.
#include <ovoui/toolbar/core/ButtonRules.h>

#include <gtest/gtest.h>

#include <vector>

using namespace ovoui::toolbar;

namespace
{

constexpr unsigned kChecked = 0x01;
constexpr unsigned kEnabled = 0x04;
constexpr unsigned kHidden = 0x08;
constexpr unsigned kIndeterminate = 0x10;
constexpr unsigned kWrap = 0x20;
constexpr unsigned kSeparator = 0x01;
constexpr unsigned kCheck = 0x02;

/// All states, all styles that count, with and without a command.
std::vector<ButtonFields> everyButton()
{
    std::vector<ButtonFields> all;
    for (unsigned state = 0; state <= 0xFF; ++state)
        for (unsigned style = 0; style < 16; ++style)
            for (const int command : {0, 100})
                all.push_back({30, command, static_cast<unsigned char>(state),
                               static_cast<unsigned char>(style), 7, -1});
    return all;
}

} // namespace

TEST(ButtonRules, ASeparatorWithACommandKeepsAControl)
{
    for (const ButtonFields& button : everyButton()) {
        EXPECT_EQ(isSeparator(button), (button.style & kSeparator) != 0);
        EXPECT_EQ(keepsControl(button), (button.style & kSeparator) && button.command == 100);
        EXPECT_EQ(canBePressed(button), (button.state & kEnabled) && !(button.style & kSeparator));
    }
}

TEST(ButtonRules, AmongTheRowsASeparatorHasAWidthOfItsOwn)
{
    for (const ButtonFields& button : everyButton()) {
        const RowItem item = rowItemOf(button, 23);
        const bool separator = (button.style & kSeparator) != 0;
        EXPECT_EQ(item, (RowItem{separator ? 30 : 23, separator, separator && button.command == 100,
                                 (button.state & kHidden) != 0, (button.state & kWrap) != 0}));
    }
}

TEST(ButtonRules, TheKeyboardStopsAtWhatCanBePressedOrOpens)
{
    for (const ButtonFields& button : everyButton())
        for (const bool shown : {false, true})
            for (const bool hasFlyout : {false, true}) {
                const bool works = (button.state & kEnabled) || hasFlyout;
                EXPECT_EQ(isStop(button, shown, hasFlyout), shown && works && !(button.style & kSeparator));
            }
}

TEST(ButtonRules, OneColumnHasARowForEachButtonThatShows)
{
    const ButtonFields plain{0, 100, kEnabled, 0, 0, 0};
    const ButtonFields separator{8, 0, kEnabled, kSeparator, 0, 0};
    const ButtonFields hidden{0, 101, kEnabled | kHidden, 0, 0, 0};
    const std::vector<ButtonFields> bar{plain, separator, plain, hidden, plain};
    for (int rows = 0; rows < 6; ++rows)
        EXPECT_EQ(isOneColumn(bar, rows), rows >= 3) << rows;
    EXPECT_TRUE(isOneColumn({}, 0));
}

TEST(ButtonRules, OfAChosenButtonOnlyTheEndOfItsRowStays)
{
    for (const ButtonFields& button : everyButton()) {
        const ButtonFields chosen = withChoice(button, 200, 9);
        EXPECT_EQ(chosen.command, 200);
        EXPECT_EQ(chosen.image, 9);
        EXPECT_EQ(chosen.state, (button.state & kWrap) | kEnabled);
        EXPECT_EQ(chosen.style, 0);
        EXPECT_EQ(chosen.data, button.data);
        EXPECT_EQ(chosen.text, button.text);
    }
}

TEST(ButtonRules, ADoubleClickIsToldOfAnEnabledCommand)
{
    for (const ButtonFields& button : everyButton())
        for (const bool enabled : {false, true})
            EXPECT_EQ(tellsOfDoubleClick(button, enabled), button.command == 100 && enabled);
}

TEST(ButtonRules, TheFrameworkKeepsStateAboveStyleAndTellsOfDisabledButtons)
{
    for (const ButtonFields& button : everyButton()) {
        const unsigned style = frameworkStyle(button);
        EXPECT_EQ(style & 0xFFFF, button.style);
        EXPECT_EQ(style >> 16, button.state ^ kEnabled);
    }
}

TEST(ButtonRules, ACommandThatIsEnabledOrDisabledChangesThatAlone)
{
    for (const ButtonFields& button : everyButton())
        for (const bool enabled : {false, true}) {
            ButtonFields expected = button;
            const unsigned others = button.state & ~kEnabled;
            expected.state = static_cast<unsigned char>(enabled ? others | kEnabled : others);
            EXPECT_EQ(withEnabled(frameworkStyle(button), enabled), frameworkStyle(expected));
        }
}

TEST(ButtonRules, ACommandThatIsCheckedMakesACheckButton)
{
    for (const ButtonFields& button : everyButton())
        for (const int check : {0, 1, 2}) {
            const unsigned shown = check == 0 ? 0u : check == 1 ? kChecked : kIndeterminate;
            ButtonFields expected = button;
            expected.state =
                static_cast<unsigned char>((button.state & ~(kChecked | kIndeterminate)) | shown);
            expected.style = static_cast<unsigned char>(button.style | kCheck);
            EXPECT_EQ(withCheck(frameworkStyle(button), check), frameworkStyle(expected));
        }
}

TEST(ButtonRules, EveryButtonHasOneRole)
{
    for (const ButtonFields& button : everyButton())
        for (const bool opens : {false, true}) {
            ButtonRole expected = (button.style & kCheck) ? ButtonRole::CheckButton : ButtonRole::PushButton;
            if (opens)
                expected = ButtonRole::FlyoutButton;
            if (button.style & kSeparator)
                expected = ButtonRole::Separator;
            EXPECT_EQ(roleOf(button, opens), expected);
        }
}
