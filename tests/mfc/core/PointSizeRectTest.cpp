// CPoint, CSize, CRect.
#include <atltypes.h>

#include <gtest/gtest.h>

#include <type_traits>

inline void PrintTo(const CRect& rect, std::ostream* out)
{
    *out << '(' << rect.left << ", " << rect.top << ", " << rect.right << ", " << rect.bottom << ')';
}

inline void PrintTo(const CPoint& point, std::ostream* out)
{
    *out << '(' << point.x << ", " << point.y << ')';
}

inline void PrintTo(const CSize& size, std::ostream* out)
{
    *out << size.cx << " x " << size.cy;
}

static_assert(std::is_trivially_copyable_v<CPoint> && sizeof(CPoint) == sizeof(POINT));
static_assert(std::is_trivially_copyable_v<CSize> && sizeof(CSize) == sizeof(SIZE));
static_assert(std::is_trivially_copyable_v<CRect> && sizeof(CRect) == sizeof(RECT));

TEST(Point, IsMadeFromEverythingLikeIt)
{
    EXPECT_EQ(CPoint(), CPoint(0, 0));
    EXPECT_EQ(CPoint(POINT{3, 4}), CPoint(3, 4));
    EXPECT_EQ(CPoint(CSize(3, 4)), CPoint(3, 4));
    const CPoint packed = MAKELPARAM(static_cast<WORD>(-3), 4);
    EXPECT_EQ(packed, CPoint(-3, 4));
    const CPoint fromPosition = static_cast<DWORD>(MAKELONG(7, static_cast<WORD>(-8)));
    EXPECT_EQ(fromPosition, CPoint(7, -8));
}

TEST(Point, MovesAndAdds)
{
    CPoint point(10, 20);
    point.Offset(1, 2);
    point.Offset(CPoint(1, 2));
    point.Offset(CSize(1, 2));
    EXPECT_EQ(point, CPoint(13, 26));
    point += CSize(1, 1);
    point -= CSize(4, 7);
    point += CPoint(5, 5);
    point -= CPoint(1, 1);
    EXPECT_EQ(point, CPoint(14, 24));
    point.SetPoint(1, 2);
    EXPECT_EQ(point + CSize(2, 3), CPoint(3, 5));
    EXPECT_EQ(point - CSize(2, 3), CPoint(-1, -1));
    EXPECT_EQ(point + CPoint(2, 3), CPoint(3, 5));
    const CSize difference = point - CPoint(2, 3);
    EXPECT_EQ(difference, CSize(-1, -1));
    EXPECT_EQ(-point, CPoint(-1, -2));
    EXPECT_TRUE(point != CPoint(1, 3));
    EXPECT_FALSE(point == CPoint(2, 2));
}

TEST(Size, IsMadeAndAdds)
{
    EXPECT_EQ(CSize(), CSize(0, 0));
    EXPECT_EQ(CSize(SIZE{3, 4}), CSize(3, 4));
    EXPECT_EQ(CSize(CPoint(3, 4)), CSize(3, 4));
    const CSize packed = static_cast<DWORD>(MAKELONG(3, 4));
    EXPECT_EQ(packed, CSize(3, 4));
    CSize size(10, 20);
    size += CSize(1, 2);
    size -= CSize(3, 3);
    EXPECT_EQ(size, CSize(8, 19));
    EXPECT_EQ(size + CSize(1, 1), CSize(9, 20));
    EXPECT_EQ(size - CSize(1, 1), CSize(7, 18));
    EXPECT_EQ(-size, CSize(-8, -19));
    EXPECT_EQ(size + CPoint(1, 1), CPoint(9, 20));
    EXPECT_EQ(size - CPoint(1, 1), CPoint(7, 18));
    size.SetSize(1, 2);
    EXPECT_TRUE(size == CSize(1, 2) && size != CSize(2, 1));
}

TEST(Rect, IsMadeFromSidesCornersAndSizes)
{
    EXPECT_EQ(CRect(), CRect(0, 0, 0, 0));
    const RECT plain{1, 2, 3, 4};
    EXPECT_EQ(CRect(plain), CRect(1, 2, 3, 4));
    EXPECT_EQ(CRect(&plain), CRect(1, 2, 3, 4));
    EXPECT_EQ(CRect(CPoint(1, 2), CSize(10, 20)), CRect(1, 2, 11, 22));
    EXPECT_EQ(CRect(CPoint(1, 2), CPoint(3, 4)), CRect(1, 2, 3, 4));
}

TEST(Rect, MeasuresItself)
{
    const CRect rect(10, 20, 40, 70);
    EXPECT_EQ(rect.Width(), 30);
    EXPECT_EQ(rect.Height(), 50);
    EXPECT_EQ(rect.Size(), CSize(30, 50));
    EXPECT_EQ(rect.TopLeft(), CPoint(10, 20));
    EXPECT_EQ(rect.BottomRight(), CPoint(40, 70));
    EXPECT_EQ(rect.CenterPoint(), CPoint(25, 45));
    EXPECT_EQ(CRect(40, 70, 10, 20).Width(), -30);
}

TEST(Rect, CornersCanBeMovedByThemselves)
{
    CRect rect(10, 20, 40, 70);
    rect.TopLeft() += CSize(1, 2);
    rect.BottomRight().Offset(3, 4);
    EXPECT_EQ(rect, CRect(11, 22, 43, 74));
}

namespace
{

// Kept apart from its caller, or the compiler knows the answer.
[[gnu::noinline]] CPoint cornerOf(bool ofFirst, const CRect& first, int left, int top)
{
    const CPoint corner = ofFirst ? first.TopLeft() : CRect(left, top, left + 10, top + 10).TopLeft();
    return corner;
}

} // namespace

TEST(Rect, CornersOfRectanglesThatAreNotKept)
{
    EXPECT_EQ(cornerOf(false, CRect(), 70, 20), CPoint(70, 20));
    EXPECT_EQ(cornerOf(true, CRect(1, 2, 3, 4), 70, 20), CPoint(1, 2));
}

TEST(Rect, RightAndBottomLieOutside)
{
    const CRect rect(10, 20, 40, 70);
    EXPECT_TRUE(rect.PtInRect(CPoint(10, 20)));
    EXPECT_TRUE(rect.PtInRect(CPoint(39, 69)));
    EXPECT_FALSE(rect.PtInRect(CPoint(40, 30)));
    EXPECT_FALSE(rect.PtInRect(CPoint(20, 70)));
    EXPECT_FALSE(rect.PtInRect(CPoint(9, 30)));
}

TEST(Rect, EmptyHasNoAreaAndNullNothingAtAll)
{
    EXPECT_TRUE(CRect().IsRectEmpty() && CRect().IsRectNull());
    EXPECT_TRUE(CRect(1, 1, 1, 5).IsRectEmpty());
    EXPECT_TRUE(CRect(5, 5, 1, 1).IsRectEmpty());
    EXPECT_FALSE(CRect(1, 1, 1, 5).IsRectNull());
    EXPECT_FALSE(CRect(0, 0, 1, 1).IsRectEmpty());
    CRect rect(1, 2, 3, 4);
    rect.SetRectEmpty();
    EXPECT_TRUE(rect.IsRectNull());
}

TEST(Rect, IsSetAndCopied)
{
    CRect rect;
    rect.SetRect(1, 2, 3, 4);
    EXPECT_EQ(rect, CRect(1, 2, 3, 4));
    rect.SetRect(CPoint(5, 6), CPoint(7, 8));
    EXPECT_EQ(rect, CRect(5, 6, 7, 8));
    const CRect other(9, 8, 7, 6);
    rect.CopyRect(other);
    EXPECT_TRUE(rect.EqualRect(other));
    rect = RECT{1, 1, 1, 1};
    EXPECT_TRUE(rect != other);
    LPCRECT pointer = other;
    EXPECT_EQ(pointer->left, 9);
    ::SetRect(rect, 4, 3, 2, 1);
    EXPECT_EQ(rect, CRect(4, 3, 2, 1));
}

TEST(Rect, InflatesAndDeflatesInFourForms)
{
    const CRect margins(1, 2, 3, 4);
    CRect rect(100, 100, 200, 200);
    rect.InflateRect(5, 10);
    EXPECT_EQ(rect, CRect(95, 90, 205, 210));
    rect.DeflateRect(5, 10);
    rect.InflateRect(CSize(1, 2));
    EXPECT_EQ(rect, CRect(99, 98, 201, 202));
    rect.DeflateRect(CSize(1, 2));
    rect.InflateRect(margins);
    EXPECT_EQ(rect, CRect(99, 98, 203, 204));
    rect.DeflateRect(margins);
    rect.InflateRect(1, 2, 3, 4);
    EXPECT_EQ(rect, CRect(99, 98, 203, 204));
    rect.DeflateRect(1, 2, 3, 4);
    EXPECT_EQ(rect, CRect(100, 100, 200, 200));
}

TEST(Rect, DeflatingTooMuchDoesNotNormalise)
{
    CRect rect(0, 0, 10, 10);
    rect.DeflateRect(8, 8);
    EXPECT_EQ(rect, CRect(8, 8, 2, 2));
    EXPECT_EQ(rect.Width(), -6);
    rect.NormalizeRect();
    EXPECT_EQ(rect, CRect(2, 2, 8, 8));
    CRect onlyOne(5, 9, 3, 10);
    onlyOne.NormalizeRect();
    EXPECT_EQ(onlyOne, CRect(3, 9, 5, 10));
}

TEST(Rect, MovesWithoutChangingItsSize)
{
    CRect rect(10, 20, 40, 70);
    rect.OffsetRect(1, 2);
    rect.OffsetRect(CPoint(1, 2));
    rect.OffsetRect(CSize(1, 2));
    EXPECT_EQ(rect, CRect(13, 26, 43, 76));
    rect.MoveToX(0);
    EXPECT_EQ(rect, CRect(0, 26, 30, 76));
    rect.MoveToY(5);
    EXPECT_EQ(rect, CRect(0, 5, 30, 55));
    rect.MoveToXY(7, 8);
    EXPECT_EQ(rect, CRect(7, 8, 37, 58));
    rect.MoveToXY(CPoint(1, 1));
    EXPECT_EQ(rect, CRect(1, 1, 31, 51));
}

TEST(Rect, SwapsLeftAndRight)
{
    CRect rect(5, 2, 3, 4);
    rect.SwapLeftRight();
    EXPECT_EQ(rect, CRect(3, 2, 5, 4));
    CRect::SwapLeftRight(&rect);
    EXPECT_EQ(rect, CRect(5, 2, 3, 4));
}

TEST(Rect, MeetsOtherRects)
{
    const CRect a(0, 0, 10, 10);
    const CRect b(5, 5, 20, 20);
    CRect rect;
    EXPECT_TRUE(rect.IntersectRect(a, b));
    EXPECT_EQ(rect, CRect(5, 5, 10, 10));
    EXPECT_TRUE(rect.UnionRect(a, b));
    EXPECT_EQ(rect, CRect(0, 0, 20, 20));
    EXPECT_FALSE(rect.IntersectRect(a, CRect(10, 0, 20, 10)));
    EXPECT_TRUE(rect.IsRectNull());
    EXPECT_TRUE(rect.SubtractRect(a, CRect(0, 0, 10, 4)));
    EXPECT_EQ(rect, CRect(0, 4, 10, 10));
    EXPECT_EQ(a & b, CRect(5, 5, 10, 10));
    EXPECT_EQ(a | b, CRect(0, 0, 20, 20));
    rect = a;
    rect &= b;
    EXPECT_EQ(rect, CRect(5, 5, 10, 10));
    rect |= CRect(0, 7, 1, 8);
    EXPECT_EQ(rect, CRect(0, 5, 10, 10));
}

TEST(Rect, AddsPointsSizesAndMargins)
{
    const CRect rect(10, 20, 40, 70);
    const CRect margins(1, 2, 3, 4);
    EXPECT_EQ(rect + CPoint(1, 2), CRect(11, 22, 41, 72));
    EXPECT_EQ(rect - CPoint(1, 2), CRect(9, 18, 39, 68));
    EXPECT_EQ(rect + CSize(1, 2), CRect(11, 22, 41, 72));
    EXPECT_EQ(rect - CSize(1, 2), CRect(9, 18, 39, 68));
    EXPECT_EQ(rect + &margins, CRect(9, 18, 43, 74));
    EXPECT_EQ(rect - &margins, CRect(11, 22, 37, 66));
    EXPECT_EQ(CPoint(1, 2) + &rect, CRect(11, 22, 41, 72));
    EXPECT_EQ(CSize(1, 2) - &rect, rect - CSize(1, 2));
    CRect changed = rect;
    changed += CPoint(1, 1);
    changed -= CSize(2, 2);
    changed += &margins;
    changed -= &margins;
    changed -= CPoint(0, 1);
    changed += CSize(1, 2);
    EXPECT_EQ(changed, rect);
}

TEST(Rect, ScalesByAFraction)
{
    EXPECT_EQ(CRect(1, 2, 10, 20).MulDiv(3, 2), CRect(2, 3, 15, 30));
}
