// Versions, which hosts ask for with #if.
#ifndef __AFXVER_H__
#define __AFXVER_H__
#pragma once

#define _MFC_VER 0x0900

#endif // __AFXVER_H__
