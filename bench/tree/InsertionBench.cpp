// Inserting: at the end, in random order under a sorted insertion point, as a batch. Redrawing is held all
// the while, as a host does that fills a tree.
#include "BenchTrees.h"

#include <catch2/catch.hpp>

#include <iterator>
#include <map>

namespace
{

/// One tree for each run of a sample, so that every run begins with an empty one.
template <class Tree>
std::vector<std::unique_ptr<Tree>> trees(int count, CWnd& parent)
{
    std::vector<std::unique_ptr<Tree>> result;
    for (int i = 0; i < count; ++i)
        result.push_back(std::make_unique<Tree>(parent));
    return result;
}

/// For each label, in the order in which they come, the one inserted before that sorts next before it; -1 for
/// none.
std::vector<int> predecessors(const std::vector<std::wstring>& names)
{
    std::map<std::wstring, int> inserted;
    std::vector<int> result;
    for (int i = 0; i < static_cast<int>(names.size()); ++i) {
        const auto place = inserted.emplace(names[static_cast<std::size_t>(i)], i).first;
        result.push_back(place == inserted.begin() ? -1 : std::prev(place)->second);
    }
    return result;
}

/// What no sorted insertion can do without: one message for each item, the place known.
void insertAtKnownPlaces(const BareTree& tree, const std::vector<std::wstring>& names,
                         const std::vector<int>& places)
{
    std::vector<HTREEITEM> items;
    items.reserve(names.size());
    for (std::size_t i = 0; i < names.size(); ++i)
        items.push_back(
            tree.insert(names[i], places[i] < 0 ? TVI_FIRST : items[static_cast<std::size_t>(places[i])]));
}

void insertPositional(BenchTree& tree, const std::vector<std::wstring>& names)
{
    BenchPlace place(false);
    for (const std::wstring& name : names)
        tree.insert(new BenchNode(name), place, -1);
}

void insertSorted(BenchTree& tree, const std::vector<std::wstring>& names)
{
    tree.setSortedInsertion(MultiTreeCtrl::SortedInsertion::Halve);
    BenchPlace place(true);
    for (const std::wstring& name : names)
        tree.insert(new BenchNode(name), place, 0);
}

void insertBatch(BenchTree& tree, const std::vector<std::wstring>& names)
{
    BenchPlace place(true);
    std::vector<MultiTreeCtrl::Node*> nodes;
    for (const std::wstring& name : names)
        nodes.push_back(new BenchNode(name));
    tree.insertBatch(nodes, place, 0);
}

void insertNodes(BenchTree& tree, const std::vector<std::wstring>& names)
{
    for (const std::wstring& name : names)
        (new BenchNode(name))->insert(tree, TVI_ROOT, TVI_LAST);
}

template <class Tree, class Act>
void measure(Catch::Benchmark::Chronometer meter, Act act)
{
    BenchParent parent;
    const auto all = trees<Tree>(meter.runs(), parent);
    meter.measure([&](int run) {
        Tree& tree = *all[static_cast<std::size_t>(run)];
        ::SendMessageW(tree, WM_SETREDRAW, FALSE, 0);
        act(tree);
        ::SendMessageW(tree, WM_SETREDRAW, TRUE, 0);
        ::UpdateWindow(tree);
    });
}

} // namespace

TEST_CASE("inserting at the end")
{
    const int count = GENERATE(1000, 10000, 100000);
    const std::vector<std::wstring> names = labels(count);
    const std::string size = std::to_string(count);
    BENCHMARK_ADVANCED("TVM_INSERTITEM, " + size + " [baseline]")(Catch::Benchmark::Chronometer meter)
    {
        measure<BareTree>(meter, [&](BareTree& tree) {
            for (const std::wstring& name : names)
                tree.insert(name, TVI_LAST);
        });
    };
    BENCHMARK_ADVANCED("Node::insert, " + size + " [at most 1.3]")(Catch::Benchmark::Chronometer meter)
    {
        measure<BenchTree>(meter, [&](BenchTree& tree) { insertNodes(tree, names); });
    };
    BENCHMARK_ADVANCED("insert by position, " + size + " [at most 1.3]")(Catch::Benchmark::Chronometer meter)
    {
        measure<BenchTree>(meter, [&](BenchTree& tree) { insertPositional(tree, names); });
    };
}

TEST_CASE("inserting in random order under a sorted insertion point")
{
    const std::vector<std::wstring> few = shuffled(labels(10000));
    const std::vector<std::wstring> many = shuffled(labels(100000));
    const std::vector<int> fewPlaces = predecessors(few);
    const std::vector<int> manyPlaces = predecessors(many);
    BENCHMARK_ADVANCED("TVM_INSERTITEM at known places, 10000 [baseline]")
    (Catch::Benchmark::Chronometer meter)
    {
        measure<BareTree>(meter, [&](BareTree& tree) { insertAtKnownPlaces(tree, few, fewPlaces); });
    };
    BENCHMARK_ADVANCED("TVM_INSERTITEM at known places, 100000")(Catch::Benchmark::Chronometer meter)
    {
        measure<BareTree>(meter, [&](BareTree& tree) { insertAtKnownPlaces(tree, many, manyPlaces); });
    };
    BENCHMARK_ADVANCED("one by one, 10000 [baseline]")(Catch::Benchmark::Chronometer meter)
    {
        measure<BenchTree>(meter, [&](BenchTree& tree) { insertSorted(tree, few); });
    };
    BENCHMARK_ADVANCED("one by one, 100000 [at most 15]")(Catch::Benchmark::Chronometer meter)
    {
        measure<BenchTree>(meter, [&](BenchTree& tree) { insertSorted(tree, many); });
    };
    BENCHMARK_ADVANCED("as a batch, 10000 [baseline]")(Catch::Benchmark::Chronometer meter)
    {
        measure<BenchTree>(meter, [&](BenchTree& tree) { insertBatch(tree, few); });
    };
    BENCHMARK_ADVANCED("as a batch, 100000")(Catch::Benchmark::Chronometer meter)
    {
        measure<BenchTree>(meter, [&](BenchTree& tree) { insertBatch(tree, many); });
    };
}
