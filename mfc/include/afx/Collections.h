// Arrays and lists of the most common elements.
#pragma once

#include <afx/Array.h>
#include <afx/List.h>
#include <afx/String.h>

class OVOMFC_API CStringArray : public CArray<CString>
{
    DECLARE_DYNAMIC(CStringArray)
};

/// Pointers, which the array does not own.
class OVOMFC_API CPtrArray : public CArray<void*, void*>
{
    DECLARE_DYNAMIC(CPtrArray)
};

class OVOMFC_API CStringList : public CList<CString>
{
    DECLARE_DYNAMIC(CStringList)
};

/// Pointers, which the list does not own.
class OVOMFC_API CPtrList : public CList<void*, void*>
{
    DECLARE_DYNAMIC(CPtrList)
};
