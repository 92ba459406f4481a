/// Not exported: completion by any part of the text, beside that by its beginning.
#pragma once

#include <ovoui/lists/ComboHits.h>

namespace ovoui::lists
{

/// Lives with its combo box; its window is made when there is something to show.
class ComboSearch
{
public:
    explicit ComboSearch(COVOComboBox& combo);

    /// Shows the items that have what was typed, or none. The edit field may have been completed meanwhile.
    void typed(const std::wstring& text);

    /// Whether a key that is on its way to the edit field is done with.
    bool takesKey(WPARAM virtualKey);

    /// The items are about to change. True when that concerns the hits, for the first time since they were
    /// found.
    bool doubts();

    /// Finds the hits once more, if some are still shown.
    void findAgain();

    /// The hits look different from before.
    void repaint();

    /// Shows nothing any more.
    void end();

private:
    void choose(int index);

    COVOComboBox& m_combo;
    std::wstring m_typed;
    bool m_doubted = false; ///< the items have changed since the hits were found
    ComboHits m_hits;
};

} // namespace ovoui::lists
