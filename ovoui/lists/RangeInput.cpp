#include <ovoui/lists/RangeInput.h>

#include <ovoui/frame/Platform.h>
#include <ovoui/lists/ListCtrlEx.h>

namespace ovoui::lists
{

namespace
{

constexpr int kMany = 1000; ///< rows, which take a tenth of a second

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

bool hasManyRows(const COVOListCtrlEx& list)
{
    return platform().asksForEachRow && (list.GetStyle() & LVS_OWNERDATA) && list.GetItemCount() > kMany;
}

bool hasManySelected(const COVOListCtrlEx& list)
{
    return list.GetSelectedCount() > static_cast<UINT>(kMany);
}

} // namespace

RangeInput::RangeInput(const COVOListCtrlEx& list, UINT message)
{
    if (isInput(message) && hasManyRows(list) && (::GetKeyState(VK_SHIFT) < 0 || hasManySelected(list)))
        m_hold.emplace(list.m_hWnd, frame::RedrawHold::By::ControlThenAll);
}

RangeInput::RangeInput(const COVOListCtrlEx& list)
{
    if (hasManyRows(list) && hasManySelected(list))
        m_hold.emplace(list.m_hWnd, frame::RedrawHold::By::ControlThenAll);
}

} // namespace ovoui::lists
