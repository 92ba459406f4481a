// GDI+, which the library leaves to its host to start.
#pragma once

#include <windows.h>

class GdiPlus
{
public:
    GdiPlus();
    ~GdiPlus();
    GdiPlus(const GdiPlus&) = delete;
    GdiPlus& operator=(const GdiPlus&) = delete;

private:
    ULONG_PTR m_token = 0;
};
