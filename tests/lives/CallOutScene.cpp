#include "CallOutScene.h"

#include <ostream>

CallOutScene::CallOutScene()
{
    parent.ShowWindow(SW_SHOWNOACTIVATE);
}

void PrintTo(const CallOut& callOut, std::ostream* out)
{
    *out << callOut.name;
}

std::string nameOfCallOut(const ::testing::TestParamInfo<CallOut>& info)
{
    return info.param.name + std::to_string(info.index);
}

void click(CWnd& window, CPoint point)
{
    window.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(point.x, point.y));
    window.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(point.x, point.y));
}

void press(CWnd& window, UINT key)
{
    window.SendMessage(WM_KEYDOWN, key, 1);
}

void paint(CWnd& window)
{
    window.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
}
