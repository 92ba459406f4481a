// Extension modules: their start and end, and the search for resources through them.
#include "LoadedExtension.h"
#include "Texts.h"
#include "resource.h"

#include <afxwin.h>

#include <optional>

namespace
{

HINSTANCE program()
{
    return ::GetModuleHandleW(nullptr);
}

HINSTANCE framework()
{
    return ::GetModuleHandleW(L"ovomfc.dll");
}

HINSTANCE whereIs(LPCWSTR name, LPCWSTR type = RT_RCDATA)
{
    return AfxFindResourceHandle(name, type);
}

HINSTANCE whereIsString(UINT id)
{
    return AfxFindResourceHandle(MAKEINTRESOURCEW(id / 16 + 1), RT_STRING);
}

CString string(UINT id)
{
    CString text;
    text.LoadString(id);
    return text;
}

/// Makes a module the one where resources are looked for first.
class ResourcesFrom
{
public:
    explicit ResourcesFrom(HINSTANCE module)
        : m_previous(AfxGetResourceHandle())
    {
        AfxSetResourceHandle(module);
    }
    ~ResourcesFrom() { AfxSetResourceHandle(m_previous); }
    ResourcesFrom(const ResourcesFrom&) = delete;
    ResourcesFrom& operator=(const ResourcesFrom&) = delete;

private:
    HINSTANCE m_previous;
};

} // namespace

// The search

TEST(ResourceSearch, BeginsWithTheProgram)
{
    const LoadedExtension first(kFirstExtension);
    EXPECT_EQ(AfxGetResourceHandle(), program());
    EXPECT_EQ(whereIs(L"EVERYWHERE"), program());
    EXPECT_EQ(string(IDS_EVERYWHERE), L"program");
}

TEST(ResourceSearch, GoesThroughTheExtensionsFromTheNewestToTheOldest)
{
    const LoadedExtension first(kFirstExtension);
    EXPECT_EQ(whereIs(L"IN_BOTH_EXTENSIONS"), first);
    {
        const LoadedExtension second(kSecondExtension);
        EXPECT_EQ(whereIs(L"IN_BOTH_EXTENSIONS"), second);
        EXPECT_EQ(string(IDS_IN_BOTH_EXTENSIONS), L"second");
    }
    EXPECT_EQ(whereIs(L"IN_BOTH_EXTENSIONS"), first);
    EXPECT_EQ(string(IDS_IN_BOTH_EXTENSIONS), L"first");
}

TEST(ResourceSearch, TheOrderIsThatOfLoadingAndNotOfNames)
{
    const LoadedExtension second(kSecondExtension);
    const LoadedExtension first(kFirstExtension);
    EXPECT_EQ(whereIs(L"IN_BOTH_EXTENSIONS"), first);
}

TEST(ResourceSearch, PassesOverModulesWithoutTheResource)
{
    const LoadedExtension first(kFirstExtension);
    const LoadedExtension second(kSecondExtension);
    EXPECT_EQ(whereIs(MAKEINTRESOURCEW(IDD_ONLY_IN_FIRST), RT_DIALOG), first);
    EXPECT_EQ(whereIs(L"ONLY_IN_FIRST", L"PROBE"), first) << "a type may be a name";
    EXPECT_EQ(whereIs(L"ONLY_IN_FIRST", RT_RCDATA), program()) << "the same name, but another type";
}

TEST(ResourceSearch, WithoutTheResourceAnywhereGivesTheCurrentModule)
{
    const LoadedExtension first(kFirstExtension);
    EXPECT_EQ(whereIs(L"NOWHERE"), program());
    const ResourcesFrom current(framework());
    EXPECT_EQ(whereIs(L"NOWHERE"), framework());
}

TEST(ResourceSearch, TheCurrentModuleComesBeforeAllOthers)
{
    const LoadedExtension first(kFirstExtension);
    const LoadedExtension second(kSecondExtension);
    const ResourcesFrom current(first);
    EXPECT_EQ(AfxGetResourceHandle(), first);
    EXPECT_EQ(whereIs(L"EVERYWHERE"), first);
    EXPECT_EQ(whereIs(L"IN_BOTH_EXTENSIONS"), first);
    EXPECT_EQ(string(IDS_EVERYWHERE), L"first");
}

TEST(ResourceSearch, ANullCurrentModuleIsPassedOver)
{
    const LoadedExtension first(kFirstExtension);
    const ResourcesFrom current(nullptr);
    EXPECT_EQ(whereIs(L"IN_BOTH_EXTENSIONS"), first);
    EXPECT_EQ(whereIs(L"NOWHERE"), nullptr);
}

TEST(ResourceSearch, TheFrameworkComesAfterTheExtensions)
{
    EXPECT_EQ(whereIsString(AFX_IDS_IDLEMESSAGE), framework());
    const LoadedExtension first(kFirstExtension);
    EXPECT_EQ(whereIsString(AFX_IDS_IDLEMESSAGE), first);
    EXPECT_EQ(string(AFX_IDS_IDLEMESSAGE), L"First is ready");
}

TEST(ResourceSearch, SystemExtensionsComeAfterTheFramework)
{
    const LoadedExtension first(kFirstExtension);
    const HINSTANCE second = ::LoadLibraryExW(kSecondExtension, nullptr, LOAD_LIBRARY_AS_DATAFILE);
    ASSERT_NE(second, nullptr);
    {
        AFX_EXTENSION_MODULE record{};
        ASSERT_TRUE(AfxInitExtensionModule(record, second));
        const CDynLinkLibrary system(record, TRUE);
        EXPECT_TRUE(system.m_bSystem);
        EXPECT_EQ(whereIs(L"IN_BOTH_EXTENSIONS"), first) << "though it is the older one";
        EXPECT_EQ(string(IDS_ONLY_IN_SECOND), L"only second");

        // The first one stays loaded, but leaves the search.
        AfxTermExtensionModule(first.probe.record());
        EXPECT_EQ(string(AFX_IDS_IDLEMESSAGE), L"Ready");
        EXPECT_EQ(whereIs(L"IN_BOTH_EXTENSIONS"), second);
    }
    ::FreeLibrary(second);
}

TEST(ResourceSearch, AStringIsFoundWhereItIsAndNotWhereItsBlockIs)
{
    const LoadedExtension first(kFirstExtension);
    const LoadedExtension second(kSecondExtension);
    EXPECT_EQ(string(IDS_ONLY_IN_FIRST), L"only first");
    EXPECT_EQ(string(IDS_ONLY_IN_SECOND), L"only second");
    EXPECT_EQ(string(IDS_ONLY_IN_PROGRAM), L"only program");
    EXPECT_EQ(string(IDS_NOWHERE), L"");
    wchar_t buffer[32];
    EXPECT_EQ(AfxLoadString(IDS_ONLY_IN_FIRST, buffer, 32), 10);
    EXPECT_STREQ(buffer, L"only first");
}

TEST(ResourceSearch, IconsAndCursorsAreLoadedThroughIt)
{
    const CWinApp& app = *AfxGetApp();
    EXPECT_EQ(app.LoadIcon(IDI_PROBE), nullptr);
    EXPECT_EQ(app.LoadCursor(IDC_PROBE), nullptr);
    const LoadedExtension first(kFirstExtension);
    EXPECT_NE(app.LoadIcon(IDI_PROBE), nullptr);
    EXPECT_NE(app.LoadIcon(MAKEINTRESOURCEW(IDI_PROBE)), nullptr);
    const HCURSOR cursor = app.LoadCursor(IDC_PROBE);
    ASSERT_NE(cursor, nullptr);
    EXPECT_EQ(app.LoadCursor(MAKEINTRESOURCEW(IDC_PROBE)), cursor);
    ICONINFO info{};
    ASSERT_TRUE(::GetIconInfo(cursor, &info));
    // The picture of 16 pixels is stretched to the system's size.
    EXPECT_EQ(static_cast<int>(info.xHotspot), 3 * ::GetSystemMetrics(SM_CXCURSOR) / 16);
    EXPECT_EQ(static_cast<int>(info.yHotspot), 5 * ::GetSystemMetrics(SM_CYCURSOR) / 16);
    ::DeleteObject(info.hbmMask);
    ::DeleteObject(info.hbmColor);
}

// Start and end

TEST(ExtensionModule, InitialisingFillsTheRecord)
{
    const LoadedExtension first(kFirstExtension);
    const AFX_EXTENSION_MODULE& record = first.probe.record();
    EXPECT_TRUE(record.bInitialized);
    EXPECT_EQ(record.hModule, first);
    EXPECT_EQ(record.hResource, first);
}

TEST(ExtensionModule, InitialisingAgainChangesNothing)
{
    AFX_EXTENSION_MODULE record{};
    ASSERT_TRUE(AfxInitExtensionModule(record, program()));
    record.hResource = framework();
    EXPECT_TRUE(AfxInitExtensionModule(record, framework()));
    EXPECT_EQ(record.hModule, program());
    EXPECT_EQ(record.hResource, framework());
}

TEST(ExtensionModule, WithoutAModuleItFails)
{
    AFX_EXTENSION_MODULE record{};
    EXPECT_FALSE(AfxInitExtensionModule(record, nullptr));
    EXPECT_FALSE(record.bInitialized);
    AfxTermExtensionModule(record); // and ending what was not begun does no harm
}

TEST(ExtensionModule, TheLinkCopiesTheHandlesWhenItIsMade)
{
    const LoadedExtension second(kSecondExtension);
    AFX_EXTENSION_MODULE record{};
    ASSERT_TRUE(AfxInitExtensionModule(record, program()));
    record.hResource = second;
    const CDynLinkLibrary link(record);
    record.hResource = nullptr;
    record.hModule = nullptr;
    EXPECT_EQ(link.m_hModule, program());
    EXPECT_EQ(link.m_hResource, second);
    EXPECT_FALSE(link.m_bSystem);
}

TEST(ExtensionModule, ResourcesMayLieInAnotherModule)
{
    const HINSTANCE data = ::LoadLibraryExW(kFirstExtension, nullptr, LOAD_LIBRARY_AS_DATAFILE);
    ASSERT_NE(data, nullptr);
    {
        const CDynLinkLibrary link(program(), data);
        EXPECT_EQ(whereIs(MAKEINTRESOURCEW(IDD_ONLY_IN_FIRST), RT_DIALOG), data);
        EXPECT_EQ(string(IDS_ONLY_IN_FIRST), L"only first");
    }
    EXPECT_EQ(string(IDS_ONLY_IN_FIRST), L"") << "a link that is gone is not searched";
    ::FreeLibrary(data);
}

TEST(ExtensionModule, ALinkWithoutResourcesIsPassedOver)
{
    const LoadedExtension first(kFirstExtension);
    const CDynLinkLibrary link(framework(), nullptr);
    EXPECT_EQ(whereIs(L"IN_BOTH_EXTENSIONS"), first);
    // To the system, no module means the program.
    const ResourcesFrom current(framework());
    EXPECT_EQ(whereIs(L"EVERYWHERE"), first);
}

TEST(ExtensionModule, LinksCanGoInAnyOrder)
{
    const LoadedExtension first(kFirstExtension);
    std::optional<LoadedExtension> second(std::in_place, kSecondExtension);
    std::optional<CDynLinkLibrary> third(std::in_place, program(), second.value());
    EXPECT_EQ(whereIs(L"IN_BOTH_EXTENSIONS"), *second);
    third.reset();
    EXPECT_EQ(whereIs(L"IN_BOTH_EXTENSIONS"), *second);
    std::optional<CDynLinkLibrary> fourth(std::in_place, framework(), nullptr);
    second.reset(); // from the middle
    EXPECT_EQ(whereIs(L"IN_BOTH_EXTENSIONS"), first);
    fourth.reset();
    EXPECT_EQ(whereIs(L"IN_BOTH_EXTENSIONS"), first);
}

TEST(ExtensionModule, EndingTakesItsOwnLinksOnly)
{
    const LoadedExtension first(kFirstExtension);
    const LoadedExtension second(kSecondExtension);
    AfxTermExtensionModule(second.probe.record());
    EXPECT_EQ(whereIs(L"IN_BOTH_EXTENSIONS"), first);
    AfxTermExtensionModule(second.probe.record());
    EXPECT_EQ(whereIs(L"IN_BOTH_EXTENSIONS"), first);
}

TEST(ExtensionModule, EndingForAllTakesEveryLink)
{
    const LoadedExtension first(kFirstExtension);
    const LoadedExtension second(kSecondExtension);
    AfxTermExtensionModule(first.probe.record(), TRUE);
    EXPECT_EQ(whereIs(L"IN_BOTH_EXTENSIONS"), program());
    EXPECT_EQ(string(IDS_ONLY_IN_SECOND), L"");
}

TEST(ExtensionModule, EndingUnregistersItsWindowClasses)
{
    LoadedExtension first(kFirstExtension);
    const HINSTANCE module = first;
    const LPCWSTR name = first.probe.registerWndClass();
    ASSERT_NE(name, nullptr);
    const std::wstring kept = name;
    WNDCLASSW found{};
    EXPECT_TRUE(::GetClassInfoW(module, kept.c_str(), &found));
    AfxTermExtensionModule(first.probe.record());
    EXPECT_FALSE(::GetClassInfoW(module, kept.c_str(), &found));
}

TEST(ExtensionModule, TwoModulesMayRegisterTheSameName)
{
    const LoadedExtension first(kFirstExtension);
    const LoadedExtension second(kSecondExtension);
    const LPCWSTR name = first.probe.registerWndClass();
    ASSERT_NE(name, nullptr);
    ASSERT_NE(second.probe.registerWndClass(), nullptr);
    WNDCLASSW found{};
    AfxTermExtensionModule(first.probe.record());
    EXPECT_FALSE(::GetClassInfoW(first, name, &found));
    EXPECT_TRUE(::GetClassInfoW(second, name, &found));
    AfxTermExtensionModule(second.probe.record());
    EXPECT_FALSE(::GetClassInfoW(second, name, &found));
}

TEST(ExtensionModule, ItsClassesAreKnownByNameWhileItIsLoaded)
{
    LoadedExtension first(kFirstExtension);
    CRuntimeClass* const record = first.probe.classRecord();
    EXPECT_STREQ(record->m_lpszClassName, "CFirstProbe");
    EXPECT_EQ(CRuntimeClass::FromName("CFirstProbe"), record);
    CObject* const object = CRuntimeClass::CreateObject("CFirstProbe");
    ASSERT_NE(object, nullptr);
    EXPECT_TRUE(object->IsKindOf(record));
    delete object;

    first.unload();
    EXPECT_EQ(CRuntimeClass::FromName("CFirstProbe"), nullptr);
    EXPECT_EQ(CRuntimeClass::FromName("CSecondProbe"), nullptr);
    EXPECT_NE(CRuntimeClass::FromName("CObject"), nullptr) << "the others are still there";
}

TEST(ExtensionModule, LoadsAndUnloadsAgainAndAgain)
{
    for (int i = 0; i < 50; ++i) {
        const LoadedExtension first(kFirstExtension);
        first.probe.classRecord();
        ASSERT_NE(first.probe.registerWndClass(), nullptr);
        ASSERT_EQ(string(IDS_ONLY_IN_FIRST), L"only first");
    }
    EXPECT_EQ(whereIs(L"IN_BOTH_EXTENSIONS"), program());
}
