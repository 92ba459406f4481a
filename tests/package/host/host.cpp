// A console program outside the source tree.
#include <ovoui/ovoui.h>
#include <ovocor/ovocor.h>
#include <ovomsg/ovomsg.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <string_view>

// The headers of GDI+ use min and max without saying whose.
using std::max;
using std::min;
#include <gdiplus.h>

static_assert(std::string_view(PACKAGE_VERSION) == OVOUI_VERSION_STRING);
static_assert(OVOUI_VERSION ==
              OVOUI_VERSION_NUMBER(OVOUI_VERSION_MAJOR, OVOUI_VERSION_MINOR, OVOUI_VERSION_PATCH));
static_assert(OVOUI_VERSION >= OVOUI_VERSION_NUMBER(11, 0, 0) &&
              OVOUI_VERSION < OVOUI_VERSION_NUMBER(12, 0, 0));

namespace
{

bool isPulledIntoView()
{
    RECT rect{-50, -50, 50, 50};
    EnsureRectVisible(rect);
    return rect.left == 0 && rect.top == 0;
}

// The host starts GDI+, without which no strip of images is read.
bool readsStripWithGdiPlus()
{
    ULONG_PTR token = 0;
    const Gdiplus::GdiplusStartupInput input;
    if (Gdiplus::GdiplusStartup(&token, &input, nullptr) != Gdiplus::Ok)
        return false;
    bool read = false;
    {
        CAlphaImageList images;
        images.Create(16, 16, 1);
        CBitmap strip;
        strip.CreateBitmap(32, 16, 1, 32, nullptr);
        read = images.AddBitmap(0, false, -1, CSize(16, 16), CSize(16, 16), strip, nullptr) == 0;
    }
    Gdiplus::GdiplusShutdown(token);
    return read;
}

bool holds(const char* what, bool condition)
{
    if (!condition)
        std::printf("does not hold: %s\n", what);
    return condition;
}

} // namespace

int main()
{
    const std::string_view version = OVOUI_VERSION_STRING;
    const bool number = version == std::to_string(OVOUI_VERSION_MAJOR) + "." +
                                       std::to_string(OVOUI_VERSION_MINOR) + "." +
                                       std::to_string(OVOUI_VERSION_PATCH);
    return holds("the version's text is its numbers", number) &&
                   holds("a rectangle is pulled into view", isPulledIntoView()) &&
                   holds("the catalogue has a text", !ovoMsg(1).empty()) &&
                   holds("the theme data answer",
                         CThemeData::getThemeData().ButtonFace(nullptr) == ::GetSysColor(COLOR_BTNFACE)) &&
                   holds("a strip is read", readsStripWithGdiPlus())
               ? 0
               : 1;
}
