/// The texts that were used last.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace ovoui::lists
{

/// Each text once, the last one first, up to a limit.
class TextHistory
{
public:
    /// A `limit` below 1 keeps nothing.
    explicit TextHistory(int limit)
        : m_limit(limit > 0 ? static_cast<std::size_t>(limit) : 0)
    {
    }

    /// Takes the texts of before, the last one first: what is empty, there already or beyond the limit is
    /// left out.
    void restore(const std::vector<std::wstring>& texts);

    /// Puts a text first, unless it is empty. Gives the texts that have no room any more.
    std::vector<std::wstring> use(const std::wstring& text);

    /// False when the text is not there.
    bool forget(const std::wstring& text);

    bool has(const std::wstring& text) const;
    const std::vector<std::wstring>& texts() const { return m_texts; }

private:
    std::size_t m_limit;
    std::vector<std::wstring> m_texts;
};

/// Where an item is after the one at `from` was taken out and put in again at `to`.
int indexAfterMove(int index, int from, int to);

/// Where an item is after the one at `at` was taken out; -1 for that one.
int indexAfterRemoval(int index, int at);

/// Where an item is after another one was put in at `at`.
int indexAfterInsertion(int index, int at);

} // namespace ovoui::lists
