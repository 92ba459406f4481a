// Control bars.
#ifndef __AFXEXT_H__
#define __AFXEXT_H__
#pragma once

#include <afxwin.h>

#include <afx/ControlBar.h>
#include <afx/StatusBar.h>
#include <afx/ToolBar.h>

#endif // __AFXEXT_H__
