// Collections of strings and pointers.
#ifndef __AFXCOLL_H__
#define __AFXCOLL_H__
#pragma once

#include <afx/Collections.h>

#endif // __AFXCOLL_H__
