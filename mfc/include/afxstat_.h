// Module state.
#ifndef __AFXSTAT_H__
#define __AFXSTAT_H__
#pragma once

#include <afx/ModuleState.h>

#endif // __AFXSTAT_H__
