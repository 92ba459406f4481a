// Tree and list views.
#ifndef __AFXCVIEW_H__
#define __AFXCVIEW_H__
#pragma once

#include <afxcmn.h>

#include <afx/ListView.h>
#include <afx/TreeView.h>

#endif // __AFXCVIEW_H__
