#include "GdiPlus.h"

#include <algorithm>

#include <objidl.h>

// The headers of GDI+ use min and max without saying whose.
using std::max;
using std::min;
#include <gdiplus.h>

GdiPlus::GdiPlus()
{
    const Gdiplus::GdiplusStartupInput input;
    Gdiplus::GdiplusStartup(&m_token, &input, nullptr);
}

GdiPlus::~GdiPlus()
{
    Gdiplus::GdiplusShutdown(m_token);
}
