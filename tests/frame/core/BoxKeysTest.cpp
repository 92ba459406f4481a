#include <ovoui/frame/core/BoxKeys.h>
#include <ovoui/frame/core/TabStep.h>

#include <gtest/gtest.h>

using namespace ovoui::frame;

namespace
{

template <class Visit>
void forEveryPress(Visit visit)
{
    for (unsigned key = 0; key < 256; ++key)
        for (unsigned bits = 0; bits < 8; ++bits)
            visit(key, HeldKeys{(bits & 1) != 0, (bits & 2) != 0, (bits & 4) != 0});
}

} // namespace

TEST(BoxKeys, EveryKeyWithEveryOtherHeld)
{
    constexpr unsigned kEscape = 0x1B;
    constexpr unsigned kInsert = 0x2D;
    forEveryPress([](unsigned key, const HeldKeys& held) {
        const bool copies = (key == 'C' || key == kInsert) && held.ctrl && !held.shift && !held.alt;
        ASSERT_EQ(isCopyKey(key, held), copies) << key;
        const BoxKey expected = key == kEscape ? BoxKey::Cancel : copies ? BoxKey::Copy : BoxKey::None;
        ASSERT_EQ(boxKey(key, held), expected) << key;
    });
}

TEST(BoxKeys, TabsAreTurnedWithControl)
{
    constexpr unsigned kTab = 0x09;
    constexpr unsigned kPageUp = 0x21;
    constexpr unsigned kPageDown = 0x22;
    forEveryPress([](unsigned key, const HeldKeys& held) {
        std::optional<TabDirection> expected;
        if (held.ctrl && key == kTab)
            expected = held.shift ? TabDirection::Backward : TabDirection::Forward;
        else if (held.ctrl && key == kPageUp)
            expected = TabDirection::Backward;
        else if (held.ctrl && key == kPageDown)
            expected = TabDirection::Forward;
        ASSERT_EQ(tabDirection(key, held), expected) << key << ", " << held.ctrl << held.shift << held.alt;
    });
}
