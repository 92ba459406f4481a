// Notes.h : the application
#pragma once

#ifndef __AFXWIN_H__
#error "include 'stdafx.h' before including this file for PCH"
#endif

#include "Resource.h"

class CNotesApp : public CWinApp
{
public:
    CNotesApp();

    virtual BOOL InitInstance();
    virtual CDocument* OpenDocumentFile(LPCTSTR lpszFileName);

protected:
    afx_msg void OnAppAbout();
    DECLARE_MESSAGE_MAP()
};

extern CNotesApp theApp;
