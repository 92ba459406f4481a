// Which object stands for a GDI handle, and who deletes the handle.
#include <testkit/GdiCounter.h>

#include <afxwin.h>
#include <gtest/gtest.h>

namespace
{

bool isAlive(HGDIOBJ object)
{
    return ::GetObjectType(object) != 0;
}

} // namespace

TEST(GdiObject, FromHandleOfNullIsNull)
{
    EXPECT_EQ(CGdiObject::FromHandle(nullptr), nullptr);
    EXPECT_EQ(CPen::FromHandle(nullptr), nullptr);
    EXPECT_EQ(CBrush::FromHandle(nullptr), nullptr);
    EXPECT_EQ(CFont::FromHandle(nullptr), nullptr);
    EXPECT_EQ(CBitmap::FromHandle(nullptr), nullptr);
    EXPECT_EQ(CRgn::FromHandle(nullptr), nullptr);
    EXPECT_EQ(CPalette::FromHandle(nullptr), nullptr);
}

TEST(GdiObject, FromHandleOfAnAttachedHandleIsTheObjectItself)
{
    CPen pen(PS_SOLID, 1, RGB(1, 2, 3));

    EXPECT_EQ(CPen::FromHandle(pen), &pen);
    EXPECT_EQ(CGdiObject::FromHandle(pen.m_hObject), &pen);
}

TEST(GdiObject, FromHandleOfAForeignHandleIsOneTemporaryObject)
{
    const HBRUSH handle = ::CreateSolidBrush(RGB(9, 8, 7));

    CBrush* temporary = CBrush::FromHandle(handle);
    ASSERT_NE(temporary, nullptr);
    EXPECT_EQ(static_cast<HBRUSH>(*temporary), handle);
    EXPECT_EQ(CBrush::FromHandle(handle), temporary);

    ::DeleteObject(handle);
    CGdiObject::DeleteTempMap();
}

TEST(GdiObject, ATemporaryObjectHasTheClassThatFitsTheHandle)
{
    const HPEN pen = ::CreatePen(PS_SOLID, 1, 0);
    const LOGBRUSH solid{BS_SOLID, RGB(1, 1, 1), 0};
    const HPEN geometric = ::ExtCreatePen(PS_GEOMETRIC, 3, &solid, 0, nullptr);
    const HRGN region = ::CreateRectRgn(0, 0, 1, 1);
    const HBITMAP bitmap = ::CreateBitmap(1, 1, 1, 1, nullptr);

    EXPECT_NE(dynamic_cast<CPen*>(CGdiObject::FromHandle(pen)), nullptr);
    EXPECT_NE(dynamic_cast<CPen*>(CGdiObject::FromHandle(geometric)), nullptr);
    EXPECT_NE(dynamic_cast<CRgn*>(CGdiObject::FromHandle(region)), nullptr);
    EXPECT_NE(dynamic_cast<CBitmap*>(CGdiObject::FromHandle(bitmap)), nullptr);
    EXPECT_NE(dynamic_cast<CBrush*>(CGdiObject::FromHandle(::GetStockObject(NULL_BRUSH))), nullptr);
    EXPECT_NE(dynamic_cast<CFont*>(CGdiObject::FromHandle(::GetStockObject(SYSTEM_FONT))), nullptr);
    EXPECT_NE(dynamic_cast<CPalette*>(CGdiObject::FromHandle(::GetStockObject(DEFAULT_PALETTE))), nullptr);

    CGdiObject::DeleteTempMap();
    for (const HGDIOBJ object : {HGDIOBJ(pen), HGDIOBJ(geometric), HGDIOBJ(region), HGDIOBJ(bitmap)})
        EXPECT_TRUE(::DeleteObject(object)) << "the temporary object must not have deleted it";
}

TEST(GdiObject, DeletingTheTemporariesLeavesTheirHandlesAlive)
{
    const HPEN handle = ::CreatePen(PS_SOLID, 1, 0);
    CPen::FromHandle(handle);

    CGdiObject::DeleteTempMap();

    EXPECT_TRUE(isAlive(handle));
    ::DeleteObject(handle);
}

TEST(GdiObject, TheDestructorDeletesTheHandle)
{
    const HPEN handle = ::CreatePen(PS_SOLID, 1, 0);
    {
        CPen pen;
        EXPECT_TRUE(pen.Attach(handle));
    }
    EXPECT_FALSE(isAlive(handle));
}

TEST(GdiObject, DetachGivesTheHandleAway)
{
    CPen pen(PS_SOLID, 1, RGB(0, 0, 0));

    const HGDIOBJ handle = pen.Detach();

    EXPECT_EQ(pen.m_hObject, nullptr);
    EXPECT_TRUE(isAlive(handle));
    EXPECT_NE(CGdiObject::FromHandle(handle), &pen) << "the map must have forgotten the object";
    CGdiObject::DeleteTempMap();
    ::DeleteObject(handle);
    EXPECT_EQ(pen.Detach(), nullptr);
}

TEST(GdiObject, AttachFailsForNullAndForAnObjectInUse)
{
    CBrush brush(RGB(1, 2, 3));
    const HGDIOBJ first = brush.m_hObject;
    const HBRUSH second = ::CreateSolidBrush(RGB(4, 5, 6));

    EXPECT_FALSE(CBrush().Attach(nullptr));
    EXPECT_FALSE(brush.Attach(second));
    EXPECT_EQ(brush.m_hObject, first);
    ::DeleteObject(second);
}

TEST(GdiObject, AnAttachedObjectTakesThePlaceOfTheTemporaryOne)
{
    const HBRUSH handle = ::CreateSolidBrush(RGB(1, 2, 3));
    CBrush* const temporary = CBrush::FromHandle(handle);
    CBrush brush;

    brush.Attach(handle);

    EXPECT_NE(CBrush::FromHandle(handle), temporary);
    EXPECT_EQ(CBrush::FromHandle(handle), &brush);
    brush.DeleteObject();
    EXPECT_EQ(temporary->m_hObject, nullptr) << "a handle that is gone must not be drawn with";
    CGdiObject::DeleteTempMap();
}

TEST(GdiObject, DeleteObjectSaysWhetherThereWasOne)
{
    CPen pen(PS_SOLID, 1, RGB(0, 0, 0));

    EXPECT_TRUE(pen.DeleteObject());
    EXPECT_FALSE(pen.DeleteObject());
    EXPECT_EQ(pen.GetSafeHandle(), nullptr);
}

TEST(GdiObject, ADeletedObjectCanBeCreatedAnew)
{
    CPen pen(PS_SOLID, 1, RGB(0, 0, 0));
    pen.DeleteObject();

    EXPECT_TRUE(pen.CreatePen(PS_DOT, 1, RGB(5, 5, 5)));
    EXPECT_EQ(CPen::FromHandle(pen), &pen);
}

TEST(GdiObject, SeveralObjectsMayShareAStockObject)
{
    CBrush first;
    EXPECT_TRUE(first.CreateStockObject(WHITE_BRUSH));
    {
        CBrush second;
        EXPECT_TRUE(second.CreateStockObject(WHITE_BRUSH));
        EXPECT_TRUE(first == second);
    }
    EXPECT_TRUE(isAlive(first));
    EXPECT_EQ(static_cast<HBRUSH>(first), ::GetStockObject(WHITE_BRUSH));
}

TEST(GdiObject, ComparesByHandle)
{
    CPen pen(PS_SOLID, 1, RGB(0, 0, 0));
    CPen other(PS_SOLID, 1, RGB(0, 0, 0));

    EXPECT_TRUE(pen == *CPen::FromHandle(pen));
    EXPECT_FALSE(pen == other);
    EXPECT_TRUE(pen != other);
}

TEST(GdiObject, TheSafeHandleOfNoObjectIsNull)
{
    CPen* volatile none = nullptr;

    EXPECT_EQ(none->GetSafeHandle(), nullptr);
}

TEST(GdiObject, GetObjectDescribesIt)
{
    CPen pen(PS_DASH, 1, RGB(10, 20, 30));
    LOGPEN description{};

    EXPECT_EQ(pen.GetObject(sizeof description, &description), static_cast<int>(sizeof description));
    EXPECT_EQ(description.lopnStyle, static_cast<UINT>(PS_DASH));
    EXPECT_EQ(description.lopnColor, RGB(10, 20, 30));
    EXPECT_EQ(pen.GetObjectType(), static_cast<UINT>(OBJ_PEN));
    EXPECT_EQ(CPen().GetObjectType(), 0u);
}

TEST(GdiObject, CanBeMadeByItsClassRecord)
{
    const std::unique_ptr<CObject> made(RUNTIME_CLASS(CGdiObject)->CreateObject());

    ASSERT_NE(made, nullptr);
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(CGdiObject)));
    EXPECT_TRUE(CPen().IsKindOf(RUNTIME_CLASS(CGdiObject)));
    EXPECT_FALSE(CPen().IsKindOf(RUNTIME_CLASS(CBrush)));
}

TEST(GdiObject, AThousandOfThemLeaveNothingBehind)
{
    const ovo::testkit::GdiCounter counter;
    for (int i = 0; i < 1000; ++i) {
        CPen pen(PS_SOLID, 1, RGB(0, 0, 0));
        CBrush brush(RGB(1, 2, 3));
        CRgn region;
        region.CreateRectRgn(0, 0, 5, 5);
        CBitmap bitmap;
        bitmap.CreateBitmap(2, 2, 1, 1, nullptr);
        CFont font;
        font.CreatePointFont(90, L"Tahoma");
        CPen::FromHandle(pen);
    }
    EXPECT_EQ(counter.grown(), 0);
}
