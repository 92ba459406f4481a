#include "ProbeWindow.h"
#include <testkit/Desktop.h>

#include <algorithm>
#include <iterator>

namespace ovo::testkit
{

namespace
{

bool isMouse(UINT message)
{
    return message >= WM_MOUSEFIRST && message <= WM_MOUSELAST;
}

bool isKey(UINT message)
{
    return message >= WM_KEYFIRST && message <= WM_KEYLAST;
}

} // namespace

ProbeWindow::ProbeWindow()
{
    const CString windowClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorW(nullptr, IDC_ARROW),
                                                    static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH)));
    CreateEx(0, windowClass, L"Probe", WS_OVERLAPPEDWINDOW, CRect(80, 80, 480, 380), nullptr, 0);
    present(*this);
    clear();
}

ProbeWindow::~ProbeWindow()
{
    DestroyWindow();
}

std::vector<ProbeWindow::Seen> ProbeWindow::all(UINT message) const
{
    std::vector<Seen> found;
    std::ranges::copy_if(m_seen, std::back_inserter(found),
                         [message](const Seen& seen) { return seen.message == message; });
    return found;
}

LRESULT ProbeWindow::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (isMouse(message))
        m_seen.push_back({message, wParam, CPoint(lParam)});
    else if (isKey(message))
        m_seen.push_back({message, wParam, {}});
    else if (message == WM_APP && onPrivateMessage)
        onPrivateMessage();
    return CWnd::WindowProc(message, wParam, lParam);
}

} // namespace ovo::testkit
