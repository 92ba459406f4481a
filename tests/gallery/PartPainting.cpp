#include "PartPainting.h"

#include "AccessibleText.h"

#include <testkit/GuiThread.h>
#include <testkit/Picture.h>

#include <algorithm>
#include <array>

using namespace ovo::testkit;

namespace
{

constexpr std::array kDrawnByWine{L"ComboBox",        L"ComboBoxEx32",  L"SysHeader32",
                                  L"SysTabControl32", L"SysTreeView32", L"msctls_updown32"};

bool isDrawnByWine(HWND window)
{
    wchar_t name[64]{};
    ::GetClassNameW(window, name, 64);
    return std::ranges::any_of(kDrawnByWine,
                               [&](const wchar_t* known) { return ::lstrcmpiW(name, known) == 0; });
}

/// Halves, and a part whose edges run through what is drawn in the middle.
std::array<CRect, 3> partsOf(const CRect& client)
{
    const CPoint centre = client.CenterPoint();
    CRect middle(client);
    middle.DeflateRect(client.Width() / 3 + 1, client.Height() / 3 + 1);
    return {CRect(client.left, client.top, centre.x, client.bottom),
            CRect(client.left, centre.y, client.right, client.bottom), middle};
}

/// Everything is painted, and a caret does not blink.
class Rest
{
public:
    explicit Rest(HWND window)
        : m_caret(::GetFocus())
    {
        GuiThread::settle();
        ::UpdateWindow(window);
        ::HideCaret(m_caret);
    }
    ~Rest() { ::ShowCaret(m_caret); }
    Rest(const Rest&) = delete;
    Rest& operator=(const Rest&) = delete;

private:
    const HWND m_caret;
};

/// What a window shows, with black in place of the windows in it.
Picture withoutChildren(HWND window)
{
    Picture picture = Picture::ofClient(window);
    for (HWND child = ::GetWindow(window, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        CRect place;
        ::GetWindowRect(child, &place);
        ::MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&place), 2);
        if (::IsWindowVisible(child))
            ::PatBlt(picture.dc(), place.left, place.top, place.Width(), place.Height(), BLACKNESS);
    }
    return picture;
}

std::wstring described(const CRect& rect)
{
    return L"(" + std::to_wstring(rect.left) + L", " + std::to_wstring(rect.top) + L", " +
           std::to_wstring(rect.right) + L", " + std::to_wstring(rect.bottom) + L")";
}

} // namespace

Problems changedByPartialPainting(HWND window)
{
    if (isDrawnByWine(window))
        return {};
    const Rest rest(window);
    CRect client;
    ::GetClientRect(window, &client);
    Problems problems;
    for (const CRect& part : partsOf(client)) {
        const Picture before = withoutChildren(window);
        // No message is handled meanwhile but those of painting, so nothing else changes.
        ::RedrawWindow(window, &part, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
        if (const int changed = withoutChildren(window).differences(before); changed > 0)
            problems.push_back(readAloudAlone(window) + L": " + std::to_wstring(changed) +
                               L" pixels after painting " + described(part));
    }
    return problems;
}
