#include <testkit/GdiCounter.h>
#include <testkit/GdiHandles.h>
#include <testkit/MemoryCounter.h>
#include <testkit/WindowCounter.h>

#include <afxwin.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

using namespace ovo::testkit;

TEST(GdiCounter, SeesEveryKindOfObject)
{
    const GdiCounter counter;
    const HDC dc = ::CreateCompatibleDC(nullptr);
    const HGDIOBJ objects[] = {
        ::CreateBitmap(4, 4, 1, 32, nullptr),
        ::CreateSolidBrush(RGB(1, 2, 3)),
        ::CreatePen(PS_SOLID, 1, RGB(3, 2, 1)),
        ::CreateRectRgn(0, 0, 5, 5),
        ::CreateFontW(12, 0, 0, 0, 400, 0, 0, 0, 0, 0, 0, 0, 0, L"Tahoma"),
    };
    // A memory device context may bring objects of its own along.
    EXPECT_GE(counter.grown(), 6);
    const int before = counter.grown();

    ::DeleteObject(objects[0]);
    EXPECT_EQ(counter.grown(), before - 1);
    for (int i = 1; i < 5; ++i)
        ::DeleteObject(objects[i]);
    ::DeleteDC(dc);
    EXPECT_EQ(counter.grown(), 0);
}

TEST(GdiCounter, KnowsTheHandlesWhereThePlatformTellsThem)
{
    const HGDIOBJ pen = ::CreatePen(PS_SOLID, 1, RGB(3, 2, 1));
    const std::vector<HGDIOBJ> handles = gdiHandles();
    const bool tells = !handles.empty();
    EXPECT_EQ(std::count(handles.begin(), handles.end(), pen), tells ? 1 : 0);
    ::DeleteObject(pen);
    const std::vector<HGDIOBJ> after = gdiHandles();
    EXPECT_EQ(std::count(after.begin(), after.end(), pen), 0);
    EXPECT_EQ(static_cast<int>(after.size()), tells ? GdiCounter::live() : 0);
}

TEST(GdiCounter, StaysTheSameOverManyThatAreFreed)
{
    const GdiCounter counter;
    for (int i = 0; i < 1000; ++i)
        ::DeleteObject(::CreateSolidBrush(RGB(i & 0xFF, 0, 0)));
    EXPECT_EQ(counter.grown(), 0);
}

TEST(WindowCounter, SeesTopLevelChildAndMessageOnlyWindows)
{
    const WindowCounter counter;
    CWnd top;
    top.CreateEx(0, AfxRegisterWndClass(0), L"top", WS_OVERLAPPEDWINDOW, CRect(0, 0, 100, 100), nullptr, 0);
    EXPECT_EQ(counter.grown(), 1);
    CStatic child;
    child.Create(L"child", WS_CHILD, CRect(0, 0, 10, 10), &top);
    EXPECT_EQ(counter.grown(), 2);
    const HWND silent =
        ::CreateWindowExW(0, L"STATIC", nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    EXPECT_EQ(counter.grown(), 3);

    ::DestroyWindow(silent);
    top.DestroyWindow();
    EXPECT_EQ(counter.grown(), 0);
}

TEST(MemoryCounter, SeesWhatIsNotFreed)
{
    constexpr long long kBlock = 100'000;
    constexpr int kBlocks = 20;
    const MemoryCounter counter;
    std::vector<std::unique_ptr<char[]>> kept(kBlocks);
    for (auto& block : kept)
        block = std::make_unique<char[]>(kBlock);
    EXPECT_GE(counter.grown(), kBlocks * kBlock);

    kept.clear();
    EXPECT_LT(counter.grown(), kBlock);
}

TEST(MemoryCounter, StaysTheSameOverManyBlocksThatAreFreed)
{
    const MemoryCounter counter;
    const HANDLE heap = ::GetProcessHeap();
    for (int i = 0; i < 1000; ++i)
        ::HeapFree(heap, 0, ::HeapAlloc(heap, 0, 1000));
    EXPECT_LT(counter.grown(), 100'000);
}
