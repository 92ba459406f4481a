/// What the monkey expects of a tree: which nodes stand where, and which are selected.
#pragma once

#include <functional>
#include <map>
#include <set>
#include <vector>

/// Nodes go by numbers, since the nodes themselves come and go; 0 is the root.
class MonkeyModel
{
public:
    static constexpr int kRoot = 0;
    static constexpr int kNone = -1;

    MonkeyModel() { m_children[kRoot]; }

    bool contains(int id) const { return m_parents.contains(id); }
    std::size_t size() const { return m_parents.size(); }
    int parentOf(int id) const { return m_parents.at(id); }
    const std::vector<int>& childrenOf(int id) const { return m_children.at(id); }
    int depthOf(int id) const;
    bool isAtOrBelow(int id, int ancestor) const;

    /// All nodes, parents before their children.
    std::vector<int> all() const
    {
        return walk([](int) { return true; });
    }
    /// Those that one scrolls through; `isOpen` tells of a node whether its children are shown.
    std::vector<int> displayed(const std::function<bool(int)>& isOpen) const { return walk(isOpen); }
    /// The node itself, or the outermost closed one that it is in; kNone for kNone.
    int lastDisplayedOnTheWayTo(int id, const std::function<bool(int)>& isOpen) const;
    std::vector<int> below(int id) const;

    /// Inserts behind `previous`; kNone for the first place.
    void insert(int id, int parent, int previous);
    /// Removes a node and all below it.
    void remove(int id);
    void removeChildren(int id);
    void sortChildren(int id);

    std::set<int> selected;
    int caret = kNone;
    int anchor = kNone;

    void selectAlone(int id);
    /// The displayed nodes from one to the other; from the one that there is to the last.
    void selectRange(const std::vector<int>& displayed, int a, int b);

private:
    std::vector<int> walk(const std::function<bool(int)>& goesInto) const;

    std::map<int, int> m_parents;
    std::map<int, std::vector<int>> m_children;
};
