// Internal to message maps: where the handlers of one class are.
#pragma once

#include <afx/MessageMap.h>

#include <cstdint>
#include <vector>

namespace afxdetail
{

/// A hash table that is filled once: 32-bit keys, open addressing, at most half full.
template <class Value>
class FilledHash
{
public:
    struct Pair
    {
        std::uint32_t key;
        Value value;
    };

    /// The keys are different from each other.
    explicit FilledHash(const std::vector<Pair>& pairs = {})
    {
        while ((std::size_t{1} << m_bits) < 2 * pairs.size())
            ++m_bits;
        m_slots.resize(std::size_t{1} << m_bits);
        for (const Pair& pair : pairs) {
            std::size_t at = placeOf(pair.key);
            while (m_slots[at].used)
                at = next(at);
            m_slots[at] = {pair.key, true, pair.value};
        }
    }

    /// Null when there is none.
    const Value* find(std::uint32_t key) const
    {
        for (std::size_t at = placeOf(key); m_slots[at].used; at = next(at))
            if (m_slots[at].key == key)
                return &m_slots[at].value;
        return nullptr;
    }

private:
    struct Slot
    {
        std::uint32_t key = 0;
        bool used = false;
        Value value{};
    };

    // Neighbouring messages and codes spread over the table by the golden ratio's bits.
    std::size_t placeOf(std::uint32_t key) const { return (key * 0x9E3779B1u) >> (32 - m_bits); }
    std::size_t next(std::size_t at) const { return (at + 1) & (m_slots.size() - 1); }

    unsigned m_bits = 1;
    std::vector<Slot> m_slots;
};

/// What the entries of a class and its bases answer. Made once for each class, when its first message comes.
///
/// The first entry that matches decides, from the most derived class to the bases and in the order of each
/// map. So a message has one entry, and the numbers of a command or notification fall into ranges with one
/// entry each.
class DispatchTable
{
public:
    explicit DispatchTable(const AFX_MSGMAP* map);

    /// Null when there is none.
    const AFX_MSGMAP_ENTRY* message(UINT message) const;
    const AFX_MSGMAP_ENTRY* command(UINT message, UINT code, UINT id) const;

private:
    struct Range
    {
        UINT first;
        UINT last;
        const AFX_MSGMAP_ENTRY* entry;
    };
    /// The ranges of a code, as a part of m_ranges.
    struct Part
    {
        std::size_t begin;
        std::size_t end;
    };

    void addMessages(const std::vector<const AFX_MSGMAP_ENTRY*>& entries);
    void addCommands(const std::vector<const AFX_MSGMAP_ENTRY*>& entries);

    FilledHash<const AFX_MSGMAP_ENTRY*> m_messages;
    /// Messages from 0xC000 on, in order: the number of a registered one may not be known yet.
    std::vector<const AFX_MSGMAP_ENTRY*> m_registered;
    FilledHash<Part> m_commands; ///< by message and code
    std::vector<Range> m_ranges; ///< disjoint and sorted within each part
};

/// The table of a class. It stays as long as the module of the map.
const DispatchTable& tableOf(const AFX_MSGMAP* map);

/// Deletes the tables of the classes of a module that is about to go.
void forgetTablesOf(HMODULE module);

} // namespace afxdetail
