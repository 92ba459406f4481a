#include <ovoui/lists/ListHelper.h>

#include <ovoui/frame/WindowCompanion.h>

#include <algorithm>
#include <vector>

namespace ovoui::lists
{

/// Hands the messages of a window to its helpers.
class ListMessages : public frame::WindowCompanion<ListMessages>
{
public:
    static constexpr wchar_t kProperty[] = L"ovoui.ListMessages";

    void add(ListHelper& helper) { m_helpers.insert(m_helpers.begin(), &helper); }
    void remove(ListHelper& helper) { std::erase(m_helpers, &helper); }

    LRESULT handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void end();

private:
    template <class Tell>
    bool eachUntil(const Tell& tell);

    std::vector<ListHelper*> m_helpers;
};

/// Any helper may be destroyed, or leave, while another one is told.
template <class Tell>
bool ListMessages::eachUntil(const Tell& tell)
{
    const std::vector<ListHelper*> helpers = m_helpers;
    return std::any_of(helpers.begin(), helpers.end(), [&](ListHelper* helper) {
        return std::find(m_helpers.begin(), m_helpers.end(), helper) != m_helpers.end() && tell(*helper);
    });
}

void ListMessages::end()
{
    while (!m_helpers.empty()) {
        ListHelper& helper = *m_helpers.front();
        remove(helper);
        helper.stopHearing();
    }
}

/// The host raises what it likes when a helper asks or tells it something.
LRESULT ListMessages::handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT result = 0;
    if (eachUntil([&](ListHelper& helper) { return helper.takes(message, wParam, lParam, result); }))
        return result;
    result = frame::nextProcedure(window, message, wParam, lParam);
    eachUntil([&](ListHelper& helper) {
        helper.heard(message, wParam, lParam);
        return false;
    });
    return result;
}

ListHelper::~ListHelper()
{
    // The derived object has gone: it is not told.
    if (ListMessages* const messages = ListMessages::knownFor(m_window))
        messages->remove(*this);
}

void ListHelper::hear(CWnd& list)
{
    stopHearing();
    if (ListMessages* const messages = ListMessages::madeFor(list.m_hWnd)) {
        m_window = list.m_hWnd;
        messages->add(*this);
    }
}

void ListHelper::stopHearing()
{
    if (!m_window)
        return;
    if (ListMessages* const messages = ListMessages::knownFor(m_window))
        messages->remove(*this);
    left();
    m_window = nullptr;
}

bool ListHelper::takes(UINT, WPARAM, LPARAM, LRESULT&)
{
    return false;
}

void ListHelper::heard(UINT, WPARAM, LPARAM) {}

void ListHelper::left() {}

} // namespace ovoui::lists
