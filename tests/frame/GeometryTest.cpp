#include <testkit/ImportPatch.h>

#include <ovoui/frame/Geometry.h>

#include <gtest/gtest.h>

using ovo::testkit::ImportPatch;

namespace
{

constexpr RECT kPrimaryWork{0, 0, 1920, 1040};
constexpr RECT kSecondaryWork{1920, 100, 3200, 900};

/// Two monitors side by side: the first answers for what starts left of x = 1920.
HMONITOR WINAPI nearestOfTwo(LPCRECT rect, DWORD elsewhere)
{
    EXPECT_EQ(elsewhere, static_cast<DWORD>(MONITOR_DEFAULTTONEAREST));
    return reinterpret_cast<HMONITOR>(static_cast<INT_PTR>(rect->left < 1920 ? 1 : 2));
}

BOOL WINAPI infoOfTwo(HMONITOR monitor, LPMONITORINFO info)
{
    if (info->cbSize != 40)
        return FALSE;
    info->rcWork = monitor == reinterpret_cast<HMONITOR>(1) ? kPrimaryWork : kSecondaryWork;
    return TRUE;
}

BOOL WINAPI noInfo(HMONITOR, LPMONITORINFO)
{
    return FALSE;
}

BOOL WINAPI primaryWorkArea(UINT action, UINT, void* rect, UINT)
{
    if (action != SPI_GETWORKAREA)
        return FALSE;
    *static_cast<RECT*>(rect) = RECT{5, 6, 705, 606};
    return TRUE;
}

BOOL WINAPI noParameters(UINT, UINT, void*, UINT)
{
    return FALSE;
}

template <class Function>
void* address(Function* function)
{
    return reinterpret_cast<void*>(function);
}

class TwoMonitors : public ::testing::Test
{
    ImportPatch m_nearest{L"ovoui.dll", "MonitorFromRect", address(&nearestOfTwo)};
    ImportPatch m_info{L"ovoui.dll", "GetMonitorInfoW", address(&infoOfTwo)};
};

void expectRect(const RECT& actual, const RECT& expected)
{
    EXPECT_EQ(actual.left, expected.left);
    EXPECT_EQ(actual.top, expected.top);
    EXPECT_EQ(actual.right, expected.right);
    EXPECT_EQ(actual.bottom, expected.bottom);
}

RECT madeVisible(RECT rect)
{
    EnsureRectVisible(rect);
    return rect;
}

} // namespace

TEST_F(TwoMonitors, TheWorkAreaIsThatOfTheNearestMonitor)
{
    expectRect(GetWorkArea({100, 100, 200, 200}), kPrimaryWork);
    expectRect(GetWorkArea({2000, 100, 2100, 200}), kSecondaryWork);
}

TEST_F(TwoMonitors, ARectangleOffASecondaryMonitorIsPulledBackIntoThatMonitor)
{
    expectRect(madeVisible({3100, 850, 3300, 950}), {3000, 800, 3200, 900});
    expectRect(madeVisible({1930, 20, 2030, 60}), {1930, 100, 2030, 140});
}

TEST_F(TwoMonitors, ATooWideRectangleIsAlignedToTheLeftEdge)
{
    expectRect(madeVisible({0, 10, 3000, 50}), {0, 10, 3000, 50});
    expectRect(madeVisible({500, 10, 3500, 50}), {0, 10, 3000, 50});
}

TEST(Geometry, WithoutMonitorInformationThePrimaryWorkAreaIsUsed)
{
    const ImportPatch info{L"ovoui.dll", "GetMonitorInfoW", address(&noInfo)};
    const ImportPatch parameters{L"ovoui.dll", "SystemParametersInfoW", address(&primaryWorkArea)};
    expectRect(GetWorkArea({9000, 9000, 9100, 9100}), {5, 6, 705, 606});
    expectRect(madeVisible({9000, 9000, 9100, 9100}), {605, 506, 705, 606});
}

TEST(Geometry, WithNothingToAskTheRectangleItselfIsTheArea)
{
    const ImportPatch info{L"ovoui.dll", "GetMonitorInfoW", address(&noInfo)};
    const ImportPatch parameters{L"ovoui.dll", "SystemParametersInfoW", address(&noParameters)};
    expectRect(GetWorkArea({9000, 9000, 9100, 9100}), {9000, 9000, 9100, 9100});
    expectRect(madeVisible({-9000, 40, -8900, 50}), {-9000, 40, -8900, 50});
}

TEST(Geometry, TheRealMonitorsWorkAreaIsUsed)
{
    RECT work{};
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    expectRect(GetWorkArea({10, 10, 20, 20}), work);
    expectRect(madeVisible({work.right - 10, work.bottom - 10, work.right + 90, work.bottom + 40}),
               {work.right - 100, work.bottom - 50, work.right, work.bottom});
}
