// The common controls and image lists.
#ifndef __AFXCMN_H__
#define __AFXCMN_H__
#pragma once

#include <afxwin.h>
#include <commctrl.h>

#include <afx/AnimateCtrl.h>
#include <afx/HeaderCtrl.h>
#include <afx/HotKeyCtrl.h>
#include <afx/IPAddressCtrl.h>
#include <afx/ImageList.h>
#include <afx/ListCtrl.h>
#include <afx/ProgressCtrl.h>
#include <afx/SliderCtrl.h>
#include <afx/SpinButtonCtrl.h>
#include <afx/StatusBarCtrl.h>
#include <afx/TabCtrl.h>
#include <afx/ToolBarCtrl.h>
#include <afx/ToolTipCtrl.h>
#include <afx/TreeCtrl.h>

#endif // __AFXCMN_H__
