#include "GdiPlusSession.h"

#include <algorithm>

#include <objidl.h>
#include <gdiplus.h>

namespace ovo::testkit
{

GdiPlusSession::GdiPlusSession()
{
    const Gdiplus::GdiplusStartupInput input;
    Gdiplus::GdiplusStartup(&m_token, &input, nullptr);
}

GdiPlusSession::~GdiPlusSession()
{
    Gdiplus::GdiplusShutdown(m_token);
}

} // namespace ovo::testkit
