// Control bars.
#pragma once

#include <afxwin.h>

#include <afx/ControlBar.h>
#include <afx/StatusBar.h>
#include <afx/ToolBar.h>
