// CGdiObject: handles, and the objects that stand for them.
#include <afxwin.h>

#include <detail/handlemap.h>

IMPLEMENT_DYNCREATE(CGdiObject, CObject)

namespace
{

/// An object of the class that fits the handle, so that FromHandle of every class gives what it says.
std::unique_ptr<CGdiObject> makeFor(HGDIOBJ object)
{
    switch (::GetObjectType(object)) {
    case OBJ_PEN:
    case OBJ_EXTPEN:
        return std::make_unique<CPen>();
    case OBJ_BRUSH:
        return std::make_unique<CBrush>();
    case OBJ_FONT:
        return std::make_unique<CFont>();
    case OBJ_BITMAP:
        return std::make_unique<CBitmap>();
    case OBJ_REGION:
        return std::make_unique<CRgn>();
    case OBJ_PAL:
        return std::make_unique<CPalette>();
    default:
        return std::make_unique<CGdiObject>();
    }
}

struct GdiTraits
{
    using Object = CGdiObject;
    using Handle = HGDIOBJ;
    static std::unique_ptr<CGdiObject> make(HGDIOBJ handle)
    {
        auto object = makeFor(handle);
        object->m_hObject = handle;
        return object;
    }
    static void forget(CGdiObject& object) { object.m_hObject = nullptr; }
};

afxdetail::HandleMap<GdiTraits>& gdiMap()
{
    return afxdetail::handleMap<GdiTraits>();
}

} // namespace

CGdiObject::CGdiObject() = default;

CGdiObject::~CGdiObject()
{
    DeleteObject();
}

CGdiObject* PASCAL CGdiObject::FromHandle(HGDIOBJ object)
{
    return gdiMap().fromHandle(object);
}

void PASCAL CGdiObject::DeleteTempMap()
{
    gdiMap().deleteTemporary();
}

BOOL CGdiObject::Attach(HGDIOBJ object)
{
    if (!object || m_hObject)
        return FALSE;
    m_hObject = object;
    gdiMap().setPermanent(object, this);
    return TRUE;
}

BOOL CGdiObject::adopt(HGDIOBJ object)
{
    ASSERT(!m_hObject);
    if (!object)
        return FALSE;
    Detach();
    return Attach(object);
}

HGDIOBJ CGdiObject::Detach()
{
    const HGDIOBJ object = m_hObject;
    // Several objects may share a stock object's handle; the map knows one of them.
    if (CGdiObject* known = object ? gdiMap().fromHandlePermanent(object) : nullptr; !known || known == this)
        gdiMap().remove(object);
    m_hObject = nullptr;
    return object;
}

BOOL CGdiObject::DeleteObject()
{
    return m_hObject && ::DeleteObject(Detach());
}

HGDIOBJ CGdiObject::GetSafeHandle() const
{
    return this ? m_hObject : nullptr; // documented for a null pointer too
}

CGdiObject::operator HGDIOBJ() const
{
    return m_hObject;
}

BOOL CGdiObject::operator==(const CGdiObject& object) const
{
    return m_hObject == object.m_hObject;
}

BOOL CGdiObject::operator!=(const CGdiObject& object) const
{
    return m_hObject != object.m_hObject;
}

int CGdiObject::GetObject(int size, LPVOID data) const
{
    return ::GetObjectW(m_hObject, size, data);
}

UINT CGdiObject::GetObjectType() const
{
    return ::GetObjectType(m_hObject);
}

BOOL CGdiObject::CreateStockObject(int index)
{
    return adopt(::GetStockObject(index));
}

BOOL CGdiObject::UnrealizeObject()
{
    return ::UnrealizeObject(m_hObject);
}
