// What the monkey finds, beside what its model says.
#include "Monkey.h"

#include <cstring>

void Monkey::verify()
{
    takeInInserted();
    m_inserting.clear();
    if (!m_failure.empty())
        return;
    if (!m_dirty && m_step % m_every != 0) {
        verifyAtAGlance();
        return;
    }
    verifyStructure();
    if (!m_failure.empty())
        return;
    if (m_dirty)
        takeOverSelection();
    verifySelection();
    if (m_failure.empty())
        verifyRows();
}

/// By the control's own walk over the selected items.
void Monkey::verifyAtAGlance()
{
    if (const auto items = static_cast<std::size_t>(ask(TVM_GETCOUNT)); items != m_model.size())
        fail(std::to_string(items) + " items, expected " + std::to_string(m_model.size()));
    if (const int caret = caretNow(); caret != m_model.caret)
        fail("the caret is " + names({caret}) + ", expected " + names({m_model.caret}));
    std::set<int> selected;
    for (auto at = m_tree->beginSelected(); at != m_tree->end(); ++at)
        selected.insert(static_cast<MonkeyNode&>(*at).id);
    if (selected != m_model.selected)
        fail("the iterator gives " + names({selected.begin(), selected.end()}) + ", expected selected " +
             names({m_model.selected.begin(), m_model.selected.end()}));
}

void Monkey::verifyStructure()
{
    const auto next = [this](UINT relation, HTREEITEM item) {
        return reinterpret_cast<HTREEITEM>(ask(TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(item)));
    };
    std::vector<int> shown;
    const std::function<void(HTREEITEM, int)> walk = [&](HTREEITEM first, int parent) {
        for (HTREEITEM at = first; at; at = next(TVGN_NEXT, at)) {
            const int id = idOf(at);
            shown.push_back(id);
            if (!m_model.contains(id))
                fail("an item that should be gone: " + names({id}));
            else if (m_model.parentOf(id) != parent)
                fail("node " + names({id}) + " has another parent");
            else if (itemOf(id) != at)
                fail("node " + names({id}) + " knows another item");
            if (m_failure.empty())
                walk(next(TVGN_CHILD, at), id);
        }
    };
    walk(next(TVGN_ROOT, nullptr), MonkeyModel::kRoot);
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
        if (isSelected(id))
            selected.push_back(id);
        if (m_model.selected.contains(id))
            expected.push_back(id);
    }
    if (selected != expected)
        fail("selected are " + names(selected) + ", expected " + names(expected));
    if (const int caret = caretNow(); caret != m_model.caret)
        fail("the caret is " + names({caret}) + ", expected " + names({m_model.caret}));
    std::vector<int> walked;
    for (auto at = m_tree->beginSelected(); at != m_tree->end(); ++at)
        walked.push_back(static_cast<MonkeyNode&>(*at).id);
    if (walked != selected)
        fail("the iterator gives " + names(walked) + " of the selected " + names(selected));
}

/// Every displayed item has a row of its own, in the order of the tree, and the first one seen is one of
/// them.
void Monkey::verifyRows()
{
    const auto first = idOf(reinterpret_cast<HTREEITEM>(ask(TVM_GETNEXTITEM, TVGN_FIRSTVISIBLE)));
    bool seen = m_model.size() == 0;
    std::string found;
    const auto height = static_cast<int>(ask(TVM_GETITEMHEIGHT));
    int expected = 0;
    bool atFirst = true;
    for (const int id : displayed()) {
        RECT rect{};
        const HTREEITEM item = itemOf(id);
        std::memcpy(&rect, &item, sizeof item); // so TVM_GETITEMRECT is asked
        if (!ask(TVM_GETITEMRECT, FALSE, reinterpret_cast<LPARAM>(&rect))) {
            fail("node " + names({id}) + " has no row");
            return;
        }
        if (!atFirst && rect.top != expected)
            fail("node " + names({id}) + " has the row at " + std::to_string(rect.top) + ", expected " +
                 std::to_string(expected));
        if (id == first) {
            seen = rect.top == 0;
            found = ", at " + std::to_string(rect.top);
        }
        atFirst = false;
        expected = rect.top + height;
    }
    if (!seen)
        fail("the first row seen is that of " + names({first}) + found);
}
