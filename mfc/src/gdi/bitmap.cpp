#include <afxwin.h>

#include <commctrl.h>
#include <detail/handleof.h>

using afxdetail::handleOf;

IMPLEMENT_DYNAMIC(CBitmap, CGdiObject)

CBitmap::CBitmap() = default;

CBitmap* PASCAL CBitmap::FromHandle(HBITMAP bitmap)
{
    return static_cast<CBitmap*>(CGdiObject::FromHandle(bitmap));
}

BOOL CBitmap::LoadBitmap(LPCTSTR resourceName)
{
    return adopt(::LoadBitmapW(AfxFindResourceHandle(resourceName, RT_BITMAP), resourceName));
}

BOOL CBitmap::LoadBitmap(UINT resourceId)
{
    return LoadBitmap(MAKEINTRESOURCEW(resourceId));
}

BOOL CBitmap::LoadOEMBitmap(UINT id)
{
    return adopt(::LoadBitmapW(nullptr, MAKEINTRESOURCEW(id)));
}

BOOL CBitmap::LoadMappedBitmap(UINT resourceId, UINT flags, LPCOLORMAP map, int mapSize)
{
    const HINSTANCE module = AfxFindResourceHandle(MAKEINTRESOURCEW(resourceId), RT_BITMAP);
    return adopt(::CreateMappedBitmap(module, static_cast<INT_PTR>(resourceId), flags, map, mapSize));
}

BOOL CBitmap::CreateBitmap(int width, int height, UINT planes, UINT bitCount, const void* bits)
{
    return adopt(::CreateBitmap(width, height, planes, bitCount, bits));
}

BOOL CBitmap::CreateBitmapIndirect(LPBITMAP bitmap)
{
    return adopt(::CreateBitmapIndirect(bitmap));
}

BOOL CBitmap::CreateCompatibleBitmap(CDC* dc, int width, int height)
{
    return adopt(::CreateCompatibleBitmap(handleOf(dc), width, height));
}

BOOL CBitmap::CreateDiscardableBitmap(CDC* dc, int width, int height)
{
    return adopt(::CreateDiscardableBitmap(handleOf(dc), width, height));
}

CBitmap::operator HBITMAP() const
{
    return static_cast<HBITMAP>(m_hObject);
}

int CBitmap::GetBitmap(BITMAP* bitmap)
{
    return GetObject(sizeof *bitmap, bitmap);
}

DWORD CBitmap::SetBitmapBits(DWORD count, const void* bits)
{
    return static_cast<DWORD>(::SetBitmapBits(*this, count, bits));
}

DWORD CBitmap::GetBitmapBits(DWORD count, LPVOID bits) const
{
    return static_cast<DWORD>(::GetBitmapBits(*this, static_cast<LONG>(count), bits));
}

CSize CBitmap::SetBitmapDimension(int width, int height)
{
    CSize before;
    ::SetBitmapDimensionEx(*this, width, height, &before);
    return before;
}

CSize CBitmap::GetBitmapDimension() const
{
    CSize size;
    ::GetBitmapDimensionEx(*this, &size);
    return size;
}
