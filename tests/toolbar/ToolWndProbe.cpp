/// A host that sets a border before its first tool window. Its exit code is what the borders are afterwards:
/// x and, in the next digit, y.
#include <ovoui/toolbar/VantorToolWnd.h>

int wmain()
{
    CVantorToolWnd::sm_xBorder = 5;
    const CVantorToolWnd first;
    return CVantorToolWnd::sm_xBorder + 10 * CVantorToolWnd::sm_yBorder;
}
