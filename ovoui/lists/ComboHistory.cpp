#include <ovoui/lists/ComboHistory.h>

#include <ovoui/frame/Lifeline.h>
#include <ovoui/lists/ComboBox.h>

namespace ovoui::lists
{

ComboHistory::ComboHistory(COVOComboBox& combo, LPCWSTR section, LPCWSTR entry, int limit)
    : m_combo(combo)
    , m_profile(section)
    , m_entry(entry)
    , m_limit(limit)
    , m_texts(limit)
{
    m_texts.restore(read());
}

void ComboHistory::bringBack()
{
    const std::vector<std::wstring> texts = m_texts.texts(); // this object goes with the combo box
    const Lifeline::Watch watch(m_combo);
    int place = 0;
    for (const std::wstring& text : texts)
        if (watch.alive())
            bringToTop(text, place++);
}

void ComboHistory::use(const std::wstring& text)
{
    if (text.empty() || m_limit < 1)
        return;
    const std::vector<std::wstring> gone = keep(text);
    const Lifeline::Watch watch(m_combo);
    bringToTop(text, 0);
    for (const std::wstring& old : gone)
        if (watch.alive())
            drop(old);
}

std::vector<std::wstring> ComboHistory::keep(const std::wstring& text)
{
    std::vector<std::wstring> gone = m_texts.use(text);
    write();
    return gone;
}

bool ComboHistory::forget(int item)
{
    const std::wstring text = m_combo.itemText(item);
    if (!m_texts.forget(text))
        return false;
    write();
    drop(text);
    return true;
}

void ComboHistory::bringToTop(const std::wstring& text, int place)
{
    const int item = m_combo.itemWith(text);
    if (item == -1) {
        m_added.insert(text);
        m_combo.insertItem(place, text);
        return;
    }
    m_combo.moveItem(item, place);
}

/// Items of the host's stay, behind those of the history.
void ComboHistory::drop(const std::wstring& text)
{
    const int item = m_combo.itemWith(text);
    if (item == -1)
        return;
    if (m_added.erase(text))
        m_combo.removeItem(item);
    else
        m_combo.moveItem(item, static_cast<int>(m_texts.texts().size()));
}

/// The profile has an entry for each text: the name with a number, from 1 on.
std::wstring ComboHistory::entryOf(int number) const
{
    return m_entry + std::to_wstring(number);
}

/// With empty ones where the profile has none.
std::vector<std::wstring> ComboHistory::read() const
{
    std::vector<std::wstring> texts;
    for (int number = 1; number <= m_limit; ++number)
        texts.push_back(m_profile.text(entryOf(number)));
    return texts;
}

void ComboHistory::write() const
{
    int number = 1;
    for (const std::wstring& text : m_texts.texts())
        m_profile.write(entryOf(number++), text);
    for (; number <= m_limit; ++number)
        m_profile.remove(entryOf(number));
}

} // namespace ovoui::lists
