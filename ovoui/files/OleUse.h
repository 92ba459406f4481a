/// Not exported: OLE, for as long as a dialog of the shell needs it.
#pragma once

#include <ole2.h>

namespace ovoui
{

/// Starts OLE, or counts one more use of it, while it lives.
class OleUse
{
public:
    OleUse()
        : m_started(SUCCEEDED(::OleInitialize(nullptr)))
    {
    }
    ~OleUse()
    {
        if (m_started)
            ::OleUninitialize();
    }
    OleUse(const OleUse&) = delete;
    OleUse& operator=(const OleUse&) = delete;

private:
    bool m_started;
};

} // namespace ovoui
