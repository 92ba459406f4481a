// What hosts ask the headers for: guards, versions, numbers.
#include <afxadv.h>
#include <afxcmn.h>
#include <afxcoll.h>
#include <afxcview.h>
#include <afxdisp.h>
#include <afxdtctl.h>
#include <afxext.h>
#include <afxmt.h>
#include <afxole.h>
#include <afxpriv.h>
#include <afxres.h>
#include <afxtempl.h>
#include <afxwin.h>
#include <atlcomtime.h>
#include <atlstr.h>
#include <atltime.h>
#include <atltypes.h>

#include <gtest/gtest.h>

#if !defined(__AFX_H__) || !defined(__AFXWIN_H__) || !defined(__AFXEXT_H__) || !defined(__AFXCMN_H__)
#error a program asks for these to find out whether its precompiled header was included
#endif
#if !defined(__AFXOLE_H__) || !defined(__AFXTEMPL_H__) || !defined(__AFXCOLL_H__) || !defined(__AFXPRIV_H__)
#error likewise
#endif
#if !defined(__AFXDISP_H__) || !defined(__AFXDTCTL_H__) || !defined(__AFXMT_H__) || !defined(__AFXADV_H__)
#error likewise
#endif
#if !defined(__AFXRES_H__) || !defined(__AFXMSG_H__) || !defined(__AFXDD_H__) || !defined(__AFXVER_H__)
#error likewise
#endif
#if !defined(__ATLTYPES_H__) || !defined(__ATLSTR_H__) || !defined(__ATLTIME_H__) ||                         \
    !defined(__ATLCOMTIME_H__)
#error likewise
#endif
#if !defined(__AFXCVIEW_H__)
#error likewise
#endif
#if _MFC_VER != 0x0900
#error the version that programs test for
#endif

TEST(Headers, NumberTheRecentFiles)
{
    EXPECT_EQ(ID_FILE_MRU_FILE1, 0xE110);
    EXPECT_EQ(ID_FILE_MRU_FILE16, ID_FILE_MRU_FILE1 + 15);
    EXPECT_EQ(ID_FILE_MRU_FIRST, ID_FILE_MRU_FILE1);
    EXPECT_EQ(ID_FILE_MRU_LAST, ID_FILE_MRU_FILE16);
}

TEST(Headers, LeaveTheSystemsNextWindow)
{
    CWnd parent;
    parent.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 50, 50), nullptr, 0);
    CButton first;
    first.Create(L"1", WS_CHILD, CRect(0, 0, 9, 9), &parent, 1);
    CButton second;
    second.Create(L"2", WS_CHILD, CRect(0, 0, 9, 9), &parent, 2);
    EXPECT_EQ(::GetNextWindow(first, GW_HWNDNEXT), second.m_hWnd);
    EXPECT_EQ(::GetNextWindow(second, GW_HWNDPREV), first.m_hWnd);
    EXPECT_EQ(first.GetNextWindow(), &second);
}
