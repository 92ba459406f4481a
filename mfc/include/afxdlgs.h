// The system's dialogs.
#ifndef __AFXDLGS_H__
#define __AFXDLGS_H__
#pragma once

#include <afxwin.h>

#include <commdlg.h>
#include <cderr.h>
#include <dlgs.h>

#include <afx/CommonDialog.h>
#include <afx/FileDialog.h>

#endif // __AFXDLGS_H__
