// Internal: a dialog template found along the resource chain.
#pragma once

#include <afxwin.h>

namespace afxdetail
{

class DialogResource
{
public:
    explicit DialogResource(LPCTSTR name)
        : m_module(AfxFindResourceHandle(name, RT_DIALOG))
    {
        const HRSRC found = ::FindResourceW(m_module, name, RT_DIALOG);
        const HGLOBAL loaded = found ? ::LoadResource(m_module, found) : nullptr;
        m_template = loaded ? static_cast<LPCDLGTEMPLATE>(::LockResource(loaded)) : nullptr;
    }

    /// Null when there is no such template.
    LPCDLGTEMPLATE get() const { return m_template; }
    /// Where the template lies; icons that it names are looked for there.
    HINSTANCE module() const { return m_module; }

private:
    HINSTANCE m_module;
    LPCDLGTEMPLATE m_template = nullptr;
};

} // namespace afxdetail
