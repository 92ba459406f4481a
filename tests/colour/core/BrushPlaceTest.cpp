#include <ovoui/colour/core/BrushPlace.h>

#include <gtest/gtest.h>

using namespace ovoui::colour;

TEST(BrushPlace, WhereOneOrAllThreeAreMirroredTheMirrorImageIsWanted)
{
    EXPECT_FALSE(wantsMirrorImage({-30, -29}, false));
    EXPECT_TRUE(wantsMirrorImage({-30, -31}, false)) << "a window";
    EXPECT_TRUE(wantsMirrorImage({-30, -29}, true)) << "the device context";
    EXPECT_FALSE(wantsMirrorImage({-30, -31}, true)) << "both";
    EXPECT_EQ(mirrorImageStart({-30, -31}, 200), -230);
    EXPECT_EQ(mirrorImageStart({-30, -29}, 200), 170);
}

/// Column `x` of the tab control must be painted where it lies, whatever is mirrored.
TEST(BrushPlace, EachColumnIsPaintedWhereItLies)
{
    constexpr int kWidth = 50;
    for (const int first : {-20, 0, 35})
        for (const int direction : {-1, 1})
            for (const bool mirroredDc : {false, true}) {
                const TabColumns columns{first, first + direction};
                const bool flipped = wantsMirrorImage(columns, mirroredDc);
                const int start = flipped ? mirrorImageStart(columns, kWidth) : first;
                // Device units run against the control's coordinates in a mirrored device context.
                const int run = mirroredDc ? -1 : 1;
                for (int x = 0; x < kWidth; ++x) {
                    const int edge = first + direction * x; // of the column, in the control
                    EXPECT_EQ(run * (edge - start), flipped ? kWidth - x : x) << first << ' ' << direction;
                }
            }
}

TEST(BrushPlace, EditsKeepTheirColoursAndListsDoWhereADialogAsks)
{
    for (const bool lookedUp : {false, true}) {
        EXPECT_FALSE(showsThrough(BrushFor::Edit, lookedUp));
        EXPECT_EQ(showsThrough(BrushFor::List, lookedUp), lookedUp);
        EXPECT_TRUE(showsThrough(BrushFor::Other, lookedUp));
    }
}
