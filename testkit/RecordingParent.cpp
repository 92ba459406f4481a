#include "RecordingParent.h"

namespace ovo::testkit
{

RecordingParent::RecordingParent(CSize client, const wchar_t* title)
{
    CRect rect{CPoint{60, 60}, client};
    ::AdjustWindowRectEx(&rect, WS_OVERLAPPEDWINDOW, FALSE, 0);
    const CString windowClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorW(nullptr, IDC_ARROW),
                                                    reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1));
    CreateEx(0, windowClass, title, WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, rect, nullptr, 0);
}

RecordingParent::~RecordingParent()
{
    DestroyWindow();
}

void RecordingParent::answer(UINT code, LRESULT result)
{
    answer(code, [result](NMHDR*) { return result; });
}

void RecordingParent::answer(UINT code, std::function<LRESULT(NMHDR*)> reply)
{
    m_replies[code] = std::make_shared<std::function<LRESULT(NMHDR*)>>(std::move(reply));
}

LRESULT RecordingParent::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    m_log.note(message, wParam, lParam);
    const LRESULT result = CWnd::WindowProc(message, wParam, lParam);
    if (message != WM_NOTIFY)
        return result;
    // The control has had its say by reflection above; the parent has the last word.
    auto* header = reinterpret_cast<NMHDR*>(lParam);
    const auto found = m_replies.find(header->code);
    if (found == m_replies.end())
        return result;
    const auto reply = found->second; // which may put another one in its place
    return (*reply)(header);
}

} // namespace ovo::testkit
