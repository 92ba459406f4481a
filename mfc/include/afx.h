// The base of everything: objects, strings, exceptions, diagnostics.
#ifndef __AFX_H__
#define __AFX_H__
#pragma once

#include <afx/Platform.h>
#include <afxver_.h>

#include <afx/Diagnostics.h>
#include <afx/Exception.h>
#include <afx/Object.h>
#include <afx/String.h>
#include <atltime.h>
#include <atltypes.h>

#endif // __AFX_H__
