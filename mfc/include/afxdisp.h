// What programs use of automation: dates.
#ifndef __AFXDISP_H__
#define __AFXDISP_H__
#pragma once

#include <afxwin.h>
#include <ole2.h>
#include <oleauto.h>

#include <atlcomtime.h>

#endif // __AFXDISP_H__
