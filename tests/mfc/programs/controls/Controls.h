// Controls.h : the application
#pragma once

#ifndef __AFXWIN_H__
#error "include 'stdafx.h' before including this file for PCH"
#endif

#include "Resource.h"

class CControlsApp : public CWinApp
{
public:
    CControlsApp();

    virtual BOOL InitInstance();

    DECLARE_MESSAGE_MAP()
};

extern CControlsApp theApp;
