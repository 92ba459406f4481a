#include <ovocor/Handle.h>

#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <unordered_set>
#include <utility>

namespace
{

int s_living = 0;

class Place
{
public:
    virtual int number() const { return 1; }
    int m_padding = 7;

protected:
    ~Place() = default;
};

/// Counted by its second base, as the objects of a host often are.
class Folder : public Place, public OVO::Handlable
{
public:
    Folder() { ++s_living; }
    Folder(const Folder& other)
        : Place(other)
        , OVO::Handlable(other)
    {
        ++s_living;
    }
    Folder& operator=(const Folder&) = default;
    ~Folder() override { --s_living; }

    int number() const override { return 42; }
};

class SpecialFolder : public Folder
{
public:
    int number() const override { return 43; }
};

class HandleTest : public testing::Test
{
protected:
    ~HandleTest() override { EXPECT_EQ(s_living, 0) << "objects are left"; }
};

using FolderHandle = OVO::Handle<Folder>;

} // namespace

TEST_F(HandleTest, RefersToNothingAtFirst)
{
    const FolderHandle handle;
    EXPECT_FALSE(handle);
    EXPECT_EQ(handle.get(), nullptr);
    EXPECT_EQ(handle, nullptr);
    EXPECT_EQ(FolderHandle(static_cast<Folder*>(nullptr)).get(), nullptr)
        << "null stays null, whatever the base";
}

TEST_F(HandleTest, KeepsAnObjectThatIsCountedByItsSecondBase)
{
    auto* folder = new Folder;
    {
        const FolderHandle handle(folder);
        EXPECT_TRUE(handle);
        EXPECT_EQ(handle.get(), folder);
        EXPECT_EQ(handle->number(), 42);
        EXPECT_EQ((*handle).m_padding, 7);
        EXPECT_EQ(s_living, 1);
    }
    EXPECT_EQ(s_living, 0);
}

TEST_F(HandleTest, LetsTheObjectLiveUntilTheLastOneGoes)
{
    FolderHandle first(new Folder);
    FolderHandle second = first;
    first.reset();
    EXPECT_FALSE(first);
    EXPECT_EQ(s_living, 1);
    second = nullptr;
    EXPECT_EQ(s_living, 0);
}

TEST_F(HandleTest, CountsReferencesMadeByHand)
{
    auto* folder = new Folder;
    folder->addRef();
    {
        const FolderHandle handle(folder);
    }
    EXPECT_EQ(s_living, 1);
    folder->release();
    EXPECT_EQ(s_living, 0);
}

TEST_F(HandleTest, LeavesTheOldObjectWhenItIsAssigned)
{
    FolderHandle handle(new Folder);
    handle = FolderHandle(new SpecialFolder);
    EXPECT_EQ(s_living, 1);
    EXPECT_EQ(handle->number(), 43);
}

TEST_F(HandleTest, SurvivesAssignmentToItself)
{
    FolderHandle handle(new Folder);
    FolderHandle& same = handle;
    handle = same;
    handle = std::move(same);
    EXPECT_TRUE(handle);
    EXPECT_EQ(s_living, 1);
}

TEST_F(HandleTest, MovesWithoutCounting)
{
    FolderHandle from(new Folder);
    const FolderHandle to = std::move(from);
    EXPECT_FALSE(from);
    EXPECT_TRUE(to);
    EXPECT_EQ(s_living, 1);
}

TEST_F(HandleTest, ConvertsToBasesAndConstants)
{
    OVO::Handle<SpecialFolder> special(new SpecialFolder);
    const FolderHandle folder = special;
    const OVO::Handle<const Folder> constant = folder;
    const OVO::Handle<OVO::Handlable> counted = special;
    EXPECT_EQ(constant->number(), 43);
    EXPECT_EQ(folder.get(), special.get());
    EXPECT_EQ(counted, special);

    const FolderHandle moved = std::move(special);
    EXPECT_FALSE(special);
    EXPECT_EQ(moved, folder);
    EXPECT_EQ(s_living, 1);
}

TEST_F(HandleTest, DoesNotConvertDownwards)
{
    EXPECT_FALSE((std::is_convertible_v<FolderHandle, OVO::Handle<SpecialFolder>>));
    EXPECT_FALSE((std::is_convertible_v<OVO::Handle<const Folder>, FolderHandle>));
    EXPECT_FALSE((std::is_convertible_v<Folder*, FolderHandle>));
}

TEST_F(HandleTest, ComparesByObject)
{
    const FolderHandle a(new Folder);
    const FolderHandle b(new Folder);
    const FolderHandle sameAsA = a;
    EXPECT_EQ(a, sameAsA);
    EXPECT_NE(a, b);
    EXPECT_EQ(a, a.get());
    EXPECT_NE(a, b.get());
    EXPECT_NE(a, nullptr);
    EXPECT_NE(a < b, b < a);
    EXPECT_EQ((std::set<FolderHandle>{a, b, sameAsA}).size(), 2u);
    EXPECT_EQ((std::unordered_set<FolderHandle>{a, b, sameAsA}).size(), 2u);
}

TEST_F(HandleTest, StartsAfreshInACopyOfTheObject)
{
    const FolderHandle original(new Folder);
    const FolderHandle held = original;
    auto copy = std::make_unique<Folder>(*original);
    {
        const FolderHandle handle(copy.release());
        EXPECT_EQ(s_living, 2);
    }
    EXPECT_EQ(s_living, 1);
    Folder* assigned = new Folder;
    const FolderHandle handle(assigned);
    *assigned = *original;
    EXPECT_EQ(s_living, 2);
}

TEST_F(HandleTest, IsNotNeededForAnObjectDeletedByHand)
{
    delete new Folder;
    EXPECT_EQ(s_living, 0);
}

TEST_F(HandleTest, MayBeMadeByTheDestructorOfItsObject)
{
    struct Farewell : OVO::Handlable
    {
        ~Farewell() override
        {
            ++s_living;
            const OVO::Handle<Farewell> self(this);
            const OVO::Handle<Farewell> again = self;
        }
    };
    {
        const OVO::Handle<Farewell> handle(new Farewell);
    }
    EXPECT_EQ(s_living, 1) << "destroyed exactly once";
    s_living = 0;
}

TEST_F(HandleTest, IsAlreadyEmptyWhenTheDestructorOfItsObjectLooks)
{
    struct Looking : OVO::Handlable
    {
        const OVO::Handle<Looking>* holder = nullptr;
        bool* empty = nullptr;
        ~Looking() override { *empty = !*holder; }
    };
    bool empty = false;
    OVO::Handle<Looking> handle(new Looking);
    handle->holder = &handle;
    handle->empty = &empty;
    handle.reset();
    EXPECT_TRUE(empty);
}
