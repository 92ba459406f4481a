// Toolbars: idle updates beside the framework's bar, opening a flyout beside a bare toolbar window, attaching
// flyouts.
#include <catch2/catch.hpp>

#include <ovoui/toolbar/FlyoutToolbar.h>
#include <ovoui/toolbar/VantorToolBar.h>

#include <ovouires/resource.h>

#include <afxext.h>

#include <string>
#include <vector>

namespace
{

constexpr int kFirstCommand = 100;

/// Serves every command, and disables those below `disabledBelow`.
class BenchFrame : public CFrameWnd
{
public:
    int disabledBelow = 0;

    BenchFrame() { Create(nullptr, L"Benchmark", WS_OVERLAPPEDWINDOW, CRect(0, 0, 1200, 300)); }

    BOOL OnCmdMsg(UINT, int code, void* extra, AFX_CMDHANDLERINFO*) override
    {
        if (code == static_cast<int>(CN_UPDATE_COMMAND_UI)) {
            auto* const ui = static_cast<CCmdUI*>(extra);
            ui->Enable(static_cast<int>(ui->m_nID) >= disabledBelow);
        }
        return TRUE;
    }
};

/// A frame for the length of a test; it deletes itself.
struct FrameScope
{
    BenchFrame& frame = *new BenchFrame;
    ~FrameScope() { frame.DestroyWindow(); }
};

template <class Bar>
void fill(Bar& bar, CFrameWnd& frame, int count)
{
    bar.CreateEx(&frame, TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE | CBRS_TOP);
    std::vector<UINT> ids;
    for (int i = 0; i < count; ++i)
        ids.push_back(static_cast<UINT>(kFirstCommand + i));
    bar.LoadBitmap(IDB_TOOLBAR_16_CLASSIC);
    bar.SetButtons(ids.data(), count);
}

class BenchBar : public CVantorToolBar
{
public:
    void open()
    {
        CreatePopup(0, CRect(100, 100, 124, 122), 0);
        ms_popupBar.reset();
    }
};

std::vector<int> commands(int count)
{
    std::vector<int> ids;
    for (int i = 0; i < count; ++i)
        ids.push_back(kFirstCommand + i);
    return ids;
}

/// The same buttons in a window without anything around it.
void openBare(HWND owner, HIMAGELIST images)
{
    constexpr int kEntries = 12;
    const HWND bare = ::CreateWindowExW(WS_EX_TOOLWINDOW, TOOLBARCLASSNAMEW, nullptr,
                                        WS_POPUP | TBSTYLE_FLAT | CCS_NOPARENTALIGN | CCS_NOMOVEY |
                                            CCS_NODIVIDER | CCS_NORESIZE,
                                        100, 122, kEntries * 23, 22, owner, nullptr, nullptr, nullptr);
    ::SendMessageW(bare, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    ::SendMessageW(bare, TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(images));
    for (int i = 0; i < kEntries; ++i) {
        TBBUTTON button{};
        button.iBitmap = i;
        button.idCommand = kFirstCommand + i;
        button.fsState = TBSTATE_ENABLED;
        button.iString = -1;
        ::SendMessageW(bare, TB_ADDBUTTONS, 1, reinterpret_cast<LPARAM>(&button));
    }
    ::SetWindowPos(bare, HWND_TOP, 0, 0, 0, 0, SWP_NOACTIVATE | SWP_NOMOVE | SWP_NOSIZE | SWP_SHOWWINDOW);
    ::DestroyWindow(bare);
}

} // namespace

TEST_CASE("idle update of 60 buttons")
{
    const int changed = GENERATE(0, 10);
    FrameScope scope;
    CToolBar plain;
    BenchBar bar;
    fill(plain, scope.frame, 60);
    fill(bar, scope.frame, 60);
    const auto update = [&](CToolBar& which, int turn) {
        scope.frame.disabledBelow = turn % 2 ? kFirstCommand + changed : 0;
        which.OnUpdateCmdUI(&scope.frame, TRUE);
    };
    const std::string states = std::to_string(changed) + " states changed, ";
    BENCHMARK_ADVANCED(states + "CToolBar [baseline]")(Catch::Benchmark::Chronometer meter)
    {
        meter.measure([&](int turn) { update(plain, turn); });
    };
    BENCHMARK_ADVANCED(states + (changed ? "CVantorToolBar [at most 1.3]" : "CVantorToolBar [at most 1.2]"))
    (Catch::Benchmark::Chronometer meter)
    {
        meter.measure([&](int turn) { update(bar, turn); });
    };
}

TEST_CASE("opening a flyout of 12 entries")
{
    FrameScope scope;
    BenchBar bar;
    fill(bar, scope.frame, 3);
    bar.AttachBar(0, 16, commands(12), std::vector<int>(12, IDB_TOOLBAR_16_CLASSIC),
                  {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}, {}, false, false);
    const auto images = reinterpret_cast<HIMAGELIST>(bar.SendMessage(TB_GETIMAGELIST));
    scope.frame.ShowWindow(SW_SHOWNOACTIVATE);
    BENCHMARK("a bare toolbar window [baseline]")
    {
        openBare(scope.frame.m_hWnd, images);
    };
    BENCHMARK("CreatePopup [at most 1.5]")
    {
        bar.open();
    };
}

TEST_CASE("attaching flyouts of 10 entries")
{
    FrameScope scope;
    const std::vector<int> ids = commands(10);
    const std::vector<int> strips(10, IDB_TOOLBAR_16_CLASSIC);
    const std::vector<Quark> names(10, Quark(L"name"));
    for (const int count : {100, 200}) {
        BenchBar bar;
        fill(bar, scope.frame, count);
        BENCHMARK(std::to_string(count) + " buttons" + (count == 100 ? " [baseline]" : " [at most 2.5]"))
        {
            bar.DetachAllBars();
            for (int i = 0; i < count; ++i)
                bar.AttachBar(i, 16, ids, strips, ids, names, false, true);
        };
    }
}
