// CGdiObject: the common part of pens, brushes, fonts, bitmaps, regions and palettes.
#pragma once

#include <afx.h>

/// Wraps one GDI handle and deletes it when destroyed.
///
/// Every attached handle is known to the thread's handle map, so that FromHandle gives the same object
/// back. Objects that FromHandle makes for foreign handles are temporary: they live until the next idle
/// time and never delete the handle.
class OVOMFC_API CGdiObject : public CObject
{
    DECLARE_DYNCREATE(CGdiObject)

public:
    CGdiObject();
    CGdiObject(const CGdiObject&) = delete;
    CGdiObject& operator=(const CGdiObject&) = delete;
    ~CGdiObject() override;

    /// The object of a handle: the one it is attached to, else a temporary one of the class that fits the
    /// handle's type. NULL for NULL.
    static CGdiObject* PASCAL FromHandle(HGDIOBJ object);
    /// Deletes the temporary objects of this thread; the handles stay alive.
    static void PASCAL DeleteTempMap();

    /// Takes over a handle. FALSE for NULL and for an object that has a handle already.
    BOOL Attach(HGDIOBJ object);
    /// Gives the handle away; the caller deletes it. NULL when there is none.
    HGDIOBJ Detach();
    /// Deletes the handle, which must not be selected into a device context. FALSE when there is none.
    BOOL DeleteObject();

    HGDIOBJ GetSafeHandle() const; ///< The handle; NULL when there is none, or no object.
    operator HGDIOBJ() const;
    /// Whether both wrap the same handle.
    BOOL operator==(const CGdiObject& object) const;
    BOOL operator!=(const CGdiObject& object) const;

    /// Copies the description of the object (LOGPEN, LOGBRUSH, LOGFONT, BITMAP, ...) into `data`.
    /// Gives the number of bytes copied, 0 on failure.
    int GetObject(int size, LPVOID data) const;
    /// OBJ_PEN, OBJ_BRUSH, ...; 0 on failure.
    UINT GetObjectType() const;
    /// Attaches a stock pen, brush, font or palette. Deleting it later does nothing, as for every stock
    /// object.
    BOOL CreateStockObject(int index);
    /// Makes the origin of a brush or the mapping of a palette be computed anew.
    BOOL UnrealizeObject();

    HGDIOBJ m_hObject = nullptr;

protected:
    /// For Create functions: takes over a new handle, NULL being their failure. An object that has a handle
    /// already is an error, and loses it.
    BOOL adopt(HGDIOBJ object);
};
