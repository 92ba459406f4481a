// Device contexts: handles, the two contexts, tools and attributes, mapping and clipping.
#include <afxwin.h>
#include <gtest/gtest.h>
#include <testkit/GdiCounter.h>
#include <testkit/Picture.h>

using ovo::testkit::Picture;

namespace
{

/// A memory context with a bitmap of its own.
struct Canvas : Picture
{
    explicit Canvas(int width = 40, int height = 40)
        : Picture(width, height)
        , dc(*CDC::FromHandle(Picture::dc()))
    {
    }

    CDC& dc;
};

bool isAlive(HDC dc)
{
    return ::GetObjectType(dc) != 0;
}

} // namespace

TEST(Dc, FromHandleKnowsAttachedAndForeignHandles)
{
    CDC dc;
    ASSERT_TRUE(dc.CreateCompatibleDC(nullptr));
    EXPECT_EQ(CDC::FromHandle(nullptr), nullptr);
    EXPECT_EQ(CDC::FromHandle(dc.m_hDC), &dc);

    const HDC foreign = ::CreateCompatibleDC(nullptr);
    CDC* temporary = CDC::FromHandle(foreign);
    EXPECT_EQ(CDC::FromHandle(foreign), temporary);
    EXPECT_EQ(temporary->m_hDC, foreign);
    EXPECT_EQ(temporary->m_hAttribDC, foreign);
    CDC::DeleteTempMap();
    EXPECT_TRUE(isAlive(foreign)) << "a temporary object must not delete the context";
    ::DeleteDC(foreign);
}

TEST(Dc, AttachSetsBothContextsAndTheDestructorDeletes)
{
    const HDC handle = ::CreateCompatibleDC(nullptr);
    {
        CDC dc;
        EXPECT_TRUE(dc.Attach(handle));
        EXPECT_EQ(dc.m_hDC, handle);
        EXPECT_EQ(dc.m_hAttribDC, handle);
        EXPECT_EQ(dc.GetSafeHdc(), handle);
        EXPECT_FALSE(dc.Attach(handle));
        EXPECT_FALSE(CDC().Attach(nullptr));
    }
    EXPECT_FALSE(isAlive(handle));
}

TEST(Dc, DetachGivesTheContextAway)
{
    CDC dc;
    dc.CreateCompatibleDC(nullptr);

    const HDC handle = dc.Detach();

    EXPECT_EQ(dc.m_hDC, nullptr);
    EXPECT_EQ(dc.m_hAttribDC, nullptr);
    EXPECT_TRUE(isAlive(handle));
    ::DeleteDC(handle);
}

TEST(Dc, TheSafeHandleOfNoObjectIsNull)
{
    CDC* volatile none = nullptr;

    EXPECT_EQ(none->GetSafeHdc(), nullptr);
}

TEST(Dc, ASeparateAttributeContextStaysItsOwners)
{
    const HDC attributes = ::CreateCompatibleDC(nullptr);
    {
        CDC dc;
        dc.CreateCompatibleDC(nullptr);
        dc.SetAttribDC(attributes);
        EXPECT_NE(dc.m_hDC, dc.m_hAttribDC);
    }
    EXPECT_TRUE(isAlive(attributes));
    ::DeleteDC(attributes);
}

TEST(Dc, QuestionsGoToTheAttributeContextAndSettingsToBoth)
{
    CDC output;
    CDC attributes;
    output.CreateCompatibleDC(nullptr);
    attributes.CreateCompatibleDC(nullptr);
    const HDC handle = output.m_hDC;
    output.SetAttribDC(attributes);

    ::SetTextColor(attributes, RGB(1, 2, 3));
    EXPECT_EQ(output.GetTextColor(), RGB(1, 2, 3));

    EXPECT_EQ(output.SetTextColor(RGB(4, 5, 6)), RGB(1, 2, 3)) << "what is given back is what was asked";
    EXPECT_EQ(::GetTextColor(handle), RGB(4, 5, 6));
    EXPECT_EQ(::GetTextColor(attributes), RGB(4, 5, 6));

    output.SetViewportOrg(3, 4);
    EXPECT_EQ(output.GetViewportOrg(), CPoint(3, 4));
    CPoint origin;
    ::GetViewportOrgEx(handle, &origin);
    EXPECT_EQ(origin, CPoint(3, 4));
}

TEST(Dc, AFontIsSelectedWhereTextIsMeasured)
{
    CDC output;
    CDC attributes;
    output.CreateCompatibleDC(nullptr);
    attributes.CreateCompatibleDC(nullptr);
    CFont font;
    font.CreatePointFont(400, L"Tahoma");
    const CSize small = output.GetTextExtent(L"wide");
    output.SetAttribDC(attributes);

    CFont* former = output.SelectObject(&font);

    EXPECT_GT(output.GetTextExtent(L"wide").cx, 2 * small.cx);
    EXPECT_GT(output.GetOutputTextExtent(L"wide").cx, 2 * small.cx);
    output.SelectObject(former);
}

TEST(Dc, AnAttributeContextAloneAnswersQuestions)
{
    CDC attributes;
    attributes.CreateCompatibleDC(nullptr);
    attributes.SetBkColor(RGB(7, 8, 9));
    CDC dc;

    dc.SetAttribDC(attributes);

    EXPECT_EQ(dc.m_hDC, nullptr);
    EXPECT_EQ(dc.GetBkColor(), RGB(7, 8, 9));
    dc.ReleaseAttribDC();
    EXPECT_EQ(dc.m_hAttribDC, nullptr);
}

TEST(Dc, SelectObjectGivesTheToolOfBefore)
{
    Canvas canvas;
    CPen first(PS_SOLID, 1, RGB(1, 1, 1));
    CPen second(PS_SOLID, 1, RGB(2, 2, 2));
    CBrush brush(RGB(3, 3, 3));

    CPen* const stock = canvas.dc.SelectObject(&first);
    EXPECT_EQ(static_cast<HPEN>(*stock), ::GetStockObject(BLACK_PEN));
    EXPECT_EQ(canvas.dc.SelectObject(&second), &first);
    EXPECT_EQ(canvas.dc.GetCurrentPen(), &second);
    EXPECT_EQ(canvas.dc.SelectObject(stock), &second);

    CBrush* const white = canvas.dc.SelectObject(&brush);
    EXPECT_EQ(static_cast<HBRUSH>(*white), ::GetStockObject(WHITE_BRUSH));
    EXPECT_EQ(canvas.dc.GetCurrentBrush(), &brush);
    EXPECT_EQ(canvas.dc.SelectObject(static_cast<CGdiObject*>(white)), &brush);
}

TEST(Dc, SelectStockObjectGivesTheToolOfBefore)
{
    Canvas canvas;
    CPen pen(PS_SOLID, 1, RGB(1, 1, 1));
    canvas.dc.SelectObject(&pen);

    EXPECT_EQ(canvas.dc.SelectStockObject(NULL_PEN), &pen);
    EXPECT_EQ(static_cast<HPEN>(*canvas.dc.GetCurrentPen()), ::GetStockObject(NULL_PEN));
}

TEST(Dc, SelectingABitmapMakesItTheCanvas)
{
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    CClientDC screen(nullptr);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&screen, 4, 4);

    CBitmap* former = dc.SelectObject(&bitmap);
    ASSERT_NE(former, nullptr);
    EXPECT_EQ(dc.GetCurrentBitmap(), &bitmap);
    dc.SetPixel(2, 2, RGB(255, 0, 0));
    EXPECT_EQ(dc.GetPixel(2, 2), RGB(255, 0, 0));
    EXPECT_EQ(dc.SelectObject(former), &bitmap);
}

TEST(Dc, SelectingARegionClipsAndGivesItsKind)
{
    Canvas canvas;
    CRgn region;
    region.CreateRectRgn(0, 0, 5, 5);

    EXPECT_EQ(canvas.dc.SelectObject(&region), SIMPLEREGION);
    region.DeleteObject(); // GDI keeps a copy
    canvas.dc.FillSolidRect(CRect(0, 0, 40, 40), RGB(255, 0, 0));

    EXPECT_EQ(canvas.count(RGB(255, 0, 0)), 25);
    canvas.dc.SelectClipRgn(nullptr);
}

TEST(Dc, SaveAndRestoreBringEverythingBack)
{
    Canvas canvas;
    canvas.dc.SetTextColor(RGB(1, 2, 3));
    const int saved = canvas.dc.SaveDC();
    canvas.dc.SetTextColor(RGB(9, 9, 9));
    canvas.dc.SaveDC();
    canvas.dc.SetTextColor(RGB(8, 8, 8));

    EXPECT_TRUE(canvas.dc.RestoreDC(-1));
    EXPECT_EQ(canvas.dc.GetTextColor(), RGB(9, 9, 9));
    EXPECT_TRUE(canvas.dc.RestoreDC(saved));
    EXPECT_EQ(canvas.dc.GetTextColor(), RGB(1, 2, 3));
    EXPECT_FALSE(canvas.dc.RestoreDC(saved));
}

TEST(Dc, SettersGiveTheValueOfBefore)
{
    Canvas canvas;

    EXPECT_EQ(canvas.dc.SetBkMode(TRANSPARENT), OPAQUE);
    EXPECT_EQ(canvas.dc.GetBkMode(), TRANSPARENT);
    EXPECT_EQ(canvas.dc.SetROP2(R2_XORPEN), R2_COPYPEN);
    EXPECT_EQ(canvas.dc.GetROP2(), R2_XORPEN);
    EXPECT_EQ(canvas.dc.SetPolyFillMode(WINDING), ALTERNATE);
    EXPECT_EQ(canvas.dc.GetPolyFillMode(), WINDING);
    canvas.dc.SetStretchBltMode(COLORONCOLOR);
    EXPECT_EQ(canvas.dc.SetStretchBltMode(HALFTONE), COLORONCOLOR);
    EXPECT_EQ(canvas.dc.SetTextAlign(TA_RIGHT), static_cast<UINT>(TA_LEFT | TA_TOP));
    EXPECT_EQ(canvas.dc.GetTextAlign(), static_cast<UINT>(TA_RIGHT));
    EXPECT_EQ(canvas.dc.SetBrushOrg(3, 5), CPoint(0, 0));
    EXPECT_EQ(canvas.dc.GetBrushOrg(), CPoint(3, 5));
    EXPECT_EQ(canvas.dc.SetArcDirection(AD_CLOCKWISE), AD_COUNTERCLOCKWISE);
    EXPECT_EQ(canvas.dc.GetArcDirection(), AD_CLOCKWISE);
    EXPECT_EQ(canvas.dc.MoveTo(7, 8), CPoint(0, 0));
    EXPECT_EQ(canvas.dc.MoveTo(CPoint(1, 1)), CPoint(7, 8));
    EXPECT_EQ(canvas.dc.GetCurrentPosition(), CPoint(1, 1));
}

TEST(Dc, MappingConvertsBothWays)
{
    Canvas canvas;
    canvas.dc.SetMapMode(MM_ANISOTROPIC);
    canvas.dc.SetWindowExt(10, 10);
    canvas.dc.SetViewportExt(CSize(30, -20));
    canvas.dc.SetViewportOrg(5, 50);
    EXPECT_EQ(canvas.dc.GetWindowExt(), CSize(10, 10));
    EXPECT_EQ(canvas.dc.GetViewportExt(), CSize(30, -20));

    CPoint point(2, 3);
    canvas.dc.LPtoDP(&point);
    EXPECT_EQ(point, CPoint(11, 44));
    canvas.dc.DPtoLP(&point);
    EXPECT_EQ(point, CPoint(2, 3));

    CRect rect(0, 0, 10, 10);
    canvas.dc.LPtoDP(&rect);
    EXPECT_EQ(rect, CRect(5, 50, 35, 30));

    CSize size(4, 5);
    canvas.dc.LPtoDP(&size);
    EXPECT_EQ(size, CSize(12, 10)) << "a size has no sign";
    canvas.dc.DPtoLP(&size);
    EXPECT_EQ(size, CSize(4, 5));
}

TEST(Dc, HimetricFollowsPixelsPerInchInPixelModes)
{
    Canvas canvas;
    const int perInch = canvas.dc.GetDeviceCaps(LOGPIXELSX);
    CSize size(perInch, 2 * canvas.dc.GetDeviceCaps(LOGPIXELSY));

    canvas.dc.DPtoHIMETRIC(&size);
    EXPECT_EQ(size, CSize(2540, 5080));
    canvas.dc.HIMETRICtoDP(&size);
    EXPECT_EQ(size.cx, perInch);
}

TEST(Dc, HimetricFollowsTheModeInMetricModesAndLeavesItSet)
{
    Canvas canvas;
    canvas.dc.SetMapMode(MM_LOMETRIC); // a tenth of a millimetre
    CSize size(1000, 500);

    canvas.dc.LPtoHIMETRIC(&size);

    EXPECT_NEAR(size.cx, 10000, 100); // whole pixels
    EXPECT_NEAR(size.cy, 5000, 100);
    EXPECT_EQ(canvas.dc.GetMapMode(), MM_LOMETRIC);
}

TEST(Dc, ClippingKeepsDrawingInside)
{
    Canvas canvas;
    CRect box;

    EXPECT_EQ(canvas.dc.IntersectClipRect(CRect(10, 10, 20, 20)), SIMPLEREGION);
    canvas.dc.GetClipBox(&box);
    EXPECT_EQ(box, CRect(10, 10, 20, 20));
    EXPECT_EQ(canvas.dc.ExcludeClipRect(10, 10, 20, 15), SIMPLEREGION);
    EXPECT_FALSE(canvas.dc.PtVisible(12, 12));
    EXPECT_TRUE(canvas.dc.PtVisible(CPoint(12, 17)));
    EXPECT_FALSE(canvas.dc.RectVisible(CRect(0, 0, 5, 5)));
    canvas.dc.FillSolidRect(CRect(0, 0, 40, 40), RGB(0, 0, 255));
    EXPECT_EQ(canvas.count(RGB(0, 0, 255)), 50);
    canvas.dc.OffsetClipRgn(-10, -15);
    EXPECT_TRUE(canvas.dc.PtVisible(0, 0));
    canvas.dc.SelectClipRgn(nullptr);
    EXPECT_TRUE(canvas.dc.PtVisible(39, 39));
}

TEST(Dc, SelectClipRgnCombinesByMode)
{
    Canvas canvas;
    CRgn one;
    CRgn other;
    one.CreateRectRgn(0, 0, 10, 10);
    other.CreateRectRgn(20, 20, 30, 30);

    canvas.dc.SelectClipRgn(&one);
    EXPECT_EQ(canvas.dc.SelectClipRgn(&other, RGN_OR), COMPLEXREGION);
    canvas.dc.FillSolidRect(CRect(0, 0, 40, 40), RGB(255, 0, 0));

    EXPECT_EQ(canvas.count(RGB(255, 0, 0)), 200);
    canvas.dc.SelectClipRgn(nullptr);
}

TEST(Dc, AMemoryContextDrawsOnNoWindowAndDoesNotPrint)
{
    Canvas canvas;

    EXPECT_EQ(canvas.dc.GetWindow(), nullptr);
    EXPECT_FALSE(canvas.dc.IsPrinting());
    EXPECT_TRUE(canvas.dc.QueryAbort()) << "no abort procedure is set";
}

TEST(Dc, ADisplayContextCanBeMadeByName)
{
    CDC dc;
    CDC information;

    EXPECT_TRUE(dc.CreateDC(L"DISPLAY", nullptr, nullptr, nullptr));
    EXPECT_TRUE(information.CreateIC(L"DISPLAY", nullptr, nullptr, nullptr));
    EXPECT_GT(dc.GetDeviceCaps(HORZRES), 0);
    EXPECT_EQ(dc.GetDeviceCaps(HORZRES), information.GetDeviceCaps(HORZRES));
    EXPECT_TRUE(dc.DeleteDC());
    EXPECT_FALSE(dc.DeleteDC());
}

TEST(Dc, CreatingAndDestroyingLeavesNothingBehind)
{
    CClientDC screen(nullptr);
    const ovo::testkit::GdiCounter counter;
    for (int i = 0; i < 1000; ++i) {
        CDC dc;
        dc.CreateCompatibleDC(&screen);
        CDC::FromHandle(dc);
        CPen pen(PS_SOLID, 1, RGB(0, 0, 0));
        CPen* former = dc.SelectObject(&pen);
        dc.SelectObject(former);
    }
    EXPECT_EQ(counter.grown(), 0);
}
