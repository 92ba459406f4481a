// CObject and its class records.
#include <afxwin.h>

#include <gtest/gtest.h>

namespace
{

int g_alive = 0;

class CAnimal : public CObject
{
    DECLARE_DYNAMIC(CAnimal)

public:
    ~CAnimal() override { --g_alive; }

protected:
    CAnimal() { ++g_alive; }
};

class CDog : public CAnimal
{
    DECLARE_DYNCREATE(CDog)

public:
    int legs = 4;
};

class CStone : public CObject
{
    DECLARE_DYNAMIC(CStone)
};

IMPLEMENT_DYNAMIC(CAnimal, CObject)
IMPLEMENT_DYNCREATE(CDog, CAnimal)
IMPLEMENT_DYNAMIC(CStone, CObject)

} // namespace

TEST(RuntimeClass, KnowsItsClass)
{
    const CRuntimeClass* cls = RUNTIME_CLASS(CDog);
    EXPECT_STREQ(cls->m_lpszClassName, "CDog");
    EXPECT_EQ(cls->m_nObjectSize, static_cast<int>(sizeof(CDog)));
    EXPECT_EQ(cls->m_wSchema, 0xFFFFu);
    EXPECT_EQ(cls->m_pfnGetBaseClass(), RUNTIME_CLASS(CAnimal));
    EXPECT_EQ(CDog::GetThisClass(), cls);
}

TEST(RuntimeClass, TheRootHasNoBase)
{
    const CRuntimeClass* root = RUNTIME_CLASS(CObject);
    EXPECT_STREQ(root->m_lpszClassName, "CObject");
    EXPECT_TRUE(!root->m_pfnGetBaseClass || !root->m_pfnGetBaseClass());
}

TEST(RuntimeClass, IsDerivedFromItselfAndItsBases)
{
    CRuntimeClass* dog = RUNTIME_CLASS(CDog);
    EXPECT_TRUE(dog->IsDerivedFrom(dog));
    EXPECT_TRUE(dog->IsDerivedFrom(RUNTIME_CLASS(CAnimal)));
    EXPECT_TRUE(dog->IsDerivedFrom(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(dog->IsDerivedFrom(RUNTIME_CLASS(CStone)));
    EXPECT_FALSE(RUNTIME_CLASS(CAnimal)->IsDerivedFrom(dog));
}

TEST(RuntimeClass, ReachesBasesInAnotherModule)
{
    EXPECT_TRUE(RUNTIME_CLASS(CDialog)->IsDerivedFrom(RUNTIME_CLASS(CWnd)));
    EXPECT_TRUE(RUNTIME_CLASS(CDialog)->IsDerivedFrom(RUNTIME_CLASS(CCmdTarget)));
}

TEST(RuntimeClass, MakesObjectsOfClassesThatAllowIt)
{
    ASSERT_EQ(g_alive, 0);
    CObject* object = RUNTIME_CLASS(CDog)->CreateObject();
    ASSERT_NE(object, nullptr);
    EXPECT_EQ(g_alive, 1);
    EXPECT_EQ(object->GetRuntimeClass(), RUNTIME_CLASS(CDog));
    EXPECT_EQ(static_cast<CDog*>(object)->legs, 4);
    delete object;
    EXPECT_EQ(g_alive, 0);
    EXPECT_EQ(RUNTIME_CLASS(CAnimal)->CreateObject(), nullptr);
}

TEST(RuntimeClass, IsFoundByName)
{
    CRuntimeClass* dog = RUNTIME_CLASS(CDog);
    EXPECT_EQ(CRuntimeClass::FromName("CDog"), dog);
    EXPECT_EQ(CRuntimeClass::FromName(L"CDog"), dog);
    EXPECT_EQ(CRuntimeClass::FromName("CUnicorn"), nullptr);
    EXPECT_EQ(CRuntimeClass::FromName(L"CUnicorn"), nullptr);

    CObject* object = CRuntimeClass::CreateObject(L"CDog");
    ASSERT_NE(object, nullptr);
    EXPECT_TRUE(object->IsKindOf(dog));
    delete object;
    EXPECT_EQ(CRuntimeClass::CreateObject("CUnicorn"), nullptr);
    EXPECT_EQ(CRuntimeClass::CreateObject(L"CStone"), nullptr);
}

TEST(Object, KnowsItsKind)
{
    const CDog dog;
    const CObject& object = dog;
    EXPECT_EQ(object.GetRuntimeClass(), RUNTIME_CLASS(CDog));
    EXPECT_TRUE(object.IsKindOf(RUNTIME_CLASS(CAnimal)));
    EXPECT_FALSE(object.IsKindOf(RUNTIME_CLASS(CStone)));
    EXPECT_FALSE(object.IsSerializable());
}

TEST(Object, IsCastDownWhenItIsOfTheClass)
{
    CDog dog;
    CStone stone;
    CObject* object = &dog;
    EXPECT_EQ(DYNAMIC_DOWNCAST(CDog, object), &dog);
    EXPECT_EQ(DYNAMIC_DOWNCAST(CAnimal, object), &dog);
    EXPECT_EQ(STATIC_DOWNCAST(CDog, object), &dog);
    object = &stone;
    EXPECT_EQ(DYNAMIC_DOWNCAST(CDog, object), nullptr);
    object = nullptr;
    EXPECT_EQ(DYNAMIC_DOWNCAST(CDog, object), nullptr);
    EXPECT_EQ(STATIC_DOWNCAST(CDog, object), nullptr);
}

static_assert(!std::is_copy_constructible_v<CObject> && !std::is_copy_assignable_v<CObject>);

#ifdef OVO_ASSERTIONS
TEST(ObjectDeathTest, AWrongStaticCastAsserts)
{
    CStone stone;
    CObject* object = &stone;
    EXPECT_DEATH(STATIC_DOWNCAST(CDog, object), "assertion failed");
}
#endif
