#include <ovoui/files/core/ClassicEvents.h>

#include <gtest/gtest.h>

#include <limits>
#include <map>

using namespace ovoui;
using enum ClassicEvent;
using Meaning = Click::Meaning;

namespace
{

const std::map<Meaning, ClassicEvent> kClicks{{Meaning::CheckButton, CheckButtonToggled},
                                              {Meaning::PushButton, ButtonClicked},
                                              {Meaning::Menu, MenuOpens},
                                              {Meaning::RadioButton, RadioSelected}};

} // namespace

TEST(ClassicEvents, EveryCodeOfEveryKindOfControl)
{
    for (unsigned code = 0; code <= 0xFFFF; ++code)
        for (const bool fromControl : {false, true})
            for (const auto& [meaning, click] : kClicks) {
                const ClassicEvent expected = code == 0        ? click // from menus and accelerators too
                                              : code == 1      ? (fromControl ? ItemSelected : None)
                                              : code == 0x0300 ? TextChanged
                                                               : None;
                ASSERT_EQ(classicEvent(code, fromControl, meaning), expected)
                    << code << ", " << fromControl << ", " << static_cast<int>(meaning);
            }
}

TEST(ClassicEvents, AnItemIsAnIndexOf32Bits)
{
    EXPECT_EQ(itemOf(-1), std::nullopt) << "no selection";
    EXPECT_EQ(itemOf(std::numeric_limits<std::int64_t>::min()), std::nullopt);
    EXPECT_EQ(itemOf(0), 0u);
    EXPECT_EQ(itemOf(7), 7u);
    EXPECT_EQ(itemOf(0xFFFFFFFF), 0xFFFFFFFF);
    EXPECT_EQ(itemOf(0x100000000), std::nullopt);
}
