// The system's dialogs, property sheets.
#ifndef __AFXDLGS_H__
#define __AFXDLGS_H__
#pragma once

#include <afxwin.h>

#include <commdlg.h>
#include <cderr.h>
#include <dlgs.h>
#include <prsht.h>

#include <afx/CommonDialog.h>
#include <afx/FileDialog.h>
#include <afx/PropertyPage.h>
#include <afx/PropertySheet.h>

#endif // __AFXDLGS_H__
