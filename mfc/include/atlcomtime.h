// COleDateTime and COleDateTimeSpan.
#ifndef __ATLCOMTIME_H__
#define __ATLCOMTIME_H__
#pragma once

#include <afx/OleDateTime.h>

#endif // __ATLCOMTIME_H__
