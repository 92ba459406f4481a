// What the controls call in their host, beside the tree's nodes, raises every kind of exception: what is
// documented happens, and the control is as good as before.
#include "CallOutScene.h"

#include <support/NestedMessages.h>
#include <testkit/GuiThread.h>

TEST_P(CallOuts, DoWithAnExceptionWhatIsDocumented)
{
    const CallOut& callOut = GetParam();
    const int nested = nestedMessages();
    for (const Raising::Kind& kind : Raising::kinds()) {
        SCOPED_TRACE(kind.name);
        const std::unique_ptr<CallOutScene> scene = callOut.make();
        const Raising raising(callOut.name, kind);
        EXPECT_EQ(outcomeOf([&] { scene->provoke(); }), callOut.outcomes.of(kind.group));
        EXPECT_TRUE(raising.happened()) << "it was not called";
        scene->expectSound();
        ovo::testkit::GuiThread::settle();
        ASSERT_EQ(nestedMessages(), nested) << "what was raised flew through the system's code";
    }
}
