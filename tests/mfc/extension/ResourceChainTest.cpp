// Where resources are looked for when extension modules come and go.
#include <afxwin.h>
#include <afxdllx.h>

#include <gtest/gtest.h>

namespace
{

class Extension
{
public:
    explicit Extension(const wchar_t* name)
        : m_module(::LoadLibraryW(name))
    {
    }
    ~Extension() { ::FreeLibrary(m_module); }
    Extension(const Extension&) = delete;
    Extension& operator=(const Extension&) = delete;

    HMODULE module() const { return m_module; }

private:
    HMODULE m_module;
};

CString text(UINT id)
{
    CString result;
    result.LoadString(id);
    return result;
}

} // namespace

TEST(ResourceChain, TheNewestExtensionComesFirst)
{
    const Extension one(L"extension_one.dll");
    ASSERT_NE(one.module(), nullptr);
    EXPECT_STREQ(text(5000), L"shared of one");
    {
        const Extension two(L"extension_two.dll");
        ASSERT_NE(two.module(), nullptr);
        EXPECT_STREQ(text(5000), L"shared of two");
        EXPECT_STREQ(text(5200), L"only one") << "what the newest lacks the older one gives";
        EXPECT_STREQ(text(5400), L"only two");
        EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCEW(61), RT_DIALOG), one.module());
    }
    EXPECT_STREQ(text(5000), L"shared of one") << "an unloaded module is out of the chain";
    EXPECT_STREQ(text(5400), L"");
}

TEST(ResourceChain, TheCurrentResourceHandleComesBeforeAll)
{
    const Extension one(L"extension_one.dll");
    const Extension two(L"extension_two.dll");
    const HINSTANCE before = AfxGetResourceHandle();
    AfxSetResourceHandle(one.module());
    EXPECT_STREQ(text(5000), L"shared of one");
    AfxSetResourceHandle(before);
    EXPECT_STREQ(text(5000), L"shared of two");
}

TEST(ResourceChain, TheFrameworksOwnStringsAreFoundLast)
{
    const Extension one(L"extension_one.dll");
    EXPECT_FALSE(text(AFX_IDS_IDLEMESSAGE).IsEmpty());
}

TEST(ResourceChain, WhatNoModuleHasIsLookedForInTheCurrentOne)
{
    EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCEW(4711), RT_DIALOG), AfxGetResourceHandle());
    EXPECT_STREQ(text(4711), L"");
}

TEST(ResourceChain, InitialisingTwiceChangesNothing)
{
    AFX_EXTENSION_MODULE state{};
    const HMODULE module = ::GetModuleHandleW(nullptr);
    EXPECT_FALSE(AfxInitExtensionModule(state, nullptr));
    EXPECT_TRUE(AfxInitExtensionModule(state, module));
    EXPECT_EQ(state.hModule, module);
    EXPECT_EQ(state.hResource, module);
    state.hResource = ::GetModuleHandleW(L"ovomfc.dll");
    EXPECT_TRUE(AfxInitExtensionModule(state, module));
    EXPECT_EQ(state.hResource, ::GetModuleHandleW(L"ovomfc.dll"));
    AfxTermExtensionModule(state);
}

TEST(ResourceChain, AnExtensionMayGiveAnotherModulesResources)
{
    const Extension one(L"extension_one.dll");
    AFX_EXTENSION_MODULE state{};
    ASSERT_TRUE(AfxInitExtensionModule(state, ::GetModuleHandleW(nullptr)));
    state.hResource = one.module();
    new CDynLinkLibrary(state);
    EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCEW(61), RT_DIALOG), one.module());
    AfxTermExtensionModule(state); // deletes the entry
}
