// What the framework knows about the running program.
#include "Texts.h"
#include <testkit/TestApp.h>

#include <afxwin.h>

#include <stdexcept>
#include <vector>

TEST(ModuleState, TheProgramIsTheInstance)
{
    EXPECT_EQ(AfxGetInstanceHandle(), ::GetModuleHandleW(nullptr));
    EXPECT_EQ(AfxGetResourceHandle(), ::GetModuleHandleW(nullptr));
    EXPECT_EQ(AfxGetApp(), &ovo::testkit::TestApp::instance());
    EXPECT_EQ(AfxGetApp()->m_hInstance, ::GetModuleHandleW(nullptr));
    EXPECT_EQ(AfxGetThread(), AfxGetApp());
    EXPECT_EQ(AfxGetThread()->m_nThreadID, ::GetCurrentThreadId());
    EXPECT_STREQ(AfxGetAppName(), AfxGetApp()->m_pszAppName);
}

TEST(ModuleState, TheResourceHandleIsTheOneThatWasSet)
{
    const HINSTANCE before = AfxGetResourceHandle();
    const HINSTANCE other = ::GetModuleHandleW(L"ovomfc.dll");
    AfxSetResourceHandle(other);
    EXPECT_EQ(AfxGetResourceHandle(), other);
    EXPECT_EQ(AfxGetInstanceHandle(), ::GetModuleHandleW(nullptr)) << "the instance stays";
    AfxSetResourceHandle(before);
    EXPECT_EQ(AfxGetResourceHandle(), before);
}

TEST(ModuleState, AProgramAndItsExtensionsShareOne)
{
    AFX_MODULE_STATE* const state = AfxGetModuleState();
    ASSERT_NE(state, nullptr);
    EXPECT_EQ(AfxGetAppModuleState(), state);
    EXPECT_EQ(AfxGetStaticModuleState(), state);
    EXPECT_EQ(AfxGetApp()->m_pModuleState, state);
}

TEST(ModuleState, ManagingItHoldsForAScope)
{
    AFX_MODULE_STATE* const before = AfxGetModuleState();
    int places[2]{}; // nothing looks into a state that only stands for another
    auto* const outer = reinterpret_cast<AFX_MODULE_STATE*>(&places[0]);
    auto* const inner = reinterpret_cast<AFX_MODULE_STATE*>(&places[1]);
    std::vector<AFX_MODULE_STATE*> seen;
    const auto method = [&](bool fails) {
        AFX_MANAGE_STATE(outer)
        {
            AFX_MANAGE_STATE(inner);
            seen.push_back(AfxGetModuleState());
        }
        seen.push_back(AfxGetModuleState());
        if (fails)
            throw std::runtime_error("from a method");
    };
    method(false);
    seen.push_back(AfxGetModuleState());
    EXPECT_THROW(method(true), std::runtime_error);
    seen.push_back(AfxGetModuleState());
    EXPECT_EQ(seen, (std::vector<AFX_MODULE_STATE*>{inner, outer, before, inner, outer, before}));
}

TEST(ModuleState, TheMainWindowIsTheThreads)
{
    EXPECT_EQ(AfxGetMainWnd(), nullptr);
    CWnd window;
    CWnd active;
    AfxGetThread()->m_pMainWnd = &window;
    EXPECT_EQ(AfxGetMainWnd(), &window);
    AfxGetThread()->m_pActiveWnd = &active;
    EXPECT_EQ(AfxGetMainWnd(), &active) << "a server that is active in its container's window";
    AfxGetThread()->m_pActiveWnd = nullptr;
    AfxGetThread()->m_pMainWnd = nullptr;
}

TEST(Libraries, AreLoadedAndFreed)
{
    ASSERT_EQ(::GetModuleHandleW(L"mfc_core_second.dll"), nullptr);
    const HINSTANCE library = AfxLoadLibrary(L"mfc_core_second.dll");
    ASSERT_NE(library, nullptr);
    EXPECT_EQ(::GetModuleHandleW(L"mfc_core_second.dll"), library);
    EXPECT_TRUE(AfxFreeLibrary(library));
    EXPECT_EQ(::GetModuleHandleW(L"mfc_core_second.dll"), nullptr);
    EXPECT_EQ(AfxLoadLibrary(L"there is no such library.dll"), nullptr);
}
