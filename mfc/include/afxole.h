// OLE: the clipboard and drag and drop.
#ifndef __AFXOLE_H__
#define __AFXOLE_H__
#pragma once

#include <afxwin.h>
#include <ole2.h>

#include <afx/DataObject.h>
#include <afx/DataSource.h>
#include <afx/DropSource.h>
#include <afx/DropTarget.h>

/// Starts OLE for the calling thread; clipboard and drag and drop need it. FALSE when the system refuses.
/// Further calls do nothing. The end of the program renders what is on the clipboard and stops OLE again.
OVOMFC_API BOOL AFXAPI AfxOleInit();

/// Stops OLE for the calling thread, if AfxOleInit started it.
OVOMFC_API void AFXAPI AfxOleTerm();

#endif // __AFXOLE_H__
