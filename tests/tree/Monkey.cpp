#include "Monkey.h"

#include <ovocor/OvoError.h>

#include <algorithm>

namespace
{

constexpr std::size_t kStoryLength = 60;

} // namespace

// The tree

class Monkey::Tree : public MultiTreeCtrl
{
public:
    explicit Tree(Monkey& monkey)
        : m_monkey(monkey)
    {
    }

    void reportError(const wchar_t*) override { m_monkey.callOut("reportError", MonkeyModel::kRoot); }
    bool isCommandDisabled(unsigned) override
    {
        m_monkey.callOut("isCommandDisabled", MonkeyModel::kRoot);
        return false;
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        return message == WM_CONTEXTMENU ? 0 : MultiTreeCtrl::WindowProc(message, wParam, lParam);
    }

private:
    Monkey& m_monkey;
};

Monkey::Monkey(unsigned seed)
    : m_random(seed)
    , m_halves(seed % 2 != 0)
    , m_parent(std::make_unique<ovotest::RecordingParent>(CSize(420, 380), L"Monkey"))
    , m_tree(std::make_unique<Tree>(*this))
{
    m_tree->Create(WS_CHILD | WS_VISIBLE | TVS_HASBUTTONS | TVS_LINESATROOT | TVS_EDITLABELS |
                       TVS_SHOWSELALWAYS,
                   CRect(10, 10, 400, 360), m_parent.get(), 7);
    m_parent->answer(static_cast<UINT>(TVN_SELCHANGEDW), [this](NMHDR*) -> LRESULT {
        callOut("TVN_SELCHANGED", MonkeyModel::kRoot);
        return 0;
    });
    m_gestures =
        m_tree->gestureEV().subscribe([this](const int&) { callOut("gesture", MonkeyModel::kRoot); });
    if (m_halves)
        m_tree->setSortedInsertion(MultiTreeCtrl::SortedInsertion::Halve);
    ::GetKeyboardState(m_keys);
}

Monkey::~Monkey()
{
    m_over = true;
    m_chance = 0;
    m_parent->DestroyWindow();
    m_tree.reset();
}

void Monkey::run(int steps)
{
    for (int i = 0; i < steps && m_failure.empty(); ++i) {
        ++m_step;
        step();
    }
}

void Monkey::finish()
{
    if (!m_failure.empty())
        return;
    m_over = true;
    m_chance = 0;
    m_tree->DestroyWindow();
    for (const auto& [id, node] : m_alive)
        fail("node " + std::to_string(id) + " outlives the window");
}

std::string Monkey::story() const
{
    std::string told;
    for (const std::string& line : m_story)
        told += line + "\n";
    return told;
}

void Monkey::tell(const std::string& what)
{
    m_story.push_back(std::to_string(m_step) + ": " +
                      std::string(static_cast<std::size_t>(m_depth) * 2, ' ') + what);
    if (m_story.size() > kStoryLength)
        m_story.pop_front();
}

void Monkey::fail(const std::string& what)
{
    tell("FAILURE " + what);
    if (m_failure.empty())
        m_failure = "step " + std::to_string(m_step) + ": " + what + "\n" + story();
}

// Nodes

void Monkey::onCreated(MonkeyNode& node)
{
    m_alive[node.id] = &node;
}

void Monkey::onDestroyed(MonkeyNode& node)
{
    m_alive.erase(node.id);
    m_inserting.erase(node.id);
    if (m_model.contains(node.id) && !m_over)
        fail("node " + node.name + std::to_string(node.id) + " is destroyed while it has an item");
}

MonkeyNode* Monkey::alive(int id)
{
    const auto found = m_alive.find(id);
    return found == m_alive.end() ? nullptr : found->second;
}

void Monkey::expectAlive(const char* operation, int id)
{
    if (alive(id))
        return;
    fail(std::string("a node is destroyed inside its own ") + operation);
    throw 1;
}

void Monkey::callOut(const char* operation, int id)
{
    takeInInserted();
    if (m_chance == 0 || m_left == 0 || m_depth > 2 || pick(m_chance) != 0)
        return;
    --m_left;
    ++m_misdeeds;
    m_dirty = true;
    tell(std::string("in ") + operation + (alive(id) ? " of " + names({id}) : ""));
    ++m_depth;
    struct Deeper
    {
        ~Deeper() { --depth; }
        int& depth;
    } const deeper{m_depth};
    commitMisdeed(id);
}

int Monkey::idOf(HTREEITEM item)
{
    const OVO::Handle<MultiTreeCtrl::Node> node = m_tree->node(item);
    return node ? static_cast<MonkeyNode&>(*node).id : MonkeyModel::kNone;
}

HTREEITEM Monkey::itemOf(int id)
{
    if (id == MonkeyModel::kRoot)
        return TVI_ROOT;
    MonkeyNode* const node = alive(id);
    return node ? static_cast<MultiTreeCtrl::Node*>(node)->hTreeItem() : nullptr;
}

bool Monkey::isOpen(int id)
{
    return id == MonkeyModel::kRoot || (m_tree->GetItemState(itemOf(id), TVIS_EXPANDED) & TVIS_EXPANDED);
}

std::vector<int> Monkey::displayed()
{
    return m_model.displayed([this](int id) { return isOpen(id); });
}

int Monkey::anyNode()
{
    const std::vector<int> all = m_model.all();
    return all.empty() ? MonkeyModel::kNone
                       : all[static_cast<std::size_t>(pick(static_cast<int>(all.size())))];
}

int Monkey::anyShown()
{
    const std::vector<int> all = displayed();
    return all.empty() ? MonkeyModel::kNone
                       : all[static_cast<std::size_t>(pick(static_cast<int>(all.size())))];
}

/// An open node, or the top level.
int Monkey::anyOpenPlace()
{
    const int id = pick(3) ? anyNode() : MonkeyModel::kRoot;
    return id != MonkeyModel::kNone && isOpen(id) ? id : MonkeyModel::kRoot;
}

std::string Monkey::anyName()
{
    return std::string(1, static_cast<char>('a' + pick(26)));
}

std::string Monkey::names(const std::vector<int>& ids)
{
    std::string text;
    for (const int id : ids) {
        MonkeyNode* const node = alive(id);
        text += (text.empty() ? "" : " ") + (node ? node->name : "?") + std::to_string(id);
    }
    return text;
}

// Misdeeds

void Monkey::commitMisdeed(int id)
{
    const bool own = m_model.contains(id) && pick(2) == 0;
    const int target = own ? id : anyNode();
    switch (pick(12)) {
    case 0:
    case 1:
        deleteNode(target);
        break;
    case 2:
        if (own)
            deleteNode(m_model.parentOf(id));
        else if (pick(6) == 0)
            deleteAll();
        break;
    case 3:
        insertPlain(anyOpenPlace());
        break;
    case 4:
        insertInPlace(anyOpenPlace());
        break;
    case 5:
        toggle(own && pick(2) ? m_model.parentOf(id) : target);
        break;
    case 6:
        moveNode(target);
        break;
    case 7:
        selectSomething();
        break;
    case 8:
        walkAndDelete();
        break;
    case 9:
        runMessages();
        break;
    case 10:
        updateSomething();
        break;
    default:
        raiseSomething(true);
    }
}

void Monkey::raiseSomething(bool everything)
{
    tell("raises an exception");
    switch (pick(everything ? 3 : 2)) {
    case 0:
        throw OvoError(L"a node's error");
    case 1:
        throw std::runtime_error("a node's error");
    default:
        throw 7;
    }
}

void Monkey::runMessages()
{
    tell("runs messages");
    constexpr UINT kKeys[] = {VK_DOWN, VK_UP, VK_RIGHT, VK_LEFT, VK_RETURN, VK_F5};
    m_tree->PostMessage(WM_KEYDOWN, kKeys[pick(6)], 1);
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        ::DispatchMessageW(&message);
}

// The model's side of changes

void Monkey::forget(int id)
{
    if (m_model.contains(id))
        m_model.remove(id);
}

Monkey::ChildrenGo::~ChildrenGo()
{
    if (m_monkey.m_model.contains(m_id))
        m_monkey.m_model.removeChildren(m_id);
}

void Monkey::expectInsertion(int id, int parent, int previous, bool sure)
{
    m_inserting[id] = {parent, previous, sure, m_misdeeds};
}

/// Nodes that have got an item since this was last called stand where they were expected, or, when misdeeds
/// came in between, where the tree shows them.
void Monkey::takeInInserted()
{
    while (!m_inserting.empty()) {
        const auto inserted = std::find_if(m_inserting.begin(), m_inserting.end(),
                                           [this](const auto& each) { return itemOf(each.first); });
        if (inserted == m_inserting.end())
            return;
        const auto [id, expected] = *inserted;
        m_inserting.erase(inserted);
        addToModel(id, expected.parent, expected.previous,
                   expected.sure && expected.misdeedsBefore == m_misdeeds);
    }
}

void Monkey::addToModel(int id, int parent, int expectedPrevious, bool sure)
{
    const HTREEITEM item = itemOf(id);
    const HTREEITEM above = m_tree->GetParentItem(item);
    if ((above ? idOf(above) : MonkeyModel::kRoot) != parent ||
        (parent != MonkeyModel::kRoot && !m_model.contains(parent))) {
        fail("node " + names({id}) + " is inserted under another parent");
        return;
    }
    int previous = MonkeyModel::kNone;
    for (HTREEITEM at = m_tree->GetPrevSiblingItem(item); at && previous == MonkeyModel::kNone;
         at = m_tree->GetPrevSiblingItem(at))
        previous = idOf(at);
    if (previous != MonkeyModel::kNone && !m_model.contains(previous))
        fail("an unknown node stands before " + names({id}));
    else if (sure && previous != expectedPrevious)
        fail("node " + names({id}) + " stands behind " + names({previous}) + " instead of " +
             names({expectedPrevious}));
    else
        m_model.insert(id, parent, previous);
}

void Monkey::takeOverSelection()
{
    m_model.selected.clear();
    for (const int id : m_model.all())
        if (m_tree->GetItemState(itemOf(id), TVIS_SELECTED) & TVIS_SELECTED)
            m_model.selected.insert(id);
    m_model.caret = idOf(m_tree->GetSelectedItem());
    m_model.anchor = pick(2) ? anyNode() : MonkeyModel::kNone;
    m_tree->selectItemAnchor(m_model.anchor == MonkeyModel::kNone ? nullptr : itemOf(m_model.anchor));
}

// Verifying

void Monkey::verify()
{
    takeInInserted();
    m_inserting.clear();
    if (m_failure.empty())
        verifyStructure();
    if (!m_failure.empty())
        return;
    if (m_dirty)
        takeOverSelection();
    verifySelection();
    if (m_step % 8 == 0 && m_failure.empty())
        verifyRows();
}

void Monkey::verifyStructure()
{
    std::vector<int> shown;
    const std::function<void(HTREEITEM, int)> walk = [&](HTREEITEM first, int parent) {
        for (HTREEITEM at = first; at; at = m_tree->GetNextSiblingItem(at)) {
            const int id = idOf(at);
            shown.push_back(id);
            if (!m_model.contains(id))
                fail("an item that should be gone: " + names({id}));
            else if (m_model.parentOf(id) != parent)
                fail("node " + names({id}) + " has another parent");
            else if (itemOf(id) != at)
                fail("node " + names({id}) + " knows another item");
            if (m_failure.empty())
                walk(m_tree->GetChildItem(at), id);
        }
    };
    walk(m_tree->GetRootItem(), MonkeyModel::kRoot);
    if (!m_failure.empty())
        return;
    if (shown != m_model.all())
        fail("items " + names(shown) + ", expected " + names(m_model.all()));
    for (const auto& [id, node] : m_alive)
        if (!m_model.contains(id))
            fail("node " + names({id}) + " is never destroyed");
    std::vector<int> walked;
    for (auto at = m_tree->beginAll(); at != m_tree->end(); ++at)
        walked.push_back(static_cast<MonkeyNode&>(*at).id);
    if (walked != shown)
        fail("the iterator gives " + names(walked) + " of " + names(shown));
}

void Monkey::verifySelection()
{
    std::vector<int> selected;
    std::vector<int> expected;
    for (const int id : m_model.all()) {
        if (m_tree->GetItemState(itemOf(id), TVIS_SELECTED) & TVIS_SELECTED)
            selected.push_back(id);
        if (m_model.selected.contains(id))
            expected.push_back(id);
    }
    if (selected != expected)
        fail("selected are " + names(selected) + ", expected " + names(expected));
    if (const int caret = idOf(m_tree->GetSelectedItem()); caret != m_model.caret)
        fail("the caret is " + names({caret}) + ", expected " + names({m_model.caret}));
    std::vector<int> walked;
    for (auto at = m_tree->beginSelected(); at != m_tree->end(); ++at)
        walked.push_back(static_cast<MonkeyNode&>(*at).id);
    if (walked != selected)
        fail("the iterator gives " + names(walked) + " of the selected " + names(selected));
}

/// Every displayed item has a row of its own, in the order of the tree.
void Monkey::verifyRows()
{
    const int height = m_tree->GetItemHeight();
    int expected = 0;
    bool first = true;
    for (const int id : displayed()) {
        CRect rect;
        if (!m_tree->GetItemRect(itemOf(id), &rect, FALSE)) {
            fail("node " + names({id}) + " has no row");
            return;
        }
        if (!first && rect.top != expected)
            fail("node " + names({id}) + " has the row at " + std::to_string(rect.top) + ", expected " +
                 std::to_string(expected));
        first = false;
        expected = rect.top + height;
    }
}
