// What callers know of an object after the host was called.
#include <ovoui/frame/Lifeline.h>

#include <testkit/RecordingParent.h>

#include <gtest/gtest.h>

#include <memory>

using namespace ovo::testkit;

namespace
{

struct Engine
{
    Lifeline life;
};

std::unique_ptr<CStatic> made(CWnd& parent)
{
    auto control = std::make_unique<CStatic>();
    control->Create(L"", WS_CHILD, CRect(0, 0, 10, 10), &parent, 5);
    return control;
}

} // namespace

TEST(Lifeline, AnObjectIsAliveUntilItIsDeleted)
{
    auto engine = std::make_unique<Engine>();
    const Lifeline::Watch watch(engine->life);
    EXPECT_TRUE(watch.alive());
    engine.reset();
    EXPECT_FALSE(watch.alive());
}

TEST(Lifeline, ACopyHasALifelineOfItsOwn)
{
    auto engine = std::make_unique<Engine>();
    auto copy = std::make_unique<Engine>(*engine);
    const Lifeline::Watch watch(copy->life);
    engine.reset();
    EXPECT_TRUE(watch.alive());
    Engine other;
    *copy = other;
    EXPECT_TRUE(watch.alive()) << "an object that is assigned to is the same object";
    copy.reset();
    EXPECT_FALSE(watch.alive());
}

TEST(Lifeline, AWindowIsAliveUntilItsWindowOrItsObjectIsGone)
{
    RecordingParent parent;
    for (const bool deletes : {false, true}) {
        auto control = made(parent);
        const Lifeline::Watch watch(*control);
        EXPECT_TRUE(watch.alive());
        if (deletes)
            control.reset();
        else
            control->DestroyWindow();
        EXPECT_FALSE(watch.alive());
    }
}

TEST(Lifeline, AnotherWindowOfTheSameObjectIsNotTheOne)
{
    RecordingParent parent;
    auto control = made(parent);
    const Lifeline::Watch watch(*control);
    control->DestroyWindow();
    control->Create(L"", WS_CHILD, CRect(0, 0, 10, 10), &parent, 5);
    EXPECT_FALSE(watch.alive());
    EXPECT_TRUE(Lifeline::Watch(*control).alive());
}

TEST(Lifeline, AnotherObjectOfTheSameWindowIsNotTheOne)
{
    RecordingParent parent;
    auto control = made(parent);
    const Lifeline::Watch watch(*control);
    CStatic other;
    other.Attach(control->Detach());
    EXPECT_FALSE(watch.alive());
    EXPECT_TRUE(Lifeline::Watch(other).alive());
}

TEST(Lifeline, AWindowThatTheFrameworkLendsIsAliveUntilItIsGone)
{
    RecordingParent parent;
    const HWND window = ::CreateWindowExW(0, L"Static", L"", WS_CHILD, 0, 0, 10, 10, parent,
                                          reinterpret_cast<HMENU>(5), nullptr, nullptr);
    const Lifeline::Watch watch(*parent.GetDlgItem(5));
    EXPECT_TRUE(watch.alive());
    ::DestroyWindow(window);
    EXPECT_FALSE(watch.alive());
}

TEST(Lifeline, WithoutAWindowThereIsNothingToWatch)
{
    CStatic none;
    EXPECT_FALSE(Lifeline::Watch(none).alive());
}
