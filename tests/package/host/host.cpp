#include <ovoui/ovoui.h>
#include <ovocor/ovocor.h>
#include <ovomsg/ovomsg.h>
#include <cstdio>

int main()
{
    RECT rect{-50, -50, 50, 50};
    EnsureRectVisible(rect);
    std::printf("%ld,%ld %d\n", rect.left, rect.top, ovoMsg(1).empty());
    return rect.left == 0 && rect.top == 0 && CThemeData::getThemeData().ButtonFace(nullptr) == ::GetSysColor(15) ? 0 : 1;
}
