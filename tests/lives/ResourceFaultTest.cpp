// Resource modules that are damaged, and resources that are missing: the library refuses to load, or does
// without.
#include "Lives.h"
#include "ProbeFolder.h"
#include "ResourceGap.h"

#include <testkit/RecordingParent.h>
#include <testkit/Watchdog.h>
#include <testkit/WindowCounter.h>

#include <ovouires/resource.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

using namespace ovo::testkit;

TEST(DamagedResources, AModuleCutAnywhereIsRefused)
{
    const ProbeFolder folder;
    EXPECT_EQ(folder.run(L"damaged"), 0u);
}

TEST(MissingResources, NoControlFailsWithoutAnyOfThem)
{
    RecordingParent parent;
    parent.ShowWindow(SW_SHOWNOACTIVATE);
    for (const Life& life : lives())
        ASSERT_EQ(liveOnce(life, parent), "") << life.name;
    const std::vector<ResourcePlace> resources = resourcesOf(::GetModuleHandleW(L"ovouires.dll"));
    EXPECT_GT(resources.size(), 30u);
    std::printf("%zu resources were missing, one at a time\n", resources.size());
    for (const ResourcePlace& resource : resources) {
        Watchdog::progress();
        SCOPED_TRACE(resource.name);
        const WindowCounter windows;
        {
            const ResourceGap gap(resource);
            for (const Life& life : lives())
                EXPECT_EQ(liveOnce(life, parent), "") << life.name;
        }
        parent.log().clear();
        EXPECT_EQ(windows.grown(), 0);
    }
    for (const Life& life : lives())
        EXPECT_EQ(liveOnce(life, parent), "") << life.name << " when all are back";
}

TEST(MissingResources, AreFoundAgainAfterwards)
{
    const HMODULE module = ::GetModuleHandleW(L"ovouires.dll");
    const LPCWSTR box = MAKEINTRESOURCEW(IDD_MESSAGE_BOX);
    const std::string name = "dialog " + std::to_string(IDD_MESSAGE_BOX);
    int gaps = 0;
    for (const ResourcePlace& resource : resourcesOf(module)) {
        const ResourceGap gap(resource);
        const bool isThere = ::FindResourceW(module, box, RT_DIALOG) != nullptr;
        EXPECT_EQ(isThere, resource.name != name) << resource.name;
        gaps += !isThere;
    }
    EXPECT_EQ(gaps, 1);
    EXPECT_NE(::FindResourceW(module, box, RT_DIALOG), nullptr);
}
