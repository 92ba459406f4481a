// Selecting and walking, against the fewest messages that do the same.
#include "BenchTrees.h"

#include <catch2/catch.hpp>

namespace
{

/// Walks over what one scrolls through, with redrawing held: by the window, which spares more than by the
/// tree view.
template <class Act>
void forAll(const BareTree& tree, Act act)
{
    ::DefWindowProcW(tree.window(), WM_SETREDRAW, FALSE, 0);
    for (HTREEITEM item = tree.next(TVGN_ROOT); item; item = tree.next(TVGN_NEXTVISIBLE, item))
        act(item);
    ::DefWindowProcW(tree.window(), WM_SETREDRAW, TRUE, 0);
    ::RedrawWindow(tree.window(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_UPDATENOW);
}

struct Pair
{
    explicit Pair(int count)
        : bare(parent)
        , tree(parent)
    {
        const std::vector<std::wstring> names = labels(count);
        bare.fill(names);
        tree.fill(names);
    }

    /// Selects or deselects all in the bare tree.
    void mark(bool selected)
    {
        forAll(bare, [&](HTREEITEM item) { bare.setSelected(item, selected); });
    }
    HTREEITEM first() const { return tree.GetRootItem(); }
    HTREEITEM last() const { return tree.GetLastVisibleItem(); }

    BenchParent parent;
    BareTree bare;
    BenchTree tree;
};

const std::string& sized(std::string& text, int count)
{
    return text.replace(text.find('#'), 1, std::to_string(count));
}

} // namespace

TEST_CASE("select all")
{
    const int count = GENERATE(1000, 10000);
    Pair pair(count);
    std::string by = "messages, # [baseline]";
    std::string tree = "select all, # [at most 1.3]";
    BENCHMARK_ADVANCED(std::string(sized(by, count)))(Catch::Benchmark::Chronometer meter)
    {
        pair.mark(false);
        meter.measure([&] { pair.mark(true); });
    };
    BENCHMARK_ADVANCED(std::string(sized(tree, count)))(Catch::Benchmark::Chronometer meter)
    {
        pair.tree.clearselection(pair.first());
        meter.measure([&] {
            pair.tree.SendMessage(WM_COMMAND, ID_EDIT_SELECT_ALL);
            pair.tree.UpdateWindow();
        });
    };
}

TEST_CASE("clear the selection of all")
{
    const int count = GENERATE(1000, 10000);
    Pair pair(count);
    std::string by = "messages, # [baseline]";
    std::string tree = "clearselection, # [at most 1.3]";
    BENCHMARK_ADVANCED(std::string(sized(by, count)))(Catch::Benchmark::Chronometer meter)
    {
        pair.mark(true);
        meter.measure([&] { pair.mark(false); });
    };
    BENCHMARK_ADVANCED(std::string(sized(tree, count)))(Catch::Benchmark::Chronometer meter)
    {
        pair.tree.selectRange(pair.first(), pair.last());
        meter.measure([&] {
            pair.tree.clearselection(pair.first());
            pair.tree.UpdateWindow();
        });
    };
}

TEST_CASE("select a range of all")
{
    const int count = GENERATE(1000, 10000);
    Pair pair(count);
    std::string by = "messages, # [baseline]";
    std::string tree = "selectRange, # [at most 1.3]";
    BENCHMARK_ADVANCED(std::string(sized(by, count)))(Catch::Benchmark::Chronometer meter)
    {
        pair.mark(false);
        meter.measure([&] { pair.mark(true); });
    };
    BENCHMARK_ADVANCED(std::string(sized(tree, count)))(Catch::Benchmark::Chronometer meter)
    {
        pair.tree.clearselection(pair.first());
        meter.measure([&] {
            pair.tree.selectRange(pair.first(), pair.last());
            pair.tree.UpdateWindow();
        });
    };
}

TEST_CASE("walk over all")
{
    const int count = GENERATE(1000, 10000, 100000);
    Pair pair(count);
    std::string by = "messages, # [baseline]";
    std::string tree = "iterator, # [at most 1.3]";
    // Depth first, the node behind each item looked at.
    BENCHMARK(std::string(sized(by, count)))
    {
        LPARAM sum = 0;
        for (HTREEITEM item = pair.bare.next(TVGN_ROOT); item;) {
            TVITEMW data{};
            data.mask = TVIF_HANDLE | TVIF_PARAM;
            data.hItem = item;
            pair.bare.send(TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&data));
            sum += data.lParam;
            const HTREEITEM child = pair.bare.next(TVGN_CHILD, item);
            item = child ? child : pair.bare.next(TVGN_NEXT, item);
        }
        return sum;
    };
    BENCHMARK(std::string(sized(tree, count)))
    {
        std::uint32_t sum = 0;
        for (auto at = pair.tree.beginAll(); at != pair.tree.end(); ++at)
            sum += (*at).state;
        return sum;
    };
}

TEST_CASE("walk over the selected tenth")
{
    const int count = GENERATE(1000, 10000, 100000);
    Pair pair(count);
    int number = 0;
    forAll(pair.bare, [&](HTREEITEM item) {
        if (number++ % 10 == 0)
            pair.bare.setSelected(item, true);
    });
    number = 0;
    for (auto at = pair.tree.beginAll(); at != pair.tree.end(); ++at)
        if (number++ % 10 == 0)
            pair.tree.SetItemState(at->hTreeItem(), TVIS_SELECTED, TVIS_SELECTED);
    std::string by = "messages, # [baseline]";
    std::string tree = "iterator, # [at most 1.3]";
    BENCHMARK(std::string(sized(by, count)))
    {
        LPARAM sum = 0;
        for (HTREEITEM item = pair.bare.next(TVGN_ROOT); item;) {
            TVITEMW data{};
            data.mask = TVIF_HANDLE | TVIF_PARAM | TVIF_STATE;
            data.stateMask = TVIS_SELECTED;
            data.hItem = item;
            pair.bare.send(TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&data));
            sum += (data.state & TVIS_SELECTED) ? data.lParam : 0;
            const HTREEITEM child = pair.bare.next(TVGN_CHILD, item);
            item = child ? child : pair.bare.next(TVGN_NEXT, item);
        }
        return sum;
    };
    BENCHMARK(std::string(sized(tree, count)))
    {
        std::uint32_t sum = 0;
        for (auto at = pair.tree.beginSelected(); at != pair.tree.end(); ++at)
            sum += (*at).state;
        return sum;
    };
}
