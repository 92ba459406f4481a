// Arrays and lists of the most common elements.
#include <afxcoll.h>

IMPLEMENT_DYNAMIC(CStringArray, CObject)
IMPLEMENT_DYNAMIC(CPtrArray, CObject)
IMPLEMENT_DYNAMIC(CStringList, CObject)
IMPLEMENT_DYNAMIC(CPtrList, CObject)
