#include "Monkey.h"

#include <ovocor/OvoError.h>
#include <ovoui/frame/Platform.h>

#include <algorithm>

namespace
{

constexpr std::size_t kStoryLength = 60;

} // namespace

Monkey::Monkey(unsigned seed, int every)
    : m_random(seed)
    , m_every(every)
    , m_halves(seed % 2 != 0)
    , m_parent(std::make_unique<ovo::testkit::RecordingParent>(CSize(420, 380), L"Monkey"))
    , m_tree(std::make_unique<MonkeyTree>(*this))
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
    if (ovoui::platform().losesRows) // Wine
        m_still = std::make_unique<StillWindows>();
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
    const MultiTreeCtrl::Node& base = node;
    if (m_model.contains(node.id) && m_closed.contains(m_model.parentOf(node.id)) && !base.hTreeItem())
        m_model.remove(node.id);
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

LRESULT Monkey::ask(UINT message, WPARAM wParam, LPARAM lParam) const
{
    return m_tree->ask(message, wParam, lParam);
}

int Monkey::idOf(HTREEITEM item)
{
    TVITEM data{};
    data.mask = TVIF_HANDLE | TVIF_PARAM;
    data.hItem = item;
    if (!item || !ask(TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&data)) || !data.lParam)
        return MonkeyModel::kNone;
    return static_cast<MonkeyNode*>(reinterpret_cast<MultiTreeCtrl::Node*>(data.lParam))->id;
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
    return id == MonkeyModel::kRoot ||
           (ask(TVM_GETITEMSTATE, reinterpret_cast<WPARAM>(itemOf(id)), TVIS_EXPANDED) & TVIS_EXPANDED);
}

bool Monkey::isSelected(int id)
{
    return ask(TVM_GETITEMSTATE, reinterpret_cast<WPARAM>(itemOf(id)), TVIS_SELECTED) & TVIS_SELECTED;
}

int Monkey::caretNow()
{
    return idOf(reinterpret_cast<HTREEITEM>(ask(TVM_GETNEXTITEM, TVGN_CARET)));
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
    if (m_monkey.m_model.contains(m_id) && m_monkey.itemOf(m_id) == m_item)
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
    forget(id); // of an item that has gone since
    int previous = MonkeyModel::kNone;
    // Items that are about to go may still stand there.
    for (HTREEITEM at = m_tree->GetPrevSiblingItem(item); at && previous == MonkeyModel::kNone;
         at = m_tree->GetPrevSiblingItem(at))
        previous = m_model.contains(idOf(at)) ? idOf(at) : MonkeyModel::kNone;
    if (sure && previous != expectedPrevious)
        fail("node " + names({id}) + " stands behind " + names({previous}) + " instead of " +
             names({expectedPrevious}) + "; the model has " + names(m_model.childrenOf(parent)) +
             ", the tree " + names(shownChildren(item)));
    else
        m_model.insert(id, parent, previous);
}

/// The item and its siblings, in order, those that are about to go included.
std::vector<int> Monkey::shownChildren(HTREEITEM item)
{
    while (const HTREEITEM previous = m_tree->GetPrevSiblingItem(item))
        item = previous;
    std::vector<int> shown;
    for (; item; item = m_tree->GetNextSiblingItem(item))
        shown.push_back(idOf(item));
    return shown;
}

void Monkey::takeOverSelection()
{
    m_model.selected.clear();
    for (const int id : m_model.all())
        if (isSelected(id))
            m_model.selected.insert(id);
    m_model.caret = caretNow();
    m_model.anchor = pick(2) ? anyNode() : MonkeyModel::kNone;
    m_tree->selectItemAnchor(m_model.anchor == MonkeyModel::kNone ? nullptr : itemOf(m_model.anchor));
}
