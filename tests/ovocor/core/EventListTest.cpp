#include <ovocor/EventList.h>

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace
{

using List = EVSubscriptionList<int>;
using Calls = std::vector<std::string>;

/// Subscribers that write down who was called with what.
class EventList : public testing::Test
{
protected:
    EVSubscription recorder(const std::string& name)
    {
        return list->subscribe([this, name](const int& event) { record(name, event); });
    }

    void record(const std::string& name, int event) { calls.push_back(name + " " + std::to_string(event)); }

    OVO::Handle<List> list = List::create();
    Calls calls;
};

} // namespace

TEST_F(EventList, WithoutSubscribersNothingIsCalled)
{
    list->notify(1);
    EXPECT_TRUE(calls.empty());
}

TEST_F(EventList, CallsSubscribersInTheOrderOfTheirSubscriptions)
{
    const EVSubscription a = recorder("a");
    const EVSubscription b = recorder("b");
    list->notify(5146);
    list->notify(0);
    EXPECT_EQ(calls, (Calls{"a 5146", "b 5146", "a 0", "b 0"}));
}

TEST_F(EventList, ForgetsASubscriberWithItsSubscription)
{
    {
        const EVSubscription a = recorder("a");
        EXPECT_TRUE(a);
        list->notify(1);
    }
    list->notify(2);
    EXPECT_EQ(calls, (Calls{"a 1"}));
}

TEST_F(EventList, EndsASubscriptionByHandAndOnlyOnce)
{
    EVSubscription a = recorder("a");
    a.unsubscribe();
    a.unsubscribe();
    EXPECT_FALSE(a);
    list->notify(1);
    EXPECT_TRUE(calls.empty());
}

TEST_F(EventList, MovesSubscriptions)
{
    EVSubscription a = recorder("a");
    EVSubscription moved = std::move(a);
    EXPECT_FALSE(a);
    EXPECT_TRUE(moved);
    list->notify(1);

    EVSubscription b = recorder("b");
    b = std::move(moved);
    list->notify(2);
    EXPECT_EQ(calls, (Calls{"a 1", "a 2"})) << "the assigned-to subscription has ended, once";
    EXPECT_FALSE(std::is_copy_constructible_v<EVSubscription>);
}

TEST_F(EventList, SubscribesNothingWithAnEmptyFunction)
{
    const EVSubscription none = list->subscribe(nullptr);
    EXPECT_FALSE(none);
    list->notify(1);
}

TEST_F(EventList, CallsWhoSubscribesInsideANotificationFromTheNextOneOn)
{
    std::optional<EVSubscription> late;
    const EVSubscription a = list->subscribe([&](const int& event) {
        record("a", event);
        if (!late)
            late = recorder("late");
    });
    list->notify(1);
    list->notify(2);
    EXPECT_EQ(calls, (Calls{"a 1", "a 2", "late 2"}));
}

TEST_F(EventList, NoLongerCallsWhoIsUnsubscribedInsideANotification)
{
    EVSubscription second;
    const EVSubscription first = list->subscribe([&](const int& event) {
        record("first", event);
        second.unsubscribe();
    });
    second = recorder("second");
    const EVSubscription third = recorder("third");
    list->notify(1);
    EXPECT_EQ(calls, (Calls{"first 1", "third 1"}));
}

TEST_F(EventList, LetsASubscriberEndItsOwnSubscriptionAndGoOn)
{
    EVSubscription own;
    const auto kept = std::make_shared<std::string>("kept");
    const std::weak_ptr<std::string> watch = kept;
    own = list->subscribe([this, &own, kept](const int& event) {
        own.unsubscribe();
        record(*kept, event); // the captures must still be there
    });
    list->notify(1);
    list->notify(2);
    EXPECT_EQ(calls, (Calls{"kept 1"}));
    EXPECT_EQ(watch.use_count(), 1) << "the function is gone";
}

TEST_F(EventList, LetsGoOfTheFunctionWithTheSubscription)
{
    const auto kept = std::make_shared<int>(1);
    EVSubscription a = list->subscribe([kept](const int&) {});
    EXPECT_EQ(kept.use_count(), 2);
    a.unsubscribe();
    EXPECT_EQ(kept.use_count(), 1);
}

TEST_F(EventList, AllowsAFunctionThatOwnsItsOwnSubscription)
{
    const auto own = std::make_shared<EVSubscription>();
    *own = list->subscribe([this, own](const int& event) {
        record("self", event);
        own->unsubscribe();
    });
    list->notify(1);
    list->notify(2);
    EXPECT_EQ(calls, (Calls{"self 1"}));
    EXPECT_EQ(own.use_count(), 1);
}

TEST_F(EventList, NestsNotifications)
{
    const EVSubscription a = list->subscribe([&](const int& event) {
        record("a", event);
        if (event > 0)
            list->notify(event - 1);
    });
    const EVSubscription b = recorder("b");
    list->notify(2);
    EXPECT_EQ(calls, (Calls{"a 2", "a 1", "a 0", "b 0", "b 1", "b 2"}));
}

TEST_F(EventList, DropsAFunctionOnlyAfterItsOutermostCall)
{
    EVSubscription own;
    const auto kept = std::make_shared<std::string>("kept");
    own = list->subscribe([&, kept](const int& event) {
        if (event == 1)
            list->notify(2);
        else
            own.unsubscribe();
        record(*kept, event);
    });
    list->notify(1);
    EXPECT_EQ(calls, (Calls{"kept 2", "kept 1"}));
    EXPECT_EQ(kept.use_count(), 1);
}

TEST_F(EventList, FinishesANotificationInWhichItsLastHandleGoes)
{
    const EVSubscription a = list->subscribe([&](const int& event) {
        list.reset();
        record("a", event);
    });
    const EVSubscription b = recorder("b");
    list->notify(1);
    EXPECT_EQ(calls, (Calls{"a 1", "b 1"}));
    EXPECT_FALSE(list);
    EXPECT_FALSE(a) << "ended with the list";
    EXPECT_FALSE(b);
}

TEST_F(EventList, MayGoBeforeItsSubscriptions)
{
    const auto kept = std::make_shared<int>(1);
    EVSubscription a = list->subscribe([kept](const int&) {});
    list.reset();
    EXPECT_FALSE(a);
    EXPECT_EQ(kept.use_count(), 1) << "functions go with the list";
    a.unsubscribe();
}

TEST_F(EventList, PassesOnTheExceptionOfASubscriberWhenAllHaveBeenCalled)
{
    bool throwing = true;
    const EVSubscription a = list->subscribe([&](const int&) {
        if (throwing)
            throw std::runtime_error("stumbled");
    });
    const EVSubscription b = recorder("b");
    EXPECT_THROW(list->notify(1), std::runtime_error);
    EXPECT_EQ(calls, (Calls{"b 1"}));
    throwing = false;
    list->notify(2);
    EXPECT_EQ(calls, (Calls{"b 1", "b 2"}));
}

TEST_F(EventList, PassesOnTheFirstOfSeveralExceptions)
{
    const EVSubscription a = list->subscribe([](const int&) { throw 1; });
    const EVSubscription b = list->subscribe([](const int&) { throw 2; });
    const EVSubscription c = recorder("c");
    int raised = 0;
    try {
        list->notify(1);
    } catch (int number) {
        raised = number;
    }
    EXPECT_EQ(raised, 1);
    EXPECT_EQ(calls, (Calls{"c 1"}));
}

TEST_F(EventList, FinishesANotificationInWhichItsLastHandleGoesWithAnException)
{
    const EVSubscription a = list->subscribe([&](const int&) {
        list.reset();
        throw std::runtime_error("stumbled");
    });
    const EVSubscription b = recorder("b");
    EXPECT_THROW(list->notify(1), std::runtime_error);
    EXPECT_EQ(calls, (Calls{"b 1"}));
    EXPECT_FALSE(b) << "ended with the list";
}

TEST_F(EventList, LetsGoOfAFunctionThatUnsubscribesAndThrows)
{
    EVSubscription own;
    const auto kept = std::make_shared<int>(1);
    own = list->subscribe([&own, kept](const int&) {
        own.unsubscribe();
        throw std::runtime_error("stumbled");
    });
    EXPECT_THROW(list->notify(1), std::runtime_error);
    EXPECT_EQ(kept.use_count(), 1);
}

TEST_F(EventList, PublishesEventsOfAnyType)
{
    struct Event
    {
        std::string text;
    };
    const auto events = EVSubscriptionList<Event>::create();
    std::string seen;
    const EVSubscription a = events->subscribe([&](const Event& event) { seen = event.text; });
    events->notify({"oak"});
    EXPECT_EQ(seen, "oak");
}

TEST_F(EventList, HoldsUpUnderSubscriptionsThatComeAndGo)
{
    for (int i = 0; i < 1000; ++i) {
        std::vector<EVSubscription> some;
        for (int k = 0; k < 10; ++k)
            some.push_back(recorder("x"));
        calls.clear();
        list->notify(i);
        ASSERT_EQ(calls.size(), 10u);
    }
}
