#include "MonkeyModel.h"

#include <algorithm>

int MonkeyModel::depthOf(int id) const
{
    int depth = 0;
    for (; id != kRoot; id = parentOf(id))
        ++depth;
    return depth;
}

bool MonkeyModel::isAtOrBelow(int id, int ancestor) const
{
    while (id != kRoot && id != ancestor)
        id = parentOf(id);
    return id == ancestor;
}

std::vector<int> MonkeyModel::walk(const std::function<bool(int)>& goesInto) const
{
    std::vector<int> found;
    const std::function<void(int)> into = [&](int parent) {
        for (const int child : childrenOf(parent)) {
            found.push_back(child);
            if (goesInto(child))
                into(child);
        }
    };
    into(kRoot);
    return found;
}

int MonkeyModel::lastDisplayedOnTheWayTo(int id, const std::function<bool(int)>& isOpen) const
{
    int displayed = id;
    if (id != kNone)
        for (int above = parentOf(id); above != kRoot; above = parentOf(above))
            if (!isOpen(above))
                displayed = above;
    return displayed;
}

std::vector<int> MonkeyModel::below(int id) const
{
    std::vector<int> found;
    const std::function<void(int)> into = [&](int parent) {
        for (const int child : childrenOf(parent)) {
            found.push_back(child);
            into(child);
        }
    };
    into(id);
    return found;
}

void MonkeyModel::insert(int id, int parent, int previous)
{
    std::vector<int>& siblings = m_children.at(parent);
    const auto place =
        previous == kNone ? siblings.begin() : std::find(siblings.begin(), siblings.end(), previous) + 1;
    siblings.insert(place, id);
    m_parents[id] = parent;
    m_children[id];
}

void MonkeyModel::remove(int id)
{
    removeChildren(id);
    std::erase(m_children.at(parentOf(id)), id);
    m_parents.erase(id);
    m_children.erase(id);
    selected.erase(id);
    for (int* each : {&caret, &anchor})
        if (*each == id)
            *each = kNone;
}

void MonkeyModel::removeChildren(int id)
{
    for (const int child : std::vector<int>(childrenOf(id)))
        remove(child);
}

void MonkeyModel::sortChildren(int id)
{
    std::sort(m_children.at(id).begin(), m_children.at(id).end());
}

void MonkeyModel::selectAlone(int id)
{
    selected.clear();
    if (id != kNone)
        selected.insert(id);
    caret = id;
}

void MonkeyModel::selectRange(const std::vector<int>& displayed, int a, int b)
{
    bool inside = false;
    for (const int id : displayed) {
        if (!inside && (id == a || id == b)) {
            inside = true;
            (id == a ? a : b) = kNone;
        }
        if (!inside)
            continue;
        selected.insert(id);
        if (id == a || id == b)
            return;
    }
}
