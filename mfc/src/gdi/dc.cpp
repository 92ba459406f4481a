// CDC: handles and the state of a device context.
#include <afxwin.h>

#include <detail/handlemap.h>
#include <detail/handleof.h>

#include "bothdcs.h"

using afxdetail::handleOf;
using afxdetail::inBoth;

IMPLEMENT_DYNCREATE(CDC, CObject)

namespace
{

struct DcTraits
{
    using Object = CDC;
    using Handle = HDC;
    static std::unique_ptr<CDC> make(HDC handle)
    {
        auto dc = std::make_unique<CDC>();
        dc->m_hDC = dc->m_hAttribDC = handle;
        return dc;
    }
    static void forget(CDC& dc) { dc.m_hDC = dc.m_hAttribDC = nullptr; }
};

afxdetail::HandleMap<DcTraits>& dcMap()
{
    return afxdetail::handleMap<DcTraits>();
}

} // namespace

CDC::CDC() = default;

CDC::~CDC()
{
    DeleteDC();
}

CDC* PASCAL CDC::FromHandle(HDC dc)
{
    return dcMap().fromHandle(dc);
}

void PASCAL CDC::DeleteTempMap()
{
    dcMap().deleteTemporary();
}

BOOL CDC::Attach(HDC dc)
{
    if (!dc || m_hDC)
        return FALSE;
    m_hDC = dc;
    dcMap().setPermanent(dc, this);
    SetAttribDC(dc);
    return TRUE;
}

BOOL CDC::adopt(HDC dc)
{
    ASSERT(!m_hDC);
    if (!dc)
        return FALSE;
    Detach();
    return Attach(dc);
}

HDC CDC::Detach()
{
    const HDC dc = m_hDC;
    if (dc)
        dcMap().remove(dc);
    m_hDC = nullptr;
    ReleaseAttribDC();
    return dc;
}

void CDC::SetAttribDC(HDC dc)
{
    m_hAttribDC = dc;
}

void CDC::SetOutputDC(HDC dc)
{
    ASSERT(!m_hDC || dcMap().fromHandlePermanent(m_hDC) != this); // Detach the one before
    m_hDC = dc;
}

void CDC::ReleaseAttribDC()
{
    m_hAttribDC = nullptr;
}

void CDC::ReleaseOutputDC()
{
    ASSERT(!m_hDC || dcMap().fromHandlePermanent(m_hDC) != this); // to be detached instead
    m_hDC = nullptr;
}

BOOL CDC::CreateDC(LPCTSTR driver, LPCTSTR device, LPCTSTR output, const void* initData)
{
    return adopt(::CreateDCW(driver, device, output, static_cast<const DEVMODE*>(initData)));
}

BOOL CDC::CreateIC(LPCTSTR driver, LPCTSTR device, LPCTSTR output, const void* initData)
{
    return adopt(::CreateICW(driver, device, output, static_cast<const DEVMODE*>(initData)));
}

BOOL CDC::CreateCompatibleDC(CDC* dc)
{
    return adopt(::CreateCompatibleDC(handleOf(dc)));
}

BOOL CDC::DeleteDC()
{
    return m_hDC && ::DeleteDC(Detach());
}

HDC CDC::GetSafeHdc() const
{
    return handleOf(this); // documented for a null pointer too
}

CDC::operator HDC() const
{
    return m_hDC;
}

CWnd* CDC::GetWindow() const
{
    return CWnd::FromHandle(::WindowFromDC(m_hDC));
}

BOOL CDC::IsPrinting() const
{
    return GetDeviceCaps(TECHNOLOGY) == DT_RASPRINTER;
}

int CDC::SaveDC()
{
    return inBoth(*this, [](HDC dc) { return ::SaveDC(dc); });
}

BOOL CDC::RestoreDC(int saved)
{
    if (m_hDC == m_hAttribDC || saved == -1)
        return inBoth(*this, [saved](HDC dc) { return ::RestoreDC(dc, saved); });
    // The two contexts may count differently; the number given out is the attribute context's.
    return ::RestoreDC(m_hAttribDC, saved) && ::RestoreDC(m_hDC, -1);
}

int CDC::GetDeviceCaps(int index) const
{
    return ::GetDeviceCaps(m_hAttribDC, index);
}

UINT CDC::SetBoundsRect(LPCRECT bounds, UINT flags)
{
    return ::SetBoundsRect(m_hDC, bounds, flags);
}

UINT CDC::GetBoundsRect(LPRECT bounds, UINT flags)
{
    return ::GetBoundsRect(m_hAttribDC, bounds, flags);
}

BOOL CDC::ResetDC(const DEVMODE* mode)
{
    return ::ResetDCW(m_hAttribDC, mode) != nullptr;
}

DWORD CDC::SetLayout(DWORD layout)
{
    return inBoth(*this, [layout](HDC dc) { return ::SetLayout(dc, layout); });
}

DWORD CDC::GetLayout() const
{
    return ::GetLayout(m_hAttribDC);
}

int CDC::SetGraphicsMode(int mode)
{
    return inBoth(*this, [mode](HDC dc) { return ::SetGraphicsMode(dc, mode); });
}

int CDC::GetGraphicsMode() const
{
    return ::GetGraphicsMode(m_hAttribDC);
}
