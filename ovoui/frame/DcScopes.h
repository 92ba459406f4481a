/// Not exported. What a device context has until the end of a scope, whichever way that is left.
#pragma once

#include <afxwin.h>

namespace ovoui::frame
{

/// All of the context comes back: tools, colours, modes, clipping.
class SavedContext
{
public:
    explicit SavedContext(CDC& dc)
        : m_dc(dc)
        , m_saved(dc.SaveDC())
    {
    }
    ~SavedContext() { m_dc.RestoreDC(m_saved); }
    SavedContext(const SavedContext&) = delete;
    SavedContext& operator=(const SavedContext&) = delete;

private:
    CDC& m_dc;
    const int m_saved;
};

} // namespace ovoui::frame
