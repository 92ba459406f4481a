// Windows, dialogs, frames, menus, drawing, standard controls, the program.
#ifndef __AFXWIN_H__
#define __AFXWIN_H__
#pragma once

#include <afx.h>

#include <afxmsg_.h>
#include <afxres.h>

#include <afx/CmdTarget.h>
#include <afx/ModuleState.h>

#include <afx/Gdi.h>
#include <afx/Menu.h>
#include <afx/Wnd.h>

#include <afx/CmdUI.h>
#include <afx/Controls.h>
#include <afx/CtrlView.h>
#include <afx/DataExchange.h>
#include <afx/Dialog.h>
#include <afx/FrameWnd.h>
#include <afx/MiniFrameWnd.h>
#include <afx/ScrollView.h>
#include <afx/Threads.h>
#include <afx/View.h>
#include <afx/WinApp.h>
#include <afx/WinThread.h>

#include <afxdd_.h>

#endif // __AFXWIN_H__
