#include <ovoui/tree/Inserter.h>

#include <ovoui/tree/AppendPosition.h>

#include <algorithm>
#include <limits>

using ovoui::tree::behindLast;
using ovoui::tree::Child;
using ovoui::tree::ChildOrder;
using ovoui::tree::Children;
using ovoui::tree::ChildSearch;

namespace
{

std::size_t asIndex(int position)
{
    return position < 0 ? std::numeric_limits<std::size_t>::max() : static_cast<std::size_t>(position);
}

/// Tells the gate that the place of the insertion under way is known to whoever makes it.
class InsertionInPlace
{
public:
    explicit InsertionInPlace(bool& flag)
        : m_flag(flag)
    {
        m_flag = true;
    }
    ~InsertionInPlace() { m_flag = false; }
    InsertionInPlace(const InsertionInPlace&) = delete;
    InsertionInPlace& operator=(const InsertionInPlace&) = delete;

private:
    bool& m_flag;
};

} // namespace

MultiTreeCtrl::Inserter::Inserter(MultiTreeCtrl& tree, InsertionPoint& where)
    : m_tree(tree)
    , m_where(where)
    , m_parent(where.hTreeItem())
    , m_state(tree.m_state)
{
}

HTREEITEM MultiTreeCtrl::Inserter::firstChild() const
{
    return m_parent == TVI_ROOT ? m_tree.next(TVGN_ROOT) : m_tree.next(TVGN_CHILD, m_parent);
}

/// Sees to it that the children are remembered; those that are about to go are left out.
void MultiTreeCtrl::Inserter::rememberChildren()
{
    if (m_state->children.find(m_parent))
        return;
    const std::vector<HTREEITEM>& doomed = m_state->postponed;
    Children children;
    for (HTREEITEM child = firstChild(); child; child = m_tree.next(TVGN_NEXT, child))
        if (std::find(doomed.begin(), doomed.end(), child) == doomed.end())
            children.push_back({child, m_tree.node(child).get()});
    m_state->children.remember(m_parent, std::move(children));
}

/// Inserts a node at a place among the remembered children.
HTREEITEM MultiTreeCtrl::Inserter::insertInOrder(Node& node, Place place)
{
    const std::shared_ptr<ChildOrder> order = m_state->children.find(m_parent);
    const std::size_t count = order->children.size();
    const Child* before = order->children.before(place);
    HTREEITEM after = before ? before->item : TVI_FIRST;
    if (before && !order->children.after(place))
        after = behindLast(after);
    HTREEITEM item = nullptr;
    {
        const InsertionInPlace inPlace(m_state->insertsInPlace);
        item = node.insert(m_tree, m_parent, after);
    }
    // The node was asked for its text meanwhile: if it changed the tree, what is remembered is of no use.
    if (item && m_state->children.find(m_parent) == order && order->children.size() == count)
        order->children.insert(place, {item, &node});
    else
        m_state->children.forget(m_parent);
    return item;
}

HTREEITEM MultiTreeCtrl::Inserter::insertAt(Node& node, int position)
{
    rememberChildren();
    return insertInOrder(node, m_state->children.find(m_parent)->children.placeAt(asIndex(position)));
}

void MultiTreeCtrl::Inserter::insertBlock(const std::vector<Node*>& nodes, int position,
                                          std::vector<HTREEITEM>& items)
{
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        if (!nodes[i])
            continue;
        items[i] = insertAt(*nodes[i], position);
        if (items[i] && position >= 0)
            ++position;
    }
}

// Sorted

HTREEITEM MultiTreeCtrl::Inserter::insertSorted(Node& node, bool& duplicate)
{
    rememberChildren();
    ChildSearch search(m_tree, m_where, m_state->children);
    const Place place = search.find(node);
    if (!search.reliable())
        return insertWalking(node, duplicate);
    duplicate = search.equal() != nullptr;
    return duplicate ? search.equal() : insertInOrder(node, place);
}

/// For an insertion point whose comparison changes the tree: from item to item, each looked up anew.
HTREEITEM MultiTreeCtrl::Inserter::insertWalking(Node& node, bool& duplicate)
{
    HTREEITEM after = TVI_FIRST;
    State::Tracker child(m_state, firstChild());
    while (child) {
        const OVO::Handle<Node> other = m_tree.node(child.item());
        const int result = other ? m_where.compareChildren(m_tree, *other, node) : -1;
        duplicate = result == 0 && child;
        if (duplicate)
            return child.item();
        if (result >= 0)
            break;
        after = child ? child.item() : TVI_LAST;
        child.moveTo(child ? m_tree.next(TVGN_NEXT, child.item()) : nullptr);
    }
    return node.insert(m_tree, m_parent, after);
}

/// Where one node of a batch goes.
struct MultiTreeCtrl::Inserter::Step
{
    std::size_t index = 0;         ///< of the node in the batch
    HTREEITEM before = nullptr;    ///< the existing child in front of it; null for none
    HTREEITEM duplicate = nullptr; ///< an existing child that sorts the same
    bool repeats = false;          ///< sorts the same as the step before
    bool atEnd = false;            ///< behind all existing children
};

/// In which order and where the nodes go, found out before any of them is inserted. False when that cannot be
/// said beforehand: the children are not in order, or comparing them changes the tree.
bool MultiTreeCtrl::Inserter::plan(const std::vector<Node*>& nodes, std::vector<Step>& steps)
{
    rememberChildren();
    ChildSearch search(m_tree, m_where, m_state->children);
    if (!search.inOrder() || !search.reliable())
        return false;
    for (std::size_t i = 0; i < nodes.size(); ++i)
        if (nodes[i])
            steps.push_back({i});
    const auto compare = [&](const Step& a, const Step& b) {
        return m_where.compareChildren(m_tree, *nodes[a.index], *nodes[b.index]);
    };
    std::stable_sort(steps.begin(), steps.end(),
                     [&](const Step& a, const Step& b) { return compare(a, b) < 0; });
    const Step* former = nullptr;
    for (Step& step : steps) {
        step.repeats = former && compare(*former, step) == 0;
        former = &step;
        const Place place = search.find(*nodes[step.index]);
        if (!search.reliable())
            return false;
        const Child* before = search.children().before(place);
        step.before = before ? before->item : nullptr;
        step.duplicate = search.equal();
        step.atEnd = !search.children().after(place);
    }
    return m_state->children.find(m_parent) != nullptr;
}

void MultiTreeCtrl::Inserter::carryOut(const std::vector<Node*>& nodes, const std::vector<Step>& steps,
                                       std::vector<HTREEITEM>& items)
{
    const Step* former = nullptr;
    HTREEITEM formerItem = nullptr;
    for (const Step& step : steps) {
        HTREEITEM& item = items[step.index];
        if (step.duplicate || step.repeats) {
            item = step.duplicate ? step.duplicate : formerItem;
        } else {
            const bool beside = formerItem && former->before == step.before && !former->duplicate;
            const HTREEITEM after = step.atEnd    ? TVI_LAST
                                    : beside      ? formerItem
                                    : step.before ? step.before
                                                  : TVI_FIRST;
            item = nodes[step.index]->insert(m_tree, m_parent, after);
        }
        former = &step;
        formerItem = item;
    }
}

void MultiTreeCtrl::Inserter::insertSorted(const std::vector<Node*>& nodes, std::vector<HTREEITEM>& items)
{
    std::vector<Step> steps;
    if (plan(nodes, steps)) {
        carryOut(nodes, steps, items);
        return;
    }
    bool duplicate = false;
    for (std::size_t i = 0; i < nodes.size(); ++i)
        if (nodes[i])
            items[i] = insertSorted(*nodes[i], duplicate);
}
