// Internal: what ovomfc.dll exports, and what an extension DLL exports.
#pragma once

#ifdef OVOMFC_BUILD
#define OVOMFC_API __declspec(dllexport)
#else
#define OVOMFC_API __declspec(dllimport)
#endif

#ifdef _AFXEXT
#define AFX_EXT_CLASS __declspec(dllexport)
#else
#define AFX_EXT_CLASS __declspec(dllimport)
#endif
#define AFX_EXT_API AFX_EXT_CLASS
#define AFX_EXT_DATA AFX_EXT_CLASS
