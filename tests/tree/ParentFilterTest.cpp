// What stands in front of a parent while a change is made in steps. Under a parent as a host makes it, the
// tests of the selection see to it; here is what no host can bring about on request.
#include <ovoui/tree/ParentNotificationFilter.h>

#include <gtest/gtest.h>

#include <commctrl.h>

#include <optional>

using ovoui::tree::ParentNotificationFilter;

namespace
{

int g_heard = 0;

LRESULT CALLBACK hearingProcedure(HWND wnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    g_heard += message == WM_NOTIFY ? 1 : 0;
    return ::DefWindowProcW(wnd, message, wParam, lParam);
}

HWND makeWindow(HWND parent)
{
    return ::CreateWindowExW(0, L"Static", L"", parent ? WS_CHILD : WS_POPUP, 0, 0, 10, 10, parent, nullptr,
                             nullptr, nullptr);
}

void setProcedure(HWND wnd, WNDPROC procedure)
{
    ::SetWindowLongPtrW(wnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
}

/// Whether the parent hears of a change of the selection in this tree.
bool hears(HWND parent, HWND tree)
{
    g_heard = 0;
    NMHDR header{tree, 1, static_cast<UINT>(TVN_SELCHANGEDW)};
    ::SendMessageW(parent, WM_NOTIFY, 1, reinterpret_cast<LPARAM>(&header));
    return g_heard > 0;
}

/// The last message of a window, and at once another one with its handle: the system gives handles again.
void replace(HWND wnd)
{
    ::SendMessageW(wnd, WM_NCDESTROY, 0, 0);
    setProcedure(wnd, &hearingProcedure);
}

class ParentFilter : public testing::Test
{
protected:
    ParentFilter() { setProcedure(parent, &hearingProcedure); }
    ~ParentFilter() override { ::DestroyWindow(parent); }

    const HWND parent = makeWindow(nullptr);
    const HWND tree = makeWindow(parent);
    const HWND other = makeWindow(parent);
};

} // namespace

TEST_F(ParentFilter, KeepsWhatItsOwnTreeTellsFromTheParent)
{
    ASSERT_TRUE(hears(parent, tree));
    {
        const ParentNotificationFilter filter(tree);
        EXPECT_FALSE(hears(parent, tree));
        EXPECT_TRUE(hears(parent, other));
    }
    EXPECT_TRUE(hears(parent, tree));
}

TEST_F(ParentFilter, OutlivesAParentAndLeavesTheNextOneWithItsHandleAlone)
{
    std::optional<ParentNotificationFilter> old(tree);
    replace(parent);
    EXPECT_TRUE(hears(parent, tree)) << "it was another parent that was not to hear";
    std::optional<ParentNotificationFilter> filter(other);
    EXPECT_FALSE(hears(parent, other));
    old.reset();
    EXPECT_FALSE(hears(parent, other)) << "the filter in front of the next one stays";
    filter.reset();
    EXPECT_TRUE(hears(parent, other));
}
