// How threads wait for each other: critical sections, mutexes, semaphores, events, locks.
#ifndef __AFXMT_H__
#define __AFXMT_H__
#pragma once

#include <afxwin.h>

#include <afx/Sync.h>

#endif // __AFXMT_H__
