#include <ovoui/tree/ItemTracker.h>
#include <ovoui/tree/Selection.h>

/// The item that an iterator stands at, and its node. When the item is deleted, it is the item to go on with.
class MultiTreeCtrl::iterator::Place
{
public:
    Place(std::shared_ptr<State> state, HTREEITEM item)
        : m_state(std::move(state))
        , m_tracker(m_state, item, Tracker::WhenDeleted::NextInTree)
        , m_node(m_state->view.node(item))
    {
    }
    Place(const Place& other)
        : m_state(other.m_state)
        , m_tracker(m_state, other.m_tracker.item(), Tracker::WhenDeleted::NextInTree)
        , m_node(other.m_node)
        , m_lost(other.lost())
    {
    }

    HTREEITEM item() const { return m_tracker.item(); }
    const OVO::Handle<Node>& node() const { return m_node; }
    /// Whether the item stood at was deleted: the next one is item() already.
    bool lost() const { return m_lost || m_tracker.moved(); }
    bool usable() const { return m_state->usable(); }

    void moveTo(HTREEITEM item)
    {
        m_tracker.moveTo(item);
        m_node = m_state->view.node(item);
        m_lost = false;
    }

private:
    const std::shared_ptr<State> m_state;
    Tracker m_tracker;
    OVO::Handle<Node> m_node;
    bool m_lost = false;
};

MultiTreeCtrl::iterator::iterator() = default;

MultiTreeCtrl::iterator::iterator(const MultiTreeCtrl& tree, HTREEITEM item, bool selectedOnly)
    : m_tree(&tree)
    , m_place(item ? std::make_unique<Place>(tree.m_state, item) : nullptr)
    , m_selectedOnly(selectedOnly)
{
    if (m_place && !m_place->node())
        ++*this;
}

MultiTreeCtrl::iterator::iterator(const iterator& other)
    : m_tree(other.m_tree)
    , m_place(other.m_place ? std::make_unique<Place>(*other.m_place) : nullptr)
    , m_selectedOnly(other.m_selectedOnly)
{
}

MultiTreeCtrl::iterator::iterator(iterator&& other) noexcept = default;

MultiTreeCtrl::iterator::~iterator() = default;

MultiTreeCtrl::iterator& MultiTreeCtrl::iterator::operator=(iterator other) noexcept
{
    m_tree = other.m_tree;
    m_place = std::move(other.m_place);
    m_selectedOnly = other.m_selectedOnly;
    return *this;
}

MultiTreeCtrl::Node& MultiTreeCtrl::iterator::operator*() const
{
    return *m_place->node();
}

OVO::Handle<MultiTreeCtrl::Node> MultiTreeCtrl::iterator::operator->() const
{
    return *this;
}

MultiTreeCtrl::iterator::operator OVO::Handle<MultiTreeCtrl::Node>() const
{
    return m_place ? m_place->node() : nullptr;
}

MultiTreeCtrl::iterator& MultiTreeCtrl::iterator::operator++()
{
    while (m_place) {
        const HTREEITEM following = m_place->usable() ? behindPlace() : nullptr;
        if (following)
            m_place->moveTo(following);
        else
            m_place.reset();
        if (m_place && m_place->node())
            break;
    }
    return *this;
}

/// The item to go to from here.
HTREEITEM MultiTreeCtrl::iterator::behindPlace() const
{
    const State& state = *m_tree->m_state;
    const HTREEITEM at = m_place->item();
    if (m_place->lost())
        return m_selectedOnly ? state.selection->from(at) : at;
    return m_selectedOnly ? state.selection->after(at) : state.view.nextItem(at, true);
}

MultiTreeCtrl::iterator MultiTreeCtrl::iterator::operator++(int)
{
    iterator before = *this;
    ++*this;
    return before;
}

bool MultiTreeCtrl::iterator::eq(const iterator& other) const
{
    if (m_tree != other.m_tree || !m_place || !other.m_place)
        return m_tree == other.m_tree && !m_place == !other.m_place;
    return m_place->item() == other.m_place->item() && m_place->lost() == other.m_place->lost();
}

MultiTreeCtrl::iterator& MultiTreeCtrl::iterator::setSelect(bool selected)
{
    m_selectedOnly = selected;
    return *this;
}

// The control's operations

MultiTreeCtrl::iterator MultiTreeCtrl::begin(bool selectedOnly) const
{
    return {*this, selectedOnly ? m_state->selection->first() : m_state->view.first(), selectedOnly};
}

MultiTreeCtrl::iterator MultiTreeCtrl::beginAll() const
{
    return begin(false);
}

MultiTreeCtrl::iterator MultiTreeCtrl::beginSelected() const
{
    return begin(true);
}

MultiTreeCtrl::iterator MultiTreeCtrl::end() const
{
    return {*this, nullptr, false};
}
