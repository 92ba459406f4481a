#pragma once

#include <windows.h>

namespace ovo::testkit
{

/// GDI+, started while this object lives: the library leaves that to its host.
class GdiPlusSession
{
public:
    GdiPlusSession();
    ~GdiPlusSession();
    GdiPlusSession(const GdiPlusSession&) = delete;
    GdiPlusSession& operator=(const GdiPlusSession&) = delete;

private:
    ULONG_PTR m_token = 0;
};

} // namespace ovo::testkit
