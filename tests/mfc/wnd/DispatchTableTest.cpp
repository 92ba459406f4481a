// Which entry a message or command finds: the tables made of message maps give what a walk over the entries
// would.
#include <afxwin.h>

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace
{

BOOL nothing(CCmdTarget*, afxdetail::Call&)
{
    return TRUE;
}

AFX_MSGMAP_ENTRY entry(UINT message, UINT code = 0, UINT first = 0, UINT last = 0)
{
    return {message, code, first, last, nullptr, &nothing, nullptr};
}

AFX_MSGMAP_ENTRY registered(const UINT& number)
{
    return {0xC000, 0, 0, 0, &number, &nothing, nullptr};
}

/// The maps of a class and its bases. A map names its base by a function, so there is one set at a time.
class Chain
{
public:
    static constexpr std::size_t kLevels = 3;
    using Levels = std::vector<std::vector<AFX_MSGMAP_ENTRY>>;

    /// From the most derived class to the last base.
    explicit Chain(Levels levels)
        : m_levels(ended(std::move(levels)))
    {
        s_current = this;
    }
    Chain(const Chain&) = delete;
    Chain& operator=(const Chain&) = delete;

    const AFX_MSGMAP* map() const { return &m_maps[0]; }
    const AFX_MSGMAP_ENTRY* at(std::size_t level, std::size_t index) const { return &m_levels[level][index]; }

    /// What the documentation says: the first entry that fits, from the most derived class on.
    template <class Fits>
    const AFX_MSGMAP_ENTRY* first(Fits fits) const
    {
        for (const auto& level : m_levels)
            for (const AFX_MSGMAP_ENTRY& one : level)
                if (one.pfnThunk && fits(one))
                    return &one;
        return nullptr;
    }

private:
    static Levels ended(Levels levels)
    {
        levels.resize(kLevels);
        for (auto& level : levels)
            level.push_back({0, 0, 0, 0, nullptr, nullptr, nullptr});
        return levels;
    }

    static const AFX_MSGMAP* PASCAL second() { return &s_current->m_maps[1]; }
    static const AFX_MSGMAP* PASCAL third() { return &s_current->m_maps[2]; }

    static inline Chain* s_current = nullptr;

    Levels m_levels;
    AFX_MSGMAP m_maps[kLevels]{
        {&second, m_levels[0].data()}, {&third, m_levels[1].data()}, {nullptr, m_levels[2].data()}};
};

} // namespace

TEST(DispatchTable, ARangeGivesWayWhereAnEarlierEntryStands)
{
    const Chain chain(
        {{entry(WM_COMMAND, 0, 20, 20), entry(WM_COMMAND, 0, 10, 30), entry(WM_COMMAND, 0, 25, 25)},
         {entry(WM_COMMAND, 0, 5, 40), entry(WM_COMMAND, 1, 0, 0xFFFF)}});
    const auto found = [&](UINT id, UINT code = 0) {
        return afxdetail::findCommand(chain.map(), WM_COMMAND, code, id);
    };
    EXPECT_EQ(found(20), chain.at(0, 0));
    EXPECT_EQ(found(10), chain.at(0, 1));
    EXPECT_EQ(found(25), chain.at(0, 1)) << "behind the range in the same map";
    EXPECT_EQ(found(30), chain.at(0, 1));
    EXPECT_EQ(found(9), chain.at(1, 0));
    EXPECT_EQ(found(31), chain.at(1, 0));
    EXPECT_EQ(found(4), nullptr);
    EXPECT_EQ(found(41), nullptr);
    EXPECT_EQ(found(0, 1), chain.at(1, 1));
    EXPECT_EQ(found(0xFFFF, 1), chain.at(1, 1));
    EXPECT_EQ(found(20, 2), nullptr);
}

TEST(DispatchTable, CommandsNotificationsAndReflectedOnesAreApart)
{
    const Chain chain({{entry(WM_NOTIFY, 7, 3, 3), entry(WM_COMMAND, 7, 3, 3),
                        entry(WM_REFLECT_BASE + WM_NOTIFY, 7, 0, 0xFFFF)}});
    EXPECT_EQ(afxdetail::findCommand(chain.map(), WM_NOTIFY, 7, 3), chain.at(0, 0));
    EXPECT_EQ(afxdetail::findCommand(chain.map(), WM_COMMAND, 7, 3), chain.at(0, 1));
    EXPECT_EQ(afxdetail::findCommand(chain.map(), WM_REFLECT_BASE + WM_NOTIFY, 7, 0), chain.at(0, 2));
    EXPECT_EQ(afxdetail::findCommand(chain.map(), WM_REFLECT_BASE + WM_COMMAND, 7, 3), nullptr);
}

TEST(DispatchTable, RangesReachToTheLargestNumber)
{
    const Chain chain({{entry(WM_COMMAND, 0, 0xFFFFFFFF, 0xFFFFFFFF), entry(WM_COMMAND, 0, 1, 0xFFFFFFFF)}});
    EXPECT_EQ(afxdetail::findCommand(chain.map(), WM_COMMAND, 0, 0xFFFFFFFF), chain.at(0, 0));
    EXPECT_EQ(afxdetail::findCommand(chain.map(), WM_COMMAND, 0, 0xFFFFFFFE), chain.at(0, 1));
    EXPECT_EQ(afxdetail::findCommand(chain.map(), WM_COMMAND, 0, 0), nullptr);
}

TEST(DispatchTable, OfTwoNamesForARegisteredMessageTheFirstCounts)
{
    UINT one = 0, two = 0;
    const Chain chain({{registered(one), registered(two), entry(0xC123)}});
    const auto found = [&](UINT message) { return afxdetail::findWindowMessage(chain.map(), message); };
    EXPECT_EQ(found(0xC100), nullptr) << "no number is known yet";
    two = 0xC100;
    EXPECT_EQ(found(0xC100), chain.at(0, 1));
    one = 0xC100;
    EXPECT_EQ(found(0xC100), chain.at(0, 0));
    EXPECT_EQ(found(0xC123), chain.at(0, 2)) << "a fixed number in the registered ones' range";
    one = 0xC123;
    EXPECT_EQ(found(0xC123), chain.at(0, 0));
}

TEST(DispatchTable, AClassWithoutEntriesAnswersNothing)
{
    const Chain chain({});
    EXPECT_EQ(afxdetail::findWindowMessage(chain.map(), WM_APP), nullptr);
    EXPECT_EQ(afxdetail::findWindowMessage(chain.map(), 0xC100), nullptr);
    EXPECT_EQ(afxdetail::findCommand(chain.map(), WM_COMMAND, 0, 1), nullptr);
}

TEST(DispatchTable, FindsWhatAWalkOverTheEntriesFinds)
{
    std::mt19937 random(20090101);
    const auto upTo = [&](UINT limit) { return std::uniform_int_distribution<UINT>(0, limit)(random); };
    for (int round = 0; round < 300; ++round) {
        Chain::Levels levels(Chain::kLevels);
        for (auto& level : levels)
            for (UINT left = upTo(round % 40); left > 0; --left) {
                if (upTo(2) == 0) {
                    level.push_back(entry(WM_USER + upTo(30)));
                } else {
                    const UINT first = upTo(60);
                    level.push_back(
                        entry(upTo(1) ? WM_COMMAND : WM_NOTIFY, upTo(2), first, first + upTo(12)));
                }
            }
        const Chain chain(std::move(levels));
        for (UINT message = WM_USER; message <= WM_USER + 31; ++message)
            ASSERT_EQ(afxdetail::findWindowMessage(chain.map(), message),
                      chain.first([&](const AFX_MSGMAP_ENTRY& one) { return one.nMessage == message; }))
                << "round " << round << ", message " << message;
        for (const UINT message : {UINT{WM_COMMAND}, UINT{WM_NOTIFY}})
            for (UINT code = 0; code <= 3; ++code)
                for (UINT id = 0; id <= 75; ++id)
                    ASSERT_EQ(afxdetail::findCommand(chain.map(), message, code, id),
                              chain.first([&](const AFX_MSGMAP_ENTRY& one) {
                                  return one.nMessage == message && one.nCode == code && one.nID <= id &&
                                         id <= one.nLastID;
                              }))
                        << "round " << round << ", message " << message << ", code " << code << ", id " << id;
    }
}
