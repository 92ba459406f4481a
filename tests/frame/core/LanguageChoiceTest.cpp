#include <ovoui/frame/core/LanguageChoice.h>

#include <gtest/gtest.h>

using namespace ovoui::frame;
using Ids = std::vector<LanguageId>;

namespace
{

constexpr LanguageId kGerman = 0x0007;
constexpr LanguageId kGermanOfGermany = 0x0407;
constexpr LanguageId kGermanOfAustria = 0x0C07;
constexpr LanguageId kEnglish = 0x0009;
constexpr LanguageId kEnglishOfAmerica = 0x0409;
constexpr LanguageId kPolish = 0x0015;
constexpr LanguageId kPolishOfPoland = 0x0415;

const Ids kMarks{kGerman, kGermanOfGermany, kEnglish, kEnglishOfAmerica, kPolish, kPolishOfPoland};

} // namespace

TEST(LanguageChoice, EnglishComesFirstAndTheRestStaysInOrder)
{
    EXPECT_EQ(languagesAmong(kMarks), (Ids{kEnglish, kGerman, kPolish}));
    EXPECT_EQ(languagesAmong({kPolish, kGerman}), (Ids{kPolish, kGerman}));
    EXPECT_EQ(languagesAmong({kGermanOfGermany}), Ids{});
    EXPECT_EQ(languagesAmong({}), Ids{});
}

TEST(LanguageChoice, EveryRegionOfALanguageGetsThatOfTheTexts)
{
    for (unsigned id = 0; id <= 0xFFFF; ++id) {
        const unsigned primary = id & 0x3FF;
        const LanguageId expected = primary == 7    ? kGermanOfGermany
                                    : primary == 9  ? kEnglishOfAmerica
                                    : primary == 21 ? kPolishOfPoland
                                                    : LanguageId{0};
        ASSERT_EQ(withRegionOfMarks(kMarks, static_cast<LanguageId>(id)), expected) << std::hex << id;
    }
    EXPECT_EQ(withRegionOfMarks({kGerman}, kGerman), 0) << "no region to be had";
    EXPECT_EQ(withRegionOfMarks({kGermanOfAustria, kGermanOfGermany}, kGerman), kGermanOfAustria);
}
