// CTime and CTimeSpan.
#ifndef __ATLTIME_H__
#define __ATLTIME_H__
#pragma once

#include <afx/Time.h>

#endif // __ATLTIME_H__
