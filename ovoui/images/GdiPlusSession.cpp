#include <ovoui/images/GdiPlusSession.h>

#include <algorithm>

#include <objidl.h>
#include <gdiplus.h>

CGdiPlusSession::CGdiPlusSession()
{
    const Gdiplus::GdiplusStartupInput input;
    if (Gdiplus::GdiplusStartup(&m_token, &input, nullptr) != Gdiplus::Ok)
        m_token = 0;
}

CGdiPlusSession::~CGdiPlusSession()
{
    if (m_token)
        Gdiplus::GdiplusShutdown(m_token);
}
