// Message maps made into tables.
#include "dispatchtable.h"

#include <afxmsg_.h>

#include <algorithm>
#include <map>
#include <memory>
#include <mutex>

namespace afxdetail
{

namespace
{

constexpr UINT kRegistered = 0xC000;

using Entries = std::vector<const AFX_MSGMAP_ENTRY*>;

Entries entriesInOrder(const AFX_MSGMAP* map)
{
    Entries entries;
    for (; map; map = map->pfnGetBaseMap ? map->pfnGetBaseMap() : nullptr)
        for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries; entry->pfnThunk; ++entry)
            entries.push_back(entry);
    return entries;
}

/// Entries for window messages have neither a code nor a number.
bool isForMessage(const AFX_MSGMAP_ENTRY& entry)
{
    return entry.nCode == 0 && entry.nLastID == 0;
}

/// Whether an entry is for a command or a notification, at the parent or reflected.
bool isForCommand(const AFX_MSGMAP_ENTRY& entry)
{
    const UINT message =
        entry.nMessage >= WM_REFLECT_BASE ? entry.nMessage - WM_REFLECT_BASE : entry.nMessage;
    return message == WM_COMMAND || message == WM_NOTIFY;
}

std::uint32_t commandKey(UINT message, UINT code)
{
    return (message << 16) | LOWORD(code);
}

/// Ranges that do not overlap, by their first number.
class Painting
{
public:
    struct Stretch
    {
        std::uint64_t last;
        const AFX_MSGMAP_ENTRY* entry;
    };

    /// Gives an entry those of its numbers that no earlier one has.
    void add(const AFX_MSGMAP_ENTRY* entry)
    {
        std::uint64_t first = entry->nID;
        auto next = m_stretches.upper_bound(first);
        if (next != m_stretches.begin())
            first = std::max(first, std::prev(next)->second.last + 1);
        while (first <= entry->nLastID) {
            const bool covered = next != m_stretches.end() && next->first <= entry->nLastID;
            const std::uint64_t last = covered ? next->first - 1 : entry->nLastID;
            if (first <= last)
                m_stretches.emplace_hint(next, first, Stretch{last, entry});
            if (!covered)
                return;
            first = next->second.last + 1;
            ++next;
        }
    }

    const std::map<std::uint64_t, Stretch>& stretches() const { return m_stretches; }

private:
    std::map<std::uint64_t, Stretch> m_stretches;
};

/// All tables, with the maps that they belong to.
class Register
{
public:
    /// Makes the table of a map, unless another thread was faster.
    const DispatchTable* make(const AFX_MSGMAP* map)
    {
        const std::scoped_lock lock(m_mutex);
        if (const DispatchTable* made = map->pTable.load(std::memory_order_relaxed))
            return made;
        m_tables.push_back({map, std::make_unique<const DispatchTable>(map)});
        const DispatchTable* table = m_tables.back().table.get();
        map->pTable.store(table, std::memory_order_release);
        return table;
    }

    void forget(HMODULE module)
    {
        // Modules go at the end of the process too, when a thread may have been ended in the middle of
        // make().
        const std::unique_lock lock(m_mutex, std::try_to_lock);
        if (!lock)
            return;
        std::erase_if(m_tables, [module](const Made& made) {
            MEMORY_BASIC_INFORMATION region{};
            ::VirtualQuery(made.map, &region, sizeof region);
            if (region.AllocationBase != module)
                return false;
            // Another module may have come to lie where one was freed without a word.
            if (made.map->pTable.load(std::memory_order_relaxed) == made.table.get())
                made.map->pTable.store(nullptr, std::memory_order_relaxed);
            return true;
        });
    }

private:
    struct Made
    {
        const AFX_MSGMAP* map;
        std::unique_ptr<const DispatchTable> table;
    };

    std::mutex m_mutex;
    std::vector<Made> m_tables;
};

/// Never destroyed: windows may outlive everything else.
Register& tableRegister()
{
    static Register* const made = new Register;
    return *made;
}

} // namespace

DispatchTable::DispatchTable(const AFX_MSGMAP* map)
{
    const Entries entries = entriesInOrder(map);
    addMessages(entries);
    addCommands(entries);
}

void DispatchTable::addMessages(const Entries& entries)
{
    std::map<UINT, const AFX_MSGMAP_ENTRY*> first;
    for (const AFX_MSGMAP_ENTRY* entry : entries) {
        if (!isForMessage(*entry))
            continue;
        if (entry->pRegistered || entry->nMessage >= kRegistered)
            m_registered.push_back(entry);
        else
            first.emplace(entry->nMessage, entry);
    }
    std::vector<FilledHash<const AFX_MSGMAP_ENTRY*>::Pair> pairs;
    for (const auto& [message, entry] : first)
        pairs.push_back({message, entry});
    m_messages = FilledHash<const AFX_MSGMAP_ENTRY*>(pairs);
}

void DispatchTable::addCommands(const Entries& entries)
{
    std::map<std::uint32_t, Painting> codes;
    for (const AFX_MSGMAP_ENTRY* entry : entries)
        if (isForCommand(*entry))
            codes[commandKey(entry->nMessage, entry->nCode)].add(entry);

    std::vector<FilledHash<Part>::Pair> pairs;
    for (const auto& [key, painting] : codes) {
        const std::size_t begin = m_ranges.size();
        for (const auto& [first, stretch] : painting.stretches())
            m_ranges.push_back({static_cast<UINT>(first), static_cast<UINT>(stretch.last), stretch.entry});
        pairs.push_back({key, {begin, m_ranges.size()}});
    }
    m_commands = FilledHash<Part>(pairs);
}

const AFX_MSGMAP_ENTRY* DispatchTable::message(UINT message) const
{
    if (message >= kRegistered) {
        for (const AFX_MSGMAP_ENTRY* entry : m_registered)
            if ((entry->pRegistered ? *entry->pRegistered : entry->nMessage) == message)
                return entry;
        return nullptr;
    }
    const AFX_MSGMAP_ENTRY* const* found = m_messages.find(message);
    return found ? *found : nullptr;
}

const AFX_MSGMAP_ENTRY* DispatchTable::command(UINT message, UINT code, UINT id) const
{
    const Part* part = m_commands.find(commandKey(message, code));
    if (!part)
        return nullptr;
    const Range* const begin = m_ranges.data() + part->begin;
    const Range* const end = m_ranges.data() + part->end;
    const Range* const behind = std::upper_bound(
        begin, end, id, [](UINT wanted, const Range& range) { return wanted < range.first; });
    return behind != begin && id <= behind[-1].last ? behind[-1].entry : nullptr;
}

const DispatchTable& tableOf(const AFX_MSGMAP* map)
{
    if (const DispatchTable* table = map->pTable.load(std::memory_order_acquire))
        return *table;
    return *tableRegister().make(map);
}

void forgetTablesOf(HMODULE module)
{
    tableRegister().forget(module);
}

} // namespace afxdetail
