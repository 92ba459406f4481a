// What the monkey does with the tree, as its host or as a misdeed of a node.
#include "Monkey.h"

#include <algorithm>

namespace
{

constexpr std::size_t kMostNodes = 60;
constexpr int kDeepest = 3;

} // namespace

// Inserting

HTREEITEM Monkey::insertAt(MonkeyNode& node, int parent, HTREEITEM after)
{
    const HTREEITEM item = node.insert(*m_tree, itemOf(parent), after);
    takeInInserted();
    return item;
}

void Monkey::insertPlain(int parent)
{
    const std::vector<int> siblings = m_model.childrenOf(parent);
    int previous = MonkeyModel::kNone;
    HTREEITEM after = TVI_FIRST;
    if (!siblings.empty() && pick(3)) {
        previous = siblings[static_cast<std::size_t>(pick(static_cast<int>(siblings.size())))];
        after = itemOf(previous);
    }
    if (!siblings.empty() && pick(3) == 0) {
        previous = siblings.back();
        after = TVI_LAST;
    }
    const bool deep = m_model.depthOf(parent) >= kDeepest;
    const OVO::Handle<MonkeyNode> node(new MonkeyNode(*this, m_nextId++, anyName(), !deep));
    tell("inserts " + names({node->id}) + " in " + names({parent}));
    const int misdeeds = m_misdeeds;
    expectInsertion(node->id, parent, previous, true);
    if (!insertAt(*node, parent, after) && misdeeds == m_misdeeds)
        fail("the node was not inserted");
}

void Monkey::growChildren(int id)
{
    for (int i = m_model.size() < kMostNodes ? pick(4) : 0; i > 0 && m_model.contains(id); --i) {
        const bool deep = m_model.depthOf(id) >= kDeepest;
        const OVO::Handle<MonkeyNode> node(new MonkeyNode(*this, m_nextId++, anyName(), !deep));
        const std::vector<int>& siblings = m_model.childrenOf(id);
        expectInsertion(node->id, id, siblings.empty() ? MonkeyModel::kNone : siblings.back(), true);
        insertAt(*node, id, TVI_LAST);
    }
}

void Monkey::insertInPlace(int parent)
{
    const bool sorted = pick(2) != 0;
    MonkeyNode* const place = alive(parent);
    if (place)
        place->sortsChildren = sorted;
    MonkeyRoot root(*this, sorted);
    MultiTreeCtrl::InsertionPoint& where = place ? static_cast<MultiTreeCtrl::InsertionPoint&>(*place) : root;
    const int position = pick(6) - 1;
    const std::string name = anyName();
    // By the walk: behind all children that sort before the node, or behind so many.
    int previous = MonkeyModel::kNone;
    int duplicate = MonkeyModel::kNone;
    int passed = 0;
    std::string order;
    for (const int sibling : m_model.childrenOf(parent))
        order += alive(sibling)->name;
    for (const int sibling : m_model.childrenOf(parent)) {
        if (sorted ? alive(sibling)->name >= name : passed == position) {
            duplicate = sorted && alive(sibling)->name == name ? sibling : MonkeyModel::kNone;
            break;
        }
        previous = sibling;
        ++passed;
    }
    // Halving finds the place among children that are in order; that is what the host promises.
    // While an editor ends before a deletion, the item that goes still counts.
    const bool sure =
        (!m_halves || !sorted || std::is_sorted(order.begin(), order.end())) && m_deletionsWithEditor == 0;
    const bool refused = place && !(place->state & TVIS_EXPANDED);
    const bool deep = m_model.depthOf(parent) >= kDeepest;

    auto* const node = new MonkeyNode(*this, m_nextId++, name, !deep);
    const int id = node->id;
    const OVO::Handle<MonkeyNode> held(pick(2) ? node : nullptr);
    tell("inserts " + names({id}) + (sorted ? " sorted in " : " in ") + names({parent}));
    const int misdeeds = m_misdeeds;
    expectInsertion(id, parent, previous, sure);
    HTREEITEM item = nullptr;
    bool first = true;
    const auto dropUnused = [&] {
        if (alive(id) && !itemOf(id) && !held)
            OVO::Handle<MonkeyNode>(alive(id)).reset(); // the tree has given it back
    };
    try {
        item = pick(4) ? m_tree->insert(node, where, position)
                       : m_tree->insertAndSelect(node, first, where, position);
    } catch (...) {
        takeInInserted();
        dropUnused();
        throw;
    }
    takeInInserted();
    dropUnused();
    if (!first) {
        m_model.selectAlone(item ? idOf(item) : MonkeyModel::kNone);
        m_model.anchor = m_model.caret;
    }
    if (misdeeds != m_misdeeds)
        return;
    if (refused ? item != nullptr : !item)
        fail(refused ? "a closed place took the node" : "the node was not inserted");
    else if (sure && duplicate != MonkeyModel::kNone && !refused && item != itemOf(duplicate))
        fail("the duplicate was not found");
}

void Monkey::insertMany()
{
    MonkeyRoot root(*this, pick(3) != 0);
    std::vector<MultiTreeCtrl::Node*> nodes;
    std::vector<OVO::Handle<MonkeyNode>> held;
    for (int i = pick(5); i >= 0; --i) {
        held.emplace_back(new MonkeyNode(*this, m_nextId++, anyName(), true));
        nodes.push_back(held.back().get());
        expectInsertion(held.back()->id, MonkeyModel::kRoot, MonkeyModel::kNone, false);
    }
    tell("inserts a batch");
    m_tree->insertBatch(nodes, root, pick(4));
    takeInInserted();
}

// Deleting and moving

void Monkey::deleteNode(int id)
{
    const HTREEITEM item = m_model.contains(id) ? itemOf(id) : nullptr;
    if (!item)
        return;
    tell("deletes " + names({id}));
    std::vector<int> doomed = m_model.below(id);
    doomed.push_back(id);
    m_model.remove(id);
    const int misdeeds = m_misdeeds;
    struct WithEditor
    {
        ~WithEditor() { deletions -= open; }
        int& deletions;
        const int open;
    } const withEditor{m_deletionsWithEditor, ask(TVM_GETEDITCONTROL) != 0};
    m_deletionsWithEditor += withEditor.open;
    m_tree->DeleteItem(item);
    for (const int each : doomed)
        if (itemOf(each) && misdeeds == m_misdeeds)
            fail("the deleted node " + names({each}) + " still has an item");
}

void Monkey::deleteAll()
{
    // What nodes insert while an open editor is closed would go with the others.
    if (ask(TVM_GETEDITCONTROL))
        m_tree->SendMessage(TVM_ENDEDITLABELNOW, pick(2) != 0);
    tell("deletes all");
    m_model.removeChildren(MonkeyModel::kRoot);
    m_tree->DeleteAllItems();
}

void Monkey::moveNode(int id)
{
    if (!m_model.contains(id))
        return;
    const OVO::Handle<MonkeyNode> node(alive(id));
    deleteNode(id);
    if (itemOf(id) || m_inserting.contains(id))
        return;
    const int parent = anyOpenPlace();
    tell("inserts " + names({id}) + " anew in " + names({parent}));
    expectInsertion(id, parent, MonkeyModel::kNone, true);
    insertAt(*node, parent, TVI_FIRST);
}

// Opening, selecting, walking

void Monkey::toggle(int id)
{
    const HTREEITEM item = id == MonkeyModel::kRoot || !m_model.contains(id) ? nullptr : itemOf(id);
    if (!item)
        return;
    tell((isOpen(id) ? "closes " : "opens ") + names({id}));
    m_tree->Expand(item, isOpen(id) ? TVE_COLLAPSE : TVE_EXPAND);
}

void Monkey::selectSomething()
{
    const int a = anyShown();
    const int b = anyShown();
    if (a == MonkeyModel::kNone)
        return;
    const std::vector<int> rows = displayed();
    switch (pick(4)) {
    case 0:
        tell("selects the range " + names({a, b}));
        m_model.selectRange(rows, a, b);
        m_tree->selectRange(itemOf(a), itemOf(b));
        return;
    case 1: {
        tell("clears the selection from " + names({a}) + " on");
        const std::vector<int>& siblings = m_model.childrenOf(m_model.parentOf(a));
        for (auto at = std::find(siblings.begin(), siblings.end(), a); at != siblings.end(); ++at) {
            m_model.selected.erase(*at);
            for (const int below : m_model.below(*at))
                m_model.selected.erase(below);
        }
        m_tree->clearselection(itemOf(a));
        return;
    }
    default:
        tell("selects " + names({a}));
        m_model.selectAlone(a);
        m_tree->SelectItem(itemOf(a));
    }
}

/// Walks over the nodes and deletes some on the way.
void Monkey::walkAndDelete()
{
    tell("walks");
    const bool selectedOnly = pick(2) != 0;
    for (auto at = m_tree->begin(selectedOnly); at != m_tree->end(); ++at) {
        if (pick(12))
            continue;
        const int id = static_cast<MonkeyNode&>(*at).id;
        deleteNode(pick(2) ? id : anyNode());
    }
}

void Monkey::updateSomething()
{
    const int id = anyNode();
    if (id == MonkeyModel::kNone)
        return;
    tell("updates " + names({id}));
    if (pick(2))
        m_tree->updateUI(*alive(id));
    else
        alive(id)->resetItemText(*m_tree);
}

void Monkey::openOrClose(UINT way)
{
    const int id = anyNode();
    if (id == MonkeyModel::kNone)
        return;
    tell("expands " + names({id}) + " with " + std::to_string(way));
    if (way & TVE_COLLAPSERESET)
        m_model.removeChildren(id);
    m_tree->Expand(itemOf(id), way);
}

int CALLBACK compareNumbers(LPARAM a, LPARAM b, LPARAM)
{
    return reinterpret_cast<MonkeyNode*>(a)->id - reinterpret_cast<MonkeyNode*>(b)->id;
}

void Monkey::sortChildren()
{
    const int id = anyOpenPlace();
    tell("sorts in " + names({id}));
    m_model.sortChildren(id);
    TVSORTCB sort{itemOf(id), &compareNumbers, 0};
    m_tree->SortChildrenCB(&sort);
}

void Monkey::goByPath()
{
    tell("selects by a path");
    const std::wstring path = m_tree->selectedPath();
    m_tree->selectPath(path);
    m_dirty = true; // several nodes may have the same text
}
