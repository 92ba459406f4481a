// Views: tree, list, edit, form and scrolling views.
#ifndef __AFXCVIEW_H__
#define __AFXCVIEW_H__
#pragma once

#include <afxcmn.h>

#include <afx/EditView.h>
#include <afx/FormView.h>
#include <afx/ListView.h>
#include <afx/ScrollView.h>
#include <afx/TreeView.h>

#endif // __AFXCVIEW_H__
