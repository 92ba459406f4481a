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

/// Selects a font, pen, brush or bitmap, which must outlive it; the one of before comes back. A null one
/// leaves the context alone.
class SelectedTool
{
public:
    SelectedTool(CDC& dc, HGDIOBJ tool)
        : m_dc(dc.m_hDC)
        , m_before(tool ? ::SelectObject(m_dc, tool) : nullptr)
    {
    }
    SelectedTool(CDC& dc, CGdiObject* tool)
        : SelectedTool(dc, tool ? tool->m_hObject : nullptr)
    {
    }
    ~SelectedTool()
    {
        if (m_before)
            ::SelectObject(m_dc, m_before);
    }
    SelectedTool(const SelectedTool&) = delete;
    SelectedTool& operator=(const SelectedTool&) = delete;

private:
    const HDC m_dc;
    const HGDIOBJ m_before;
};

} // namespace ovoui::frame
