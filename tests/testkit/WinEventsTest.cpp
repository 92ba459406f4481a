#include <testkit/WinEvents.h>

#include <gtest/gtest.h>

#include <optional>

using namespace ovo::testkit;

namespace
{

constexpr DWORD kEvent = EVENT_OBJECT_VALUECHANGE;

/// A window to tell something of.
class Teller : public CWnd
{
public:
    Teller() { CreateEx(0, AfxRegisterWndClass(0), L"Teller", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0); }
    ~Teller() override { DestroyWindow(); }

    void tell(LONG child = CHILDID_SELF, DWORD event = kEvent, LONG object = OBJID_CLIENT)
    {
        ::NotifyWinEvent(event, m_hWnd, object, child);
    }
};

} // namespace

TEST(WinEvents, CountsTheWholeAndItsPartsApart)
{
    Teller teller;
    WinEvents events(kEvent);
    EXPECT_EQ(events.of(teller), 0);
    teller.tell();
    teller.tell(1);
    teller.tell(2);
    teller.tell(2);
    EXPECT_EQ(events.of(teller), 1);
    EXPECT_EQ(events.of(teller, 1), 1);
    EXPECT_EQ(events.of(teller, 2), 2);
    EXPECT_EQ(events.of(teller, 3), 0);
}

TEST(WinEvents, HearsNothingOfOtherWindowsOtherEventsAndOtherObjects)
{
    Teller teller;
    Teller other;
    WinEvents events(kEvent);
    other.tell();
    teller.tell(CHILDID_SELF, EVENT_OBJECT_NAMECHANGE);
    teller.tell(CHILDID_SELF, kEvent, OBJID_WINDOW);
    EXPECT_EQ(events.of(teller), 0);
    EXPECT_EQ(events.of(other), 1);
}

TEST(WinEvents, HearsOnlyWhatIsToldWhileItLives)
{
    Teller teller;
    teller.tell();
    WinEvents events(kEvent);
    EXPECT_EQ(events.of(teller), 0);
    {
        WinEvents inner(kEvent);
        teller.tell();
        EXPECT_EQ(inner.of(teller), 1);
    }
    teller.tell();
    EXPECT_EQ(events.of(teller), 2);
}

TEST(WinEvents, MayGoInAnyOrder)
{
    Teller teller;
    std::optional<WinEvents> first(std::in_place, kEvent);
    WinEvents second(kEvent);
    WinEvents third(kEvent);
    first.reset();
    teller.tell();
    EXPECT_EQ(second.of(teller), 1);
    EXPECT_EQ(third.of(teller), 1);
}

TEST(WinEvents, EachListenerHearsItsOwnKind)
{
    Teller teller;
    WinEvents values(kEvent);
    WinEvents names(EVENT_OBJECT_NAMECHANGE);
    teller.tell();
    teller.tell(CHILDID_SELF, EVENT_OBJECT_NAMECHANGE);
    teller.tell(CHILDID_SELF, EVENT_OBJECT_NAMECHANGE);
    EXPECT_EQ(values.of(teller), 1);
    EXPECT_EQ(names.of(teller), 2);
}

TEST(WinEvents, CountsAnewAfterForgetting)
{
    Teller teller;
    WinEvents events(kEvent);
    teller.tell();
    events.forget(); // also what is still on its way
    EXPECT_EQ(events.of(teller), 0);
    teller.tell();
    EXPECT_EQ(events.of(teller), 1);
}

TEST(WinEvents, WaitsForWhatIsOnItsWay)
{
    Teller teller;
    WinEvents events(kEvent);
    constexpr int kMany = 50;
    for (int i = 0; i < kMany; ++i)
        teller.tell();
    EXPECT_EQ(events.of(teller), kMany) << "none of the messages has been taken out of the queue before";
}

TEST(WinEvents, OfAWindowThatHasGoneStayCounted)
{
    WinEvents events(kEvent);
    HWND gone = nullptr;
    {
        Teller teller;
        gone = teller;
        teller.tell();
        EXPECT_EQ(events.of(teller), 1);
    }
    EXPECT_EQ(events.of(gone), 1);
}
