// The list of recent files.
#ifndef __AFXADV_H__
#define __AFXADV_H__
#pragma once

#include <afxwin.h>

#include <afx/RecentFileList.h>

#endif // __AFXADV_H__
