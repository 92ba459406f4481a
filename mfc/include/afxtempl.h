// Collections of any type.
#ifndef __AFXTEMPL_H__
#define __AFXTEMPL_H__
#pragma once

#include <afx/Array.h>
#include <afx/List.h>

#endif // __AFXTEMPL_H__
