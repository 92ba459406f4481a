#include "BenchLists.h"

#include <cwchar>

ListParent::ListParent()
{
    CreateEx(0, AfxRegisterWndClass(0), L"bench", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(5, 5, 905, 805),
             nullptr, 0);
}

ListParent::~ListParent()
{
    DestroyWindow();
}

void ListParent::bringForward()
{
    SetWindowPos(&wndTop, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

std::wstring cellText(int row, int column)
{
    wchar_t text[32];
    std::swprintf(text, std::size(text), L"cell %06d %02d", row, column);
    return text;
}
