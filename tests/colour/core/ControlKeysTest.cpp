// What keys mean to the colour controls: every key in every state.
#include <ovoui/colour/core/ControlKeys.h>

#include <gtest/gtest.h>

using namespace ovoui::colour;

namespace
{

constexpr unsigned kTab = 0x09;
constexpr unsigned kEnter = 0x0D;
constexpr unsigned kEscape = 0x1B;
constexpr unsigned kSpace = 0x20;
constexpr unsigned kLeft = 0x25;
constexpr unsigned kUp = 0x26;
constexpr unsigned kRight = 0x27;
constexpr unsigned kDown = 0x28;
constexpr unsigned kInsert = 0x2D;
constexpr unsigned kF4 = 0x73;

/// Page keys, End, Home, arrows.
bool moves(unsigned key)
{
    return key >= 0x21 && key <= 0x28;
}

} // namespace

TEST(ColourKeys, InTheSwatches)
{
    for (unsigned key = 0; key <= 0xFF; ++key)
        EXPECT_EQ(swatchKey(key), key == kSpace    ? SwatchKey::Take
                                  : key == kInsert ? SwatchKey::Keep
                                  : moves(key)     ? SwatchKey::Move
                                                   : SwatchKey::None)
            << key;
}

TEST(ColourKeys, InAGrid)
{
    for (unsigned key = 0; key <= 0xFF; ++key) {
        const bool chooses = key == kSpace || key == kEnter;
        EXPECT_EQ(gridKey(key, true), GridKey::None) << key;
        EXPECT_EQ(gridKey(key, false), chooses      ? GridKey::Choose
                                       : moves(key) ? GridKey::Move
                                                    : GridKey::None)
            << key;
    }
}

TEST(ColourKeys, InAPalette)
{
    for (unsigned key = 0; key <= 0xFF; ++key)
        for (const bool marked : {false, true}) {
            PaletteKey expected = moves(key) ? PaletteKey::Move : PaletteKey::None;
            if (key == kSpace || key == kEnter)
                expected = marked ? PaletteKey::Choose : PaletteKey::Close;
            EXPECT_EQ(paletteKey(key, marked), expected) << key;
        }
}

TEST(ColourKeys, OnAButtonWithAPalette)
{
    for (unsigned key = 0; key <= 0xFF; ++key) {
        const bool opens = key == kSpace || key == kDown || key == kF4;
        EXPECT_EQ(dropButtonKey(key, false, false, false),
                  opens ? DropButtonKey::Open : DropButtonKey::Platform);

        DropButtonKey open = DropButtonKey::Ignore; // every key is the button's
        if (moves(key) || key == kSpace || key == kEnter)
            open = DropButtonKey::ToPalette;
        if (key == kEscape || key == kF4)
            open = DropButtonKey::Close;
        if (key == kTab)
            open = DropButtonKey::CloseAndGoOn;
        EXPECT_EQ(dropButtonKey(key, false, false, true), open) << key;

        const bool upOrDown = key == kUp || key == kDown;
        EXPECT_EQ(dropButtonKey(key, true, false, false),
                  upOrDown ? DropButtonKey::Open : DropButtonKey::Platform);
        EXPECT_EQ(dropButtonKey(key, true, false, true),
                  upOrDown ? DropButtonKey::Close : DropButtonKey::Platform);
    }
}

TEST(ColourKeys, HeldOnAButtonWithAPaletteOnlyTheKeysThatMoveTheMarkMeanAnything)
{
    for (unsigned key = 0; key <= 0xFF; ++key)
        for (const bool alt : {false, true})
            for (const bool open : {false, true}) {
                const DropButtonKey first = dropButtonKey(key, alt, false, open);
                const bool goesOn = first == DropButtonKey::Platform || (open && !alt && moves(key));
                EXPECT_EQ(dropButtonKey(key, alt, true, open), goesOn ? first : DropButtonKey::Ignore)
                    << key << (alt ? " with Alt" : "") << (open ? ", open" : "");
            }
}

TEST(ColourKeys, OnADropper)
{
    for (unsigned key = 0; key <= 0xFF; ++key)
        for (const bool again : {false, true}) {
            const bool presses = key == kSpace || key == kEnter;
            const bool arrow = key >= kLeft && key <= kDown;
            const DropperKey press = again ? DropperKey::Ignore : DropperKey::Press;
            EXPECT_EQ(dropperKey(key, again, false), presses ? press : DropperKey::Platform) << key;
            EXPECT_EQ(dropperKey(key, again, true), presses          ? press
                                                    : key == kEscape ? DropperKey::GiveUp
                                                    : arrow          ? DropperKey::MovePointer
                                                                     : DropperKey::Ignore)
                << key;
        }
}

TEST(ColourKeys, ArrowsMoveThePointerByOneOrTen)
{
    for (const bool shift : {false, true}) {
        const int length = shift ? 10 : 1;
        EXPECT_EQ(pointerStep(kLeft, shift), (PointerStep{-length, 0}));
        EXPECT_EQ(pointerStep(kRight, shift), (PointerStep{length, 0}));
        EXPECT_EQ(pointerStep(kUp, shift), (PointerStep{0, -length}));
        EXPECT_EQ(pointerStep(kDown, shift), (PointerStep{0, length}));
        EXPECT_EQ(pointerStep(kSpace, shift), PointerStep{});
    }
}

TEST(ControlKeys, SpaceAloneIsDoneWithWhenItGoesDown)
{
    for (unsigned key = 0; key <= 0xFF; ++key)
        EXPECT_EQ(actsOnPressAlone(key), key == 0x20) << key;
}

TEST(ControlKeys, EnterIsTheGridsWithColoursAndTheDroppersAtAnyTime)
{
    for (const bool asksEnter : {false, true})
        for (const bool other : {false, true}) {
            EXPECT_EQ(gridWantsKey(asksEnter, other), asksEnter && !other);
            EXPECT_EQ(dropperWantsKeys(asksEnter, other), asksEnter || other);
        }
}

TEST(ControlKeys, EscapeAndEnterMeanSomethingInThePickersDialog)
{
    for (unsigned key = 0; key <= 0xFF; ++key) {
        DialogKey expected = DialogKey::None;
        if (key == 0x1B)
            expected = DialogKey::CancelDrag;
        if (key == 0x0D)
            expected = DialogKey::TakeNumbers;
        EXPECT_EQ(dialogKey(key), expected) << key;
    }
}
