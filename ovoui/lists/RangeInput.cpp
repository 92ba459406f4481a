#include <ovoui/lists/RangeInput.h>

#include <ovoui/frame/Platform.h>
#include <ovoui/lists/ManyRows.h>

namespace ovoui::lists
{

namespace
{

bool isInput(UINT message)
{
    switch (message) {
    case WM_KEYDOWN:
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_RBUTTONDOWN:
        return true;
    default:
        return false;
    }
}

bool isAskedForEachRow(const COVOListCtrlEx& list)
{
    return platform().asksForEachRow && hasManyRows(list);
}

bool hasManySelected(const COVOListCtrlEx& list)
{
    return list.GetSelectedCount() > static_cast<UINT>(kManyRows);
}

} // namespace

RangeInput::RangeInput(const COVOListCtrlEx& list, UINT message)
{
    if (isInput(message) && isAskedForEachRow(list) && (::GetKeyState(VK_SHIFT) < 0 || hasManySelected(list)))
        m_hold.emplace(list.m_hWnd, frame::RedrawHold::By::ControlThenAll);
}

RangeInput::RangeInput(const COVOListCtrlEx& list)
{
    if (isAskedForEachRow(list) && hasManySelected(list))
        m_hold.emplace(list.m_hWnd, frame::RedrawHold::By::ControlThenAll);
}

} // namespace ovoui::lists
