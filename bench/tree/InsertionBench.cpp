// Inserting: at the end, in random order under a sorted insertion point, as a batch.
#include "BenchTrees.h"

#include <catch2/catch.hpp>

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

void insertPositional(BenchTree& tree, const std::vector<std::wstring>& names)
{
    BenchPlace place(false);
    for (const std::wstring& name : names)
        tree.insert(new BenchNode(name), place, -1);
}

void insertSorted(BenchTree& tree, const std::vector<std::wstring>& names)
{
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
    meter.measure([&](int run) { act(*all[static_cast<std::size_t>(run)]); });
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
                tree.insertLast(name);
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
