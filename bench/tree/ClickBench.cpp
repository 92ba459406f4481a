// A click on one item, with few or many selected, in trees of different sizes.
#include "BenchTrees.h"

#include <catch2/catch.hpp>

namespace
{

/// A press and a release on the label of the second or the third displayed row in turn.
void click(BenchTree& tree, int turn)
{
    HTREEITEM item = tree.GetRootItem();
    for (int i = 0; i < 1 + turn % 2; ++i)
        item = tree.GetNextSiblingItem(item);
    CRect label;
    tree.GetItemRect(item, &label, TRUE);
    const LPARAM where = MAKELPARAM(label.left + 2, label.CenterPoint().y);
    tree.PostMessage(WM_LBUTTONUP, 0, where); // waits in the queue when the press is handled
    tree.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, where);
    tree.UpdateWindow();
}

void benchmarkClicks(const std::string& name, BenchTree& tree, int selected)
{
    HTREEITEM last = tree.GetRootItem();
    for (int i = 1; i < selected; ++i)
        last = tree.GetNextSiblingItem(last);
    BENCHMARK_ADVANCED(std::string(name))(Catch::Benchmark::Chronometer meter)
    {
        tree.SelectItem(tree.GetRootItem());
        if (selected > 1)
            tree.selectRange(tree.GetRootItem(), last);
        tree.UpdateWindow();
        // One run a sample, for only the first one meets the selection.
        meter.measure([&](int turn) { click(tree, turn); });
    };
}

} // namespace

TEST_CASE("a click")
{
    const int selected = GENERATE(1, 1000);
    BenchParent parent;
    for (const int count : {1000, 10000, 100000}) {
        BenchTree tree(parent);
        tree.fill(labels(count));
        tree.SetFocus();
        const std::string role = count > 1000 ? " [at most 3]" : " [baseline]";
        benchmarkClicks(std::to_string(selected) + " selected among " + std::to_string(count) + role, tree,
                        selected);
    }
}
