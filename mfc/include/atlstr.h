// CString.
#ifndef __ATLSTR_H__
#define __ATLSTR_H__
#pragma once

#include <afx/String.h>

#endif // __ATLSTR_H__
