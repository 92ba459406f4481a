#include "MonkeyTree.h"

#include "Monkey.h"

void MonkeyTree::reportError(const wchar_t*)
{
    m_monkey.callOut("reportError", MonkeyModel::kRoot);
}

bool MonkeyTree::isCommandDisabled(unsigned)
{
    m_monkey.callOut("isCommandDisabled", MonkeyModel::kRoot);
    return false;
}

LRESULT MonkeyTree::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    return message == WM_CONTEXTMENU ? 0 : MultiTreeCtrl::WindowProc(message, wParam, lParam);
}
