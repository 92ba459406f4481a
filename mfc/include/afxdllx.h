// For the source with an extension DLL's entry point.
#ifndef __AFXDLLX_H__
#define __AFXDLLX_H__
#pragma once

#include <afx/ExtensionModule.h>

#endif // __AFXDLLX_H__
