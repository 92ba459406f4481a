#include <ovoui/lists/ListHelper.h>

#include <ovoui/frame/AsHandler.h>

#include <commctrl.h>

#include <algorithm>
#include <map>
#include <memory>
#include <vector>

namespace ovoui::lists
{

/// Hands the messages of a window to its helpers: from the first helper on, until the window goes.
class ListMessages : public std::enable_shared_from_this<ListMessages>
{
public:
    /// Null when the window has no helpers yet.
    static ListMessages* knownFor(HWND window);
    /// Null when the window cannot be subclassed.
    static ListMessages* madeFor(HWND window);

    void add(ListHelper& helper) { m_helpers.insert(m_helpers.begin(), &helper); }
    void remove(ListHelper& helper) { std::erase(m_helpers, &helper); }

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                      DWORD_PTR messages);
    template <class Tell>
    bool eachUntil(const Tell& tell);
    LRESULT handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void end(HWND window);

    static std::map<HWND, std::shared_ptr<ListMessages>> s_all;

    std::vector<ListHelper*> m_helpers;
};

std::map<HWND, std::shared_ptr<ListMessages>> ListMessages::s_all;

ListMessages* ListMessages::knownFor(HWND window)
{
    const auto known = s_all.find(window);
    return known == s_all.end() ? nullptr : known->second.get();
}

ListMessages* ListMessages::madeFor(HWND window)
{
    if (ListMessages* const known = knownFor(window))
        return known;
    const auto messages = std::make_shared<ListMessages>();
    if (!::SetWindowSubclass(window, &procedure, 0, reinterpret_cast<DWORD_PTR>(messages.get())))
        return nullptr;
    s_all[window] = messages;
    return messages.get();
}

/// Any helper may be destroyed, or leave, while another one is told.
template <class Tell>
bool ListMessages::eachUntil(const Tell& tell)
{
    const std::vector<ListHelper*> helpers = m_helpers;
    return std::any_of(helpers.begin(), helpers.end(), [&](ListHelper* helper) {
        return std::find(m_helpers.begin(), m_helpers.end(), helper) != m_helpers.end() && tell(*helper);
    });
}

void ListMessages::end(HWND window)
{
    ::RemoveWindowSubclass(window, &procedure, 0);
    while (!m_helpers.empty()) {
        ListHelper& helper = *m_helpers.front();
        remove(helper);
        helper.stopHearing();
    }
    s_all.erase(window);
}

LRESULT CALLBACK ListMessages::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                         DWORD_PTR messages)
{
    const auto self = reinterpret_cast<ListMessages*>(messages)->shared_from_this();
    if (message == WM_NCDESTROY)
        self->end(window);
    return frame::asHandler(window, message, wParam, lParam,
                            [&] { return self->handle(window, message, wParam, lParam); });
}

/// The host raises what it likes when a helper asks or tells it something.
LRESULT ListMessages::handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT result = 0;
    if (eachUntil([&](ListHelper& helper) { return helper.takes(message, wParam, lParam, result); }))
        return result;
    result = ::DefSubclassProc(window, message, wParam, lParam);
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
