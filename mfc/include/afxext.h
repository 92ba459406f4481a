// Control bars.
#ifndef __AFXEXT_H__
#define __AFXEXT_H__
#pragma once

#include <afxwin.h>

#include <afx/BitmapButton.h>
#include <afx/ControlBar.h>
#include <afx/DialogBar.h>
#include <afx/DockBar.h>
#include <afx/DockState.h>
#include <afx/EditView.h>
#include <afx/FormView.h>
#include <afx/MiniDockFrameWnd.h>
#include <afx/StatusBar.h>
#include <afx/ToolBar.h>

#endif // __AFXEXT_H__
