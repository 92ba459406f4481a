#include <testkit/ImportPatch.h>

#include <ovocor/ovocor.h>
#include <ovoui/frame/NonClientMetrics.h>

#include <gtest/gtest.h>

#include <cstring>

using ovo::testkit::ImportPatch;

namespace
{

BOOL WINAPI failing(UINT, UINT, void*, UINT)
{
    ::SetLastError(ERROR_ACCESS_DENIED);
    return FALSE;
}

UINT s_askedSize = 0;
UINT s_sizeField = 0;

BOOL WINAPI recording(UINT action, UINT size, void* metrics, UINT)
{
    s_askedSize = size;
    s_sizeField = static_cast<OvoNonClientMetrics*>(metrics)->cbSize;
    return action == SPI_GETNONCLIENTMETRICS;
}

} // namespace

TEST(NonClientMetrics, AreThoseOfTheSystem)
{
    NONCLIENTMETRICSW expected{};
    expected.cbSize = 500;
    ASSERT_TRUE(::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, 500, &expected, 0));

    const OvoNonClientMetrics metrics;
    EXPECT_EQ(std::memcmp(&metrics, &expected, 500), 0);
    EXPECT_NE(metrics.lfMessageFont.lfHeight, 0);
}

TEST(NonClientMetrics, AskForTheFormOf500Bytes)
{
    const ImportPatch patch{L"ovoui.dll", "SystemParametersInfoW", reinterpret_cast<void*>(&recording)};
    const OvoNonClientMetrics metrics;
    EXPECT_EQ(s_askedSize, 500u);
    EXPECT_EQ(s_sizeField, 500u);
    EXPECT_EQ(sizeof metrics, 500u);
}

TEST(NonClientMetrics, AreAssignedWhole)
{
    const OvoNonClientMetrics source;
    OvoNonClientMetrics target;
    target.lfCaptionFont.lfHeight = 999;
    target = source;
    EXPECT_EQ(std::memcmp(&source, &target, sizeof source), 0);
}

TEST(NonClientMetrics, ThrowTheSystemsErrorWhenTheyCannotBeRead)
{
    const ImportPatch patch{L"ovoui.dll", "SystemParametersInfoW", reinterpret_cast<void*>(&failing)};
    try {
        const OvoNonClientMetrics metrics;
        FAIL() << "no error was raised";
    } catch (const WinError& error) {
        EXPECT_EQ(error.code(), static_cast<DWORD>(ERROR_ACCESS_DENIED));
    }
}
