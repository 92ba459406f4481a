#include <ovoui/frame/core/BoxAnswers.h>

#include <gtest/gtest.h>

#include <algorithm>

using namespace ovoui::frame;

namespace
{

constexpr int kOk = 1;
constexpr int kCancel = 2;
constexpr int kIgnore = 5;
constexpr int kNo = 7;
constexpr int kHelp = 9;
constexpr int kOfTheHost = 20000;
constexpr int kIds[] = {kOk, kCancel, 3, 4, kIgnore, 6, kNo, kHelp, kOfTheHost};

std::vector<int> idsOf(const MessageBoxButtons& buttons)
{
    std::vector<int> ids;
    for (const MessageBoxButton& button : buttons.buttons)
        ids.push_back(button.id);
    return ids;
}

bool has(const std::vector<int>& ids, int id)
{
    return std::ranges::count(ids, id) > 0;
}

/// Boxes with every set of those buttons.
template <class Visit>
void forEveryBox(Visit visit)
{
    for (unsigned set = 0; set < 1u << std::size(kIds); ++set) {
        MessageBoxButtons buttons;
        for (std::size_t i = 0; i < std::size(kIds); ++i)
            if (set & 1u << i)
                buttons.buttons.push_back({kIds[i], 0, L"", L"Label"});
        visit(buttons, idsOf(buttons));
    }
}

} // namespace

TEST(BoxAnswers, TheCloseBoxTakesTheMildestAnswerThatThereIs)
{
    forEveryBox([](const MessageBoxButtons& box, const std::vector<int>& ids) {
        const int expected = has(ids, kCancel)   ? kCancel
                             : has(ids, kNo)     ? kNo
                             : has(ids, kIgnore) ? kIgnore
                             : has(ids, kOk)     ? kOk
                                                 : kCancel;
        ASSERT_EQ(closeAnswer(box), expected);
    });
}

TEST(BoxAnswers, OfEverySetOfThePlatform)
{
    const std::pair<unsigned, int> rows[] = {
        {0, kOk},     {1, kCancel},          {2, kIgnore},      {3, kCancel},     {4, kNo},
        {5, kCancel}, {0x01000001, kCancel}, {0x01000004, kNo}, {0x01000005, kNo}};
    for (const auto& [type, answer] : rows)
        EXPECT_EQ(closeAnswer(messageBoxButtons(type)), answer) << std::hex << type;
}

TEST(BoxAnswers, AClickOnAButtonOfTheBoxAnswers)
{
    forEveryBox([](const MessageBoxButtons& box, const std::vector<int>& ids) {
        for (const int id : {0, kOk, kCancel, 3, 4, kIgnore, 6, kNo, 8, kHelp, kOfTheHost, 20001})
            for (const unsigned code : {0u, 1u, 5u, 6u, 0x300u}) {
                const bool own = has(ids, id);
                ASSERT_EQ(hasButton(box, id), own);
                ASSERT_EQ(isAnswer(box, id, code), code == 0 && own && id != kHelp) << id << ", " << code;
                ASSERT_EQ(mayBeKept(box, id), own && id != kCancel && id != kHelp) << id;
            }
        ASSERT_FALSE(mayBeKept(box, -1)) << "a box that could not be created";
    });
}

TEST(BoxAnswers, TabGoesFromLeftToRightAfterHelp)
{
    forEveryBox([](const MessageBoxButtons& box, const std::vector<int>& ids) {
        const std::vector<int> order = tabOrder(box);
        std::vector<int> inOrder;
        for (const int position : order)
            inOrder.push_back(ids.at(static_cast<std::size_t>(position)));
        std::vector<int> expected = ids;
        if (!ids.empty() && ids.back() == kHelp) {
            expected.pop_back();
            expected.insert(expected.begin(), kHelp);
        }
        ASSERT_EQ(inOrder, expected);
    });
}
