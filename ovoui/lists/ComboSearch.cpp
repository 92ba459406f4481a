#include <ovoui/lists/ComboSearch.h>

#include <ovoui/lists/ComboBox.h>
#include <ovoui/lists/EmphasisedText.h>
#include <ovoui/lists/core/HitRules.h>

#include <utility>

namespace ovoui::lists
{

ComboSearch::ComboSearch(COVOComboBox& combo)
    : m_combo(combo)
    , m_hits(combo, [this](int item) { m_combo.takeHit(item); })
{
}

void ComboSearch::typed(const std::wstring& text)
{
    m_typed = text;
    m_doubted = false;
    const std::wstring part = folded(text);
    m_hits.show(hitsOf(part, m_combo.GetCount(), [this](int item) { return folded(m_combo.itemText(item)); }),
                part);
}

bool ComboSearch::takesKey(WPARAM virtualKey)
{
    if (!m_hits.isShown())
        return false;
    const int before = m_hits.selected();
    const HitEffect effect =
        afterHitKey(hitKeyOf(static_cast<unsigned>(virtualKey)), m_hits.count(), before, m_hits.page());
    if (effect.closes)
        m_hits.hide();
    else if (effect.selected != before)
        choose(effect.selected);
    return effect.taken;
}

void ComboSearch::choose(int index)
{
    m_hits.select(index);
    if (index >= 0)
        m_combo.SetCurSel(m_hits.itemAt(index));
    else
        m_combo.showTyped(m_typed);
}

bool ComboSearch::doubts()
{
    return m_hits.isShown() && !std::exchange(m_doubted, true);
}

void ComboSearch::findAgain()
{
    if (m_doubted && m_hits.isShown())
        typed(std::wstring(m_typed));
}

void ComboSearch::repaint()
{
    m_hits.repaint();
}

void ComboSearch::end()
{
    m_hits.hide();
}

} // namespace ovoui::lists
